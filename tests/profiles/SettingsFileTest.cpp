#include "profiles/SettingsFile.h"

#include "tests/profiles/ProfileTestSupport.h"

#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFont>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <sys/stat.h>

/// Makes address sanitizer respond like the system to a request for this much memory.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace {

const QString settingsFileName = QStringLiteral("Test.ini");

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A language that says everything in capital letters, while it exists.
class ShoutingTranslator : public QTranslator
{
public:
    ShoutingTranslator() { QCoreApplication::installTranslator(this); }
    ~ShoutingTranslator() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* /*context*/, const char* text, const char* /*comment*/,
                      int /*count*/) const override
    {
        return QString::fromUtf8(text).toUpper();
    }

    bool isEmpty() const override { return false; }
};

} // namespace

class SettingsFileTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestHome> m_home;

    [[nodiscard]] QString path() const { return m_home->settingsFile(settingsFileName); }

private Q_SLOTS:
    void init() { m_home = std::make_unique<TestHome>(); }
    void cleanup() { m_home.reset(); }

    void damage_isSeen_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isDamaged");
        const auto row = [](const char* name, const QByteArray& content, bool isDamaged) {
            QTest::newRow(name) << content << isDamaged;
        };
        row("empty", "", false);
        row("usual", "[profiles]\nA\\name=x\nA\\size=@Size(1 2)\n\n[General]\nlast=\n", false);
        row("of an editor on Windows", "; note\r\n# note\r\n[a]\r\n\tx = 1 \r\n", false);
        row("a line that goes on", "[a]\nx=1, \\\n2\ny=3\n", false);
        row("zeros", QByteArray(400, '\0'), true);
        row("zeros behind the start", "[a]\nx=1\n" + QByteArray(40, '\0'), true);
        row("random bytes", "\x7f\x45LF\x02\x01\x01\x03 = \xff\x00\n", true);
        row("cut in a key", "[a]\nx=1\nlastUsed", true);
        row("cut in a section", "[a]\nx=1\n[Gene", true);
        row("a picture", "\x89PNG\r\n\x1a\n=", true);
        const auto variant = [](const QByteArray& stream) { return "[a]\nx=" + stream + ")\n"; };
        row("a colour", variant("@Variant(\\0\\0\\0\\x43\\x1\\xff\\xff\\0\\0\\0\\0\\0\\0\\0\\0"),
            false);
        row("a pixmap", variant("@Variant(\\0\\0\\0\\x41"), true);
        row("an icon", variant("\"@Variant(\\0\\0\\0\\x45"), true);
        row("a bitmap", variant("@Variant(\\0\\0\\0I"), true);
        row("a bitmap in octal digits", variant("@Variant(\\0\\0\\0\\111"), true);
        row("a bitmap behind an escape that means nothing", variant("@Variant(\\0\\0\\0\\@I"),
            true);
        row("a bitmap in a list of values", variant("1, @Variant(\\0\\0\\0I"), true);
        row("a bitmap whose name is escaped", variant("\\x40Va\\@r\"ian\"t(\\0\\0\\0I"), true);
        row("a bitmap as a date", variant("@DateTime(\\0\\0\\0I"), true);
        row("lists in lists",
            variant("@Variant(\\0\\0\\0\\t\\0\\0\\0\\x1\\0\\0\\0\\t\\0\\0\\0\\x1"), true);
        row("a type that is cut", variant("@Variant(\\0\\0"), true);
        row("endless", QByteArray("x=1\n").repeated(5 << 20), true);
    }
    void damage_isSeen()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const bool, isDamaged);
        QVERIFY(m_home->writeSettingsFile(settingsFileName, content));
        QCOMPARE(SettingsFile::isDamaged(path()), isDamaged);
    }

    void missingFiles_areNotDamaged() { QVERIFY(!SettingsFile::isDamaged(path())); }

    void whatIsNoFile_isDamaged()
    {
        QVERIFY(QDir().mkpath(QFileInfo(path()).absolutePath()));
        QCOMPARE(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
        QVERIFY(SettingsFile::isDamaged(path()));
    }

    void whatQtWrites_isNotDamaged()
    {
        QVERIFY(QDir().mkpath(QFileInfo(path()).absolutePath()));
        {
            QSettings settings(path(), QSettings::IniFormat);
            settings.setValue(QStringLiteral("bytes"), QByteArray("\0\1\n\r=[;\\", 9));
            settings.setValue(QStringLiteral("profiles/[ä;\n]/名"), QStringLiteral("a\nb\\"));
            settings.setValue(QStringLiteral("list"), QStringList{QStringLiteral("a, b"), {}});
            settings.setValue(QStringLiteral("text"), QStringLiteral("@Variant(I"));
            const std::initializer_list<QVariant> values{QSizeF(1.5, 2.5),
                                                         QColor(Qt::red),
                                                         QFont(QStringLiteral("Serif")),
                                                         1.5F,
                                                         QDateTime::currentDateTime(),
                                                         QStringList{QString()}};
            for (const QVariant& value : values) {
                settings.setValue(QLatin1String(value.typeName()), value);
            }
        }
        QVERIFY2(!SettingsFile::isDamaged(path()), contentOf(path()).constData());
    }

    void damagedFile_isKeptAside_andToldOnce()
    {
        const QByteArray damage(100, '\0');
        for (const char* const aside : {".bad", ".bad2"}) {
            QVERIFY(m_home->writeSettingsFile(settingsFileName, damage));
            const auto damaged = SettingsFile::putDamagedAside();
            QCOMPARE(damaged.size(), 1);
            QCOMPARE(damaged.first().path, path());
            QCOMPARE(damaged.first().keptPath, path() + QString::fromLatin1(aside));
            const QString text = SettingsFile::text(damaged.first());
            QVERIFY(text.contains(damaged.first().keptPath));
            QVERIFY(!QFile::exists(path()));
            QCOMPARE(contentOf(path() + QString::fromLatin1(aside)), damage);
            QVERIFY(SettingsFile::putDamagedAside().isEmpty());
        }
    }

    void damage_isTold_inTheLanguageThatIsChosenLater()
    {
        QVERIFY(m_home->writeSettingsFile(settingsFileName, QByteArray(10, '\0')));
        const auto damaged = SettingsFile::putDamagedAside();
        QCOMPARE(damaged.size(), 1);
        const ShoutingTranslator language;
        QVERIFY(SettingsFile::text(damaged.first()).startsWith(QStringLiteral("THE SETTINGS IN ")));
    }

    void listsThatDeclareTooMuch_areDamage_whereQtWouldThrow()
    {
        const QByteArray text = "[profiles]\nA\\id=@Variant(\\0\\0\\0\\v\\x7f\\xff\\xff\\xff)\n";
        QVERIFY(m_home->writeSettingsFile(settingsFileName, text));
        const auto damaged = SettingsFile::putDamagedAside();
        QSettings settings(path(), QSettings::IniFormat);
#if QT_VERSION_MAJOR >= 6
        // It comes to the end of the value before it takes the memory.
        QVERIFY(damaged.isEmpty());
        QCOMPARE(settings.value(QStringLiteral("profiles/A/id")).toStringList(), QStringList());
#else
        QCOMPARE(damaged.size(), 1);
        QCOMPARE(settings.allKeys(), QStringList());
#endif
        settings.setValue(QStringLiteral("a"), 1);
        settings.sync();
        QVERIFY(contentOf(path()).startsWith("[General]\na=1\n"));
    }

    void ownSettings_areLookedAtToo()
    {
        const QString own = QSettings().fileName();
        QVERIFY(QDir().mkpath(QFileInfo(own).absolutePath()));
        QFile file(own);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(10, '\0'));
        file.close();
        QCOMPARE(SettingsFile::putDamagedAside().size(), 1);
        QVERIFY(QFile::exists(own + QStringLiteral(".bad")));
    }

    void settingsThatCanBeSaved_areNoProblem_andNothingIsLeft()
    {
        QCOMPARE(SettingsFile::writeProblem(), QString());
        const QFileInfo config(path());
        for (const QString& folder :
             {config.absolutePath(), config.dir().filePath(QStringLiteral(".."))}) {
            const QStringList left = QDir(folder).entryList({QStringLiteral(".morvantile*")},
                                                            QDir::Files | QDir::Hidden);
            QCOMPARE(left, QStringList());
        }
    }

    void folderThatCannotBeMade_isAProblem_thatNamesIt()
    {
        const QString folder = QFileInfo(path()).absolutePath();
        QVERIFY(QDir().mkpath(QFileInfo(folder).absolutePath()));
        QFile file(folder);
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString problem = SettingsFile::writeProblem();
        QVERIFY2(problem.contains(folder), qUtf8Printable(problem));
    }
};

QTEST_GUILESS_MAIN(SettingsFileTest)

#include "SettingsFileTest.moc"
