#include "tests/stills/StillsProgram.h"

#include "product/ProductInfo.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

using testsupport::ProgramResult;
using testsupport::runProgram;

// Prefix of the names of Qt's libraries.
#define QT "Qt" QT_STRINGIFY(QT_VERSION_MAJOR)

namespace {

/// The libraries that a file needs at its start, as reported by the dynamic linker.
QByteArray librariesOf(const QString& file)
{
    const ProgramResult result = runProgram(QStringLiteral("ldd"), {file});
    return result.succeeded() ? result.standardOutput : QByteArray();
}

} // namespace

class StillsStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void version_isThatOfTheProduct();
    void help_goesToStandardOutput();
    void program_needsNoLargeLibrary_untilThereIsWork();
    void module_needsNoWidgets();
    void run_loadsNoPluginsForNothing();
    void run_complainsOfNothing_inABareSession();
    void manualPage_isWritten();
    void bash_completesOptionsAndValues_data();
    void bash_completesOptionsAndValues();
};

void StillsStartTest::version_isThatOfTheProduct()
{
    const ProgramResult result = stillsprogram::run({QStringLiteral("--version")});
    QVERIFY(result.succeeded());
    QCOMPARE(result.standardOutput, "stills " + ProductInfo::version().toUtf8() + "\n");
}

void StillsStartTest::help_goesToStandardOutput()
{
    for (const char* const option : {"--help", "-h", "--help-all"}) {
        const ProgramResult result = stillsprogram::run({QString::fromLatin1(option)});
        QVERIFY(result.succeeded());
        QVERIFY(result.standardOutput.contains("Usage: stills"));
        QCOMPARE(result.standardError, QByteArray());
    }
}

void StillsStartTest::program_needsNoLargeLibrary_untilThereIsWork()
{
    const QByteArray libraries = librariesOf(stillsprogram::program());
    QVERIFY(libraries.contains("libc.so"));
    for (const char* const name : {QT, "libav", "opencv"}) {
        QVERIFY2(!libraries.contains(name), libraries.constData());
    }
}

void StillsStartTest::module_needsNoWidgets()
{
    const QByteArray libraries = librariesOf(QStringLiteral(MORVANTILE_STILLS_MODULE));
    QVERIFY(libraries.contains(QT "Core"));
    for (const char* const name : {QT "Widgets", QT "Svg", QT "OpenGL", QT "Multimedia"}) {
        QVERIFY2(!libraries.contains(name), libraries.constData());
    }
}

void StillsStartTest::run_loadsNoPluginsForNothing()
{
    const testsupport::TestDir dir;
    QProcessEnvironment environment = stillsprogram::environment();
    environment.insert(QStringLiteral("LD_DEBUG"), QStringLiteral("files"));
    const ProgramResult result =
        runProgram(stillsprogram::program(),
                   {QStringLiteral("--count=1"), QStringLiteral("-o"), dir.path(),
                    testsupport::samplePath(QStringLiteral("h264_bframes.mp4"))},
                   60000, environment);
    QVERIFY(result.succeeded());
    QVERIFY(result.standardError.contains("lib" QT "Gui"));
    // Libraries of the plugins for vector graphics, and of those for TIFF.
    for (const char* const name : {QT "Widgets", QT "Svg", "libqtiff"}) {
        QVERIFY2(!result.standardError.contains(name), name);
    }
}

void StillsStartTest::run_complainsOfNothing_inABareSession()
{
    const testsupport::TestDir dir;
    const testsupport::TestDir temporary;
    QProcessEnvironment environment = stillsprogram::environment();
    environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    for (const char* const option : {"--count=1", "--sheet"}) {
        const ProgramResult result = runProgram(
            stillsprogram::program(),
            {QString::fromLatin1(option), QStringLiteral("--quiet"), QStringLiteral("-o"),
             dir.path(), testsupport::samplePath(QStringLiteral("h264_bframes.mp4"))},
            60000, environment);
        QVERIFY(result.succeeded());
        QCOMPARE(result.standardError, QByteArray());
        QVERIFY(stillsprogram::filesIn(temporary.path()).isEmpty());
    }
}

void StillsStartTest::manualPage_isWritten()
{
    QFile page(QFileInfo(stillsprogram::program()).path() + QStringLiteral("/stills.1"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY(page.readAll().startsWith(".TH STILLS 1"));
}

void StillsStartTest::bash_completesOptionsAndValues_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("offered");
    const auto row = [](const QStringList& words, const char* offered) {
        QTest::newRow(offered) << words << QByteArray(offered);
    };
    row({QStringLiteral("--sheet-t")}, "--sheet-times --sheet-title");
    row({QStringLiteral("--format"), QStringLiteral("p")}, "png");
    row({QStringLiteral("-f"), QStringLiteral("t")}, "tif tiff");
    row({QStringLiteral("--format"), QStringLiteral("="), QStringLiteral("w")}, "webp");
    row({QStringLiteral("film.mkv"), QStringLiteral("--key")}, "--keyframes");
}

void StillsStartTest::bash_completesOptionsAndValues()
{
    QFETCH(const QStringList, words);
    QFETCH(const QByteArray, offered);
    const QString script =
        QFileInfo(stillsprogram::program()).path() + QStringLiteral("/bash/stills");
    const ProgramResult result = runProgram(
        QStringLiteral("bash"),
        QStringList{
            QStringLiteral("-c"),
            QStringLiteral("source \"$1\"; shift; COMP_WORDS=(stills \"$@\"); COMP_CWORD=$#; "
                           "_stills 2>/dev/null; echo \"${COMPREPLY[@]}\""),
            QStringLiteral("bash"), script} +
            words);
    QCOMPARE(result.standardOutput.trimmed(), offered);
}

QTEST_GUILESS_MAIN(StillsStartTest)

#include "StillsStartTest.moc"
