#include "profiles/BaseProfile.h"

#include "tests/profiles/ProfileTestSupport.h"

#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <QTest>

namespace {

/// A kind with every type of property, which records the order of reading and writing.
class SampleProfile : public BaseProfile
{
    Q_OBJECT
    Q_PROPERTY(int zebra READ zebra WRITE setZebra)
    Q_PROPERTY(bool apple READ apple WRITE setApple)
    Q_PROPERTY(int passing READ passing WRITE setPassing STORED false)
    Q_PROPERTY(int derived READ derived)
    Q_PROPERTY(QString melon READ melon WRITE setMelon)

public:
    using BaseProfile::BaseProfile;

    int zebra() const { return noted(QStringLiteral("zebra"), m_zebra); }
    void setZebra(int value) { m_zebra = noted(QStringLiteral("zebra"), value); }
    bool apple() const { return noted(QStringLiteral("apple"), m_apple); }
    void setApple(bool value) { m_apple = noted(QStringLiteral("apple"), value); }
    int passing() const { return noted(QStringLiteral("passing"), m_passing); }
    void setPassing(int value) { m_passing = noted(QStringLiteral("passing"), value); }
    int derived() const { return noted(QStringLiteral("derived"), 4); }
    QString melon() const { return noted(QStringLiteral("melon"), m_melon); }
    void setMelon(const QString& value) { m_melon = noted(QStringLiteral("melon"), value); }

    QStringList takeNotes() { return std::exchange(m_notes, {}); }

private:
    template <typename Value>
    Value noted(const QString& name, const Value& value) const
    {
        m_notes.append(name);
        return value;
    }

    int m_zebra = 11;
    bool m_apple = false;
    int m_passing = 12;
    QString m_melon = QStringLiteral("green");
    mutable QStringList m_notes;
};

} // namespace

class BaseProfileTest : public QObject
{
    Q_OBJECT

private:
    static QString iniFile(const QTemporaryDir& folder, const char* text)
    {
        QFile file(folder.filePath(QStringLiteral("sample.ini")));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0) {
            qFatal("The settings file of the case cannot be written");
        }
        return file.fileName();
    }

private slots:
    void constructor_givesUpperCaseUuidWithoutBraces()
    {
        const QRegularExpression randomUuid(QStringLiteral(
            "\\A[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\\z"));
        for (int i = 0; i < 50; ++i) {
            const BaseProfile profile(nullptr);
            QCOMPARE(profile.id().size(), 36);
            QVERIFY2(randomUuid.match(profile.id()).hasMatch(), qPrintable(profile.id()));
        }
    }

    void constructor_givesEachProfileAnotherId()
    {
        QSet<QString> ids;
        for (int i = 0; i < 1000; ++i) {
            ids.insert(BaseProfile().id());
        }
        QCOMPARE(ids.size(), 1000);
    }

    void constructor_leavesNameEmptyAndParentUnset()
    {
        const BaseProfile profile(nullptr);
        QCOMPARE(profile.name(), QString());
        QCOMPARE(profile.parent(), nullptr);
    }

    void constructor_neitherCopiesNorAdopts_whenGivenAProfile()
    {
        BaseProfile other(nullptr);
        other.setName(QStringLiteral("Other"));
        const BaseProfile profile(&other);
        QCOMPARE(profile.name(), QString());
        QVERIFY(profile.id() != other.id());
        QCOMPARE(profile.parent(), nullptr);
        QVERIFY(other.children().isEmpty());
    }

    void setters_storeValuesUnchanged()
    {
        BaseProfile profile;
        profile.setName(QStringLiteral("  My \"name\" "));
        profile.setId(QStringLiteral("not a uuid"));
        QCOMPARE(profile.name(), QStringLiteral("  My \"name\" "));
        QCOMPARE(profile.id(), QStringLiteral("not a uuid"));
    }

    void properties_walkFromObjectNameToTheKindsOwn()
    {
        QCOMPARE(persistedPropertyNames(SampleProfile::staticMetaObject),
                 QStringList({QStringLiteral("objectName"), QStringLiteral("name"),
                              QStringLiteral("id"), QStringLiteral("zebra"),
                              QStringLiteral("apple"), QStringLiteral("melon")}));
    }

    void save_readsStoredWritablePropertiesInDeclaredOrder()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
        SampleProfile profile;
        profile.save(settings);
        QCOMPARE(profile.takeNotes(), QStringList({QStringLiteral("zebra"), QStringLiteral("apple"),
                                                   QStringLiteral("melon")}));
    }

    void load_writesStoredWritablePropertiesInDeclaredOrder()
    {
        const QTemporaryDir folder;
        QSettings settings(
            iniFile(folder, "[General]\nmelon=a\npassing=1\nderived=2\napple=true\nzebra=3\n"),
            QSettings::IniFormat);
        SampleProfile profile;
        profile.load(settings);
        QCOMPARE(profile.takeNotes(), QStringList({QStringLiteral("zebra"), QStringLiteral("apple"),
                                                   QStringLiteral("melon")}));
        QCOMPARE(profile.zebra(), 3);
        QCOMPARE(profile.apple(), true);
        QCOMPARE(profile.melon(), QStringLiteral("a"));
        QCOMPARE(profile.passing(), 12);
    }

    void save_writesCurrentGroupAloneUnderPropertyNames()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
        SampleProfile profile;
        profile.setObjectName(QStringLiteral("object"));
        profile.setName(QStringLiteral("Name"));
        profile.setId(QStringLiteral("Id"));
        settings.beginGroup(QStringLiteral("outer"));
        settings.beginGroup(QStringLiteral("inner"));
        profile.save(settings);
        settings.endGroup();
        settings.endGroup();

        QCOMPARE(settings.childGroups(), QStringList(QStringLiteral("outer")));
        QCOMPARE(settings.allKeys().size(), 6);
        const auto value = [&settings](const char* key) {
            return settings.value(QStringLiteral("outer/inner/") + QLatin1String(key));
        };
        QCOMPARE(value("objectName"), QVariant(QStringLiteral("object")));
        QCOMPARE(value("name"), QVariant(QStringLiteral("Name")));
        QCOMPARE(value("id"), QVariant(QStringLiteral("Id")));
        QCOMPARE(value("zebra"), QVariant(11));
        QCOMPARE(value("apple"), QVariant(false));
        QCOMPARE(value("melon"), QVariant(QStringLiteral("green")));
    }

    void save_keepsOtherKeysOfTheGroup()
    {
        const QTemporaryDir folder;
        QSettings settings(iniFile(folder, "[General]\nlater=7\nname=Old\n"), QSettings::IniFormat);
        SampleProfile().save(settings);
        QCOMPARE(settings.value(QStringLiteral("later")).toInt(), 7);
        QCOMPARE(settings.value(QStringLiteral("name")).toString(), QString());
    }

    void load_leavesDefaults_whenKeysAreMissing()
    {
        const QTemporaryDir folder;
        QSettings settings(iniFile(folder, "[General]\nmelon=ripe\n"), QSettings::IniFormat);
        SampleProfile profile;
        const QString freshId = profile.id();
        profile.load(settings);
        QCOMPARE(profile.melon(), QStringLiteral("ripe"));
        QCOMPARE(profile.zebra(), 11);
        QCOMPARE(profile.id(), freshId);
        QCOMPARE(profile.objectName(), QString());
    }

    void load_findsNothing_whenTheGroupIsAnother()
    {
        const QTemporaryDir folder;
        QSettings settings(iniFile(folder, "[General]\nzebra=5\n[other]\nzebra=6\n"),
                           QSettings::IniFormat);
        SampleProfile profile;
        settings.beginGroup(QStringLiteral("third"));
        profile.load(settings);
        QCOMPARE(profile.zebra(), 11);
    }

    void load_convertsAsFarAsItGoes_whenTypesDiffer_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("zebra");
        QTest::addColumn<bool>("apple");
        QTest::newRow("word for a number") << QByteArray("zebra=abc") << 0 << false;
        QTest::newRow("nothing for a number") << QByteArray("zebra=") << 0 << false;
        QTest::newRow("number with a tail") << QByteArray("zebra=12px") << 0 << false;
        QTest::newRow("negative number") << QByteArray("zebra=-3") << -3 << false;
        QTest::newRow("list for a number") << QByteArray("zebra=1, 2") << 11 << false;
        QTest::newRow("invalid value for a number") << QByteArray("zebra=@Invalid()") << 0 << false;
        QTest::newRow("word for a truth value") << QByteArray("apple=abc") << 11 << true;
        QTest::newRow("one for a truth value") << QByteArray("apple=1") << 11 << true;
        QTest::newRow("false") << QByteArray("apple=false") << 11 << false;
    }

    void load_convertsAsFarAsItGoes_whenTypesDiffer()
    {
        QFETCH(QByteArray, text);
        const QTemporaryDir folder;
        QSettings settings(iniFile(folder, ("[General]\n" + text + "\n").constData()),
                           QSettings::IniFormat);
        SampleProfile profile;
        profile.load(settings);
        QTEST(profile.zebra(), "zebra");
        QTEST(profile.apple(), "apple");
    }

    void profile_doesNotChange_whenSavedAndLoaded()
    {
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("a.ini")), QSettings::IniFormat);
        SampleProfile saved;
        saved.setName(QStringLiteral("Name"));
        saved.setZebra(-5);
        saved.setApple(true);
        saved.save(settings);

        SampleProfile loaded;
        loaded.load(settings);
        QCOMPARE(loaded.id(), saved.id());
        QCOMPARE(loaded.name(), saved.name());
        QCOMPARE(loaded.zebra(), -5);
        QCOMPARE(loaded.apple(), true);
    }
};

QTEST_GUILESS_MAIN(BaseProfileTest)
#include "BaseProfileTest.moc"
