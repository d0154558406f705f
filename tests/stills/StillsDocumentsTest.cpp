#include "tests/stills/StillsProgram.h"

#include "stills/OptionTable.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::objects;
using testsupport::ProgramResult;
using testsupport::runProgram;
using testsupport::TestDir;

namespace {

QString textOf(const QString& path)
{
    QFile file(QStringLiteral(MORVANTILE_SOURCES "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString guide()
{
    return textOf(QStringLiteral("docs/user-guide/user-guide.html"));
}

/// The lines of a document's examples that start the program, as interpreted by a shell.
QStringList commandsIn(const QString& document)
{
    QStringList commands;
    QString text = document;
    text.replace(QStringLiteral("<pre><code>"), QStringLiteral("\n"));
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        QString command = line.section(QStringLiteral("</code>"), 0, 0);
        command.replace(QStringLiteral("$stills "), QStringLiteral("stills "));
        if (command.startsWith(QStringLiteral("stills ")) &&
            !command.contains(QStringLiteral("[OPTION]"))) {
            commands += command;
        }
    }
    return commands;
}

/// A film of 70 seconds with 350 frames, as required by the examples.
void makeFilm(const QString& path)
{
    const ProgramResult result =
        runProgram(QStringLiteral("ffmpeg"),
                   {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
                    QStringLiteral("lavfi"), QStringLiteral("-i"),
                    QStringLiteral("testsrc=size=160x120:rate=5:duration=70"),
                    QStringLiteral("-c:v"), QStringLiteral("mpeg4"), path});
    if (!result.succeeded()) {
        qFatal("ffmpeg: %s", result.standardError.constData());
    }
}

} // namespace

class StillsDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void examples_work_data();
    void examples_work();
    void readme_tellsTheNamesThatComeOut();
    void everyOption_isExplained();
    void objects_haveTheDocumentedKeys();

private:
    TestDir m_films;
};

void StillsDocumentsTest::initTestCase()
{
    makeFilm(m_films.filePath(QStringLiteral("film.mkv")));
}

void StillsDocumentsTest::examples_work_data()
{
    QTest::addColumn<QString>("command");
    const QStringList commands =
        commandsIn(textOf(QStringLiteral("README.md"))) + commandsIn(guide()) +
        commandsIn(QString::fromUtf8(stillsprogram::run({QStringLiteral("--help")}).standardOutput)
                       .replace(QStringLiteral("\n  stills "), QStringLiteral("\nstills "))
                       .replace(QRegularExpression(QStringLiteral("(stills \\S.*\\S)  +.*")),
                                QStringLiteral("\\1")));
    QVERIFY(commands.size() > 15);
    for (int i = 0; i < commands.size(); ++i) {
        QTest::addRow("%d %s", i, qUtf8Printable(commands.at(i))) << commands.at(i);
    }
}

void StillsDocumentsTest::examples_work()
{
    QFETCH(const QString, command);
    const TestDir dir;
    const QString film = m_films.filePath(QStringLiteral("film.mkv"));
    QVERIFY(QFile::copy(film, dir.filePath(QStringLiteral("film.mkv"))));
    QVERIFY(QFile::copy(film, dir.filePath(QStringLiteral("clip.mp4"))));
    QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("Videos")));
    QVERIFY(QFile::copy(film, dir.filePath(QStringLiteral("Videos/film.mkv"))));
    const ProgramResult result = runProgram(
        QStringLiteral("bash"),
        {QStringLiteral("-c"),
         QStringLiteral("stills() { \"$program\" \"$@\"; }; program=$1; cd \"$2\"; ") + command,
         QStringLiteral("bash"), stillsprogram::program(), dir.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    const bool isHelp = command.contains(QStringLiteral("--help"));
    QCOMPARE(result.standardOutput.isEmpty(), !isHelp);
    const int pictures =
        filesIn(dir.path()).size() - 2 + filesIn(dir.filePath(QStringLiteral("out"))).size();
    QCOMPARE(pictures > 0, !isHelp);
}

void StillsDocumentsTest::readme_tellsTheNamesThatComeOut()
{
    const TestDir dir;
    const QString readme = textOf(QStringLiteral("README.md"));
    const QString first =
        QRegularExpression(QStringLiteral("\\./run\\.sh (samples/.*)")).match(readme).captured(1);
    QVERIFY(first.endsWith(QStringLiteral(" -o out")));
    QStringList arguments = first.split(QLatin1Char(' '));
    arguments.first().prepend(QStringLiteral(MORVANTILE_SOURCES "/"));
    arguments.last() = dir.path();
    QVERIFY(stillsprogram::run(arguments).succeeded());
    QCOMPARE(filesIn(dir.path()).size(), 10);
    for (const QString& name : {filesIn(dir.path()).first(), filesIn(dir.path()).last()}) {
        QVERIFY2(readme.contains(QLatin1Char('`') + name + QLatin1Char('`')), qUtf8Printable(name));
    }
}

void StillsDocumentsTest::everyOption_isExplained()
{
    const QString text = guide();
    const QString chapter = text.mid(text.indexOf(QStringLiteral("<h2 id=\"stills\"")),
                                     text.indexOf(QStringLiteral("<h2 id=\"command-line\"")) -
                                         text.indexOf(QStringLiteral("<h2 id=\"stills\"")));
    QVERIFY(!chapter.isEmpty());
    for (const stills::OptionEntry& entry : stills::optionTable()) {
        const QString name = QString::fromStdString(entry.longName());
        const bool isExplained = chapter.contains(QStringLiteral("<code>%1</code>").arg(name));
        QVERIFY2(isExplained == (entry.section != stills::Section::Hidden), qUtf8Printable(name));
    }
}

void StillsDocumentsTest::objects_haveTheDocumentedKeys()
{
    const QString document = textOf(QStringLiteral("docs/stills-json.md"));
    const TestDir dir;
    const ProgramResult result = stillsprogram::runJson(
        {m_films.filePath(QStringLiteral("film.mkv")), QStringLiteral("/no/such.mkv"),
         QStringLiteral("--sheet"), QStringLiteral("--with-pictures")},
        dir.path());
    QSet<QString> types;
    for (const QByteArray& line : result.standardOutput.split('\n')) {
        if (line.isEmpty()) {
            continue;
        }
        // The keys must be those of the document's example of the same type, in the same order.
        static const QRegularExpression key(QStringLiteral("[{,](\"[a-z_]+\"):"));
        const auto keysOf = [](const QString& text) {
            QStringList keys;
            for (auto matches = key.globalMatch(text); matches.hasNext();) {
                keys += matches.next().captured(1);
            }
            return keys;
        };
        const QString type = objects(line).first().value(QStringLiteral("type")).toString();
        const int start = document.indexOf(QStringLiteral("{\"type\":\"%1\"").arg(type));
        QVERIFY2(start >= 0, qUtf8Printable(type));
        QCOMPARE(keysOf(QString::fromUtf8(line)),
                 keysOf(document.mid(start).section(QLatin1Char('\n'), 0, 0)));
        types.insert(type);
    }
    QCOMPARE(types.size(), 5);
}

QTEST_GUILESS_MAIN(StillsDocumentsTest)

#include "StillsDocumentsTest.moc"
