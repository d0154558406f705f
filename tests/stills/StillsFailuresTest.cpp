#include "tests/stills/StillsProgram.h"

#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTest>

#include <climits>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using stillsprogram::filesIn;
using stillsprogram::InterruptibleProcess;
using stillsprogram::numbersIn;
using stillsprogram::objects;
using stillsprogram::shortSample;
using stillsprogram::words;
using testsupport::ProgramResult;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

const QString largeSample = QStringLiteral("h264_2160p.mp4");

/// Whether every file is a complete picture, without unfinished ones.
bool areWhole(const QString& folder)
{
    for (const QString& name : filesIn(folder)) {
        if (name.startsWith(QLatin1Char('.')) || QImage(QDir(folder).filePath(name)).isNull()) {
            qWarning("%s", qUtf8Printable(name));
            return false;
        }
    }
    return true;
}

/// A folder that nobody can read, whatever their rights: its path is longer than the system allows.
class TooDeepFolder
{
public:
    explicit TooDeepFolder(const QString& top)
    {
        QString path = top;
        while (path.size() + m_name.size() < PATH_MAX) {
            path += QLatin1Char('/') + QString::fromLatin1(m_name);
        }
        const bool isMade = QDir().mkpath(path);
        m_parent = ::open(qUtf8Printable(path), O_RDONLY | O_DIRECTORY);
        if (!isMade || ::mkdirat(m_parent, m_name.constData(), S_IRWXU) != 0) {
            qFatal("Cannot make a folder below %s", qUtf8Printable(top));
        }
    }
    ~TooDeepFolder()
    {
        ::unlinkat(m_parent, m_name.constData(), AT_REMOVEDIR);
        ::close(m_parent);
    }
    TooDeepFolder(const TooDeepFolder&) = delete;
    TooDeepFolder& operator=(const TooDeepFolder&) = delete;

private:
    QByteArray m_name = QByteArray(200, 'x');
    int m_parent = -1;
};

} // namespace

class StillsFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_endsWithTwo_andOneLine();
    void missingVideo_isAnError_theOthersGoOn();
    void brokenVideos_areErrors_data();
    void brokenVideos_areErrors();
    void damagedVideos_endWithoutACrash();
    void unreadableListsAndFolders_areErrors_inEveryShard_data();
    void unreadableListsAndFolders_areErrors_inEveryShard();
    void folder_isAnErrorOfOneShard_withoutTheOption();
    void failFast_stopsAtTheFirstError();
    void quiet_leavesErrorsAlone();
    void progress_isQuietInAPipe_unlessAskedFor();
    void interruption_endsAtOnce_withWholeFiles_data();
    void interruption_endsAtOnce_withWholeFiles();
    void secondRun_afterAnInterruption_completesTheWork();
    void fullDisk_isAnError_withoutHalfFiles();
    void folderThatCannotBeMade_isAnError();
    void folderThatIsAFile_isAnError();
    void readOnlyFolder_isAnError();
    void closedPipe_endsTheRun_data();
    void closedPipe_endsTheRun();
    void namesWithLineBreaks_stayInOneLine();
    void nothingLeftOfAVideo_isAnError();
};

void StillsFailuresTest::wrongUsage_endsWithTwo_andOneLine()
{
    const ProgramResult result = stillsprogram::run(words("--every 5x a.mp4"));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.standardOutput, QByteArray());
    QCOMPARE(result.standardError.count('\n'), 1);
    QVERIFY(result.standardError.startsWith("stills: --every: '5x'"));
}

void StillsFailuresTest::missingVideo_isAnError_theOthersGoOn()
{
    const TestDir dir;
    const ProgramResult result = stillsprogram::runJson(
        {QStringLiteral("/no/such.mp4"), samplePath(shortSample), QStringLiteral("-c1")},
        dir.path());
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(numbersIn(dir.path()), QList<int>{50});
    const auto errors = objects(result.standardOutput, QStringLiteral("error"));
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().value(QLatin1String("video")).toString(),
             QStringLiteral("/no/such.mp4"));
    QVERIFY(errors.first().value(QLatin1String("asked_ms")).isNull());
    QVERIFY(!errors.first().value(QLatin1String("message")).toString().isEmpty());
    QVERIFY(result.standardError.startsWith("stills: /no/such.mp4: "));
    QCOMPARE(result.standardError.count('\n'), 1);
}

void StillsFailuresTest::brokenVideos_areErrors_data()
{
    QTest::addColumn<QString>("file");
    for (const char* const name : {"empty.mp4", "text.mp4", "random_bytes.mp4", "sound_only.mp4",
                                   "truncated_without_moov.mp4", "folder.mp4"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void StillsFailuresTest::brokenVideos_areErrors()
{
    QFETCH(const QString, file);
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run({samplePath(file), QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(filesIn(dir.path()), QStringList());
    QVERIFY(result.standardError.startsWith("stills: " + samplePath(file).toUtf8() + ": "));
    QVERIFY(result.standardError.endsWith("(1 error)\n"));
}

void StillsFailuresTest::damagedVideos_endWithoutACrash()
{
    const TestDir dir;
    QStringList arguments = words("--every 100ms");
    for (const testsupport::Sample& sample : testsupport::brokenSamples()) {
        arguments += samplePath(sample.file);
    }
    const ProgramResult result = stillsprogram::runJson(arguments, dir.path());
    QVERIFY(result.end == ProgramResult::End::Exited);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(areWhole(dir.path()));
    const QJsonObject summary = objects(result.standardOutput, QStringLiteral("summary")).first();
    QCOMPARE(summary.value(QLatin1String("delivered")).toInt(), filesIn(dir.path()).size());
    QCOMPARE(summary.value(QLatin1String("failed")).toInt(),
             objects(result.standardOutput, QStringLiteral("error")).size());
}

void StillsFailuresTest::unreadableListsAndFolders_areErrors_inEveryShard_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("list") << words("-o out --files-from missing.txt");
    QTest::newRow("folder") << words("-o out -r deep");
}

void StillsFailuresTest::unreadableListsAndFolders_areErrors_inEveryShard()
{
    QFETCH(const QStringList, options);
    const TestDir dir;
    const TooDeepFolder folder(dir.filePath(QStringLiteral("deep")));
    for (const char* const shard : {"1/4", "2/4", "4/4"}) {
        QProcess process;
        process.setWorkingDirectory(dir.path());
        process.start(stillsprogram::program(),
                      options + QStringList{QStringLiteral("--shard"), QLatin1String(shard)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2(errors.startsWith("stills: " + options.last().toUtf8()), errors.constData());
        QVERIFY2(errors.contains("0 pictures in out (1 error)"), errors.constData());
    }
}

void StillsFailuresTest::folder_isAnErrorOfOneShard_withoutTheOption()
{
    const TestDir dir;
    for (const int shard : {1, 2}) {
        const ProgramResult result =
            stillsprogram::run({dir.path(), QStringLiteral("-o"), dir.path(),
                                QStringLiteral("--shard"), QStringLiteral("%1/2").arg(shard)});
        QCOMPARE(result.exitCode, shard == 1 ? 1 : 0);
        QCOMPARE(result.standardError.contains("--recursive"), shard == 1);
    }
}

void StillsFailuresTest::failFast_stopsAtTheFirstError()
{
    const TestDir dir;
    const ProgramResult result = stillsprogram::run(
        {QStringLiteral("/no/such.mp4"), QStringLiteral("/no/other.mp4"), samplePath(shortSample),
         QStringLiteral("--fail-fast"), QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(filesIn(dir.path()), QStringList());
    QVERIFY(!result.standardError.contains("other.mp4"));
}

void StillsFailuresTest::quiet_leavesErrorsAlone()
{
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run({QStringLiteral("--quiet"), QStringLiteral("/no/such.mp4"),
                            samplePath(shortSample), QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.standardError.count('\n'), 1);
    QVERIFY(result.standardError.contains("/no/such.mp4"));
}

void StillsFailuresTest::progress_isQuietInAPipe_unlessAskedFor()
{
    const TestDir dir;
    const QStringList arguments{samplePath(shortSample), QStringLiteral("-o"), dir.path()};
    QVERIFY(!stillsprogram::run(arguments).standardError.contains('\r'));
    const QByteArray shown = stillsprogram::run(arguments + words("--progress")).standardError;
    QVERIFY(shown.contains("\rh264_bframes.mp4: 0/10 pictures"));
    QVERIFY(shown.endsWith("10 pictures in " + dir.path().toUtf8() + "\n"));
    const QByteArray verbose = stillsprogram::run(arguments + words("-v")).standardError;
    QCOMPARE(verbose.count('\n'), 11);
}

void StillsFailuresTest::interruption_endsAtOnce_withWholeFiles_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("file");
    QTest::newRow("Ctrl+C") << SIGINT << 130 << shortSample;
    QTest::newRow("SIGTERM") << SIGTERM << 143 << shortSample;
    QTest::newRow("Ctrl+C, 2160p") << SIGINT << 130 << largeSample;
}

void StillsFailuresTest::interruption_endsAtOnce_withWholeFiles()
{
    QFETCH(const int, signal);
    QFETCH(const int, status);
    QFETCH(const QString, file);
    const TestDir dir;
    // More work than can be finished: the same video under many names.
    QStringList arguments = words("--every 1ms -f png -o") + QStringList{dir.path()};
    for (int i = 0; i < 200; ++i) {
        arguments += QString(i, QLatin1Char('/')) + samplePath(file);
    }
    InterruptibleProcess process(arguments);
    QVERIFY(process.waitForFileIn(dir.path()));
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished());
    qInfo("Ended after %lld ms", static_cast<long long>(clock.elapsed()));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), status);
    QVERIFY(process.readAllStandardError().contains("interrupted: "));
    QVERIFY(areWhole(dir.path()));
}

void StillsFailuresTest::secondRun_afterAnInterruption_completesTheWork()
{
    const TestDir dir;
    const QStringList arguments =
        words("--every 40ms -f png --skip-existing -o") +
        QStringList{dir.path(), samplePath(QStringLiteral("h264_gop250.mp4"))};
    {
        InterruptibleProcess process(arguments);
        QVERIFY(process.waitForFileIn(dir.path()));
        ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
        QVERIFY(process.waitForFinished());
    }
    QVERIFY(stillsprogram::run(arguments).succeeded());
    QList<int> all;
    for (int i = 0; i < 520; ++i) {
        all += i;
    }
    QCOMPARE(numbersIn(dir.path()), all);
}

void StillsFailuresTest::fullDisk_isAnError_withoutHalfFiles()
{
    const TestDir dir;
    ProgramResult result;
    {
        constexpr rlim_t tooSmall = 2000;
        const testsupport::FileSizeLimit limit(tooSmall);
        result = stillsprogram::run(
            {samplePath(shortSample), QStringLiteral("-c2"), QStringLiteral("-o"), dir.path()});
    }
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(filesIn(dir.path()), QStringList());
    QVERIFY(result.standardError.contains("Cannot be written: " + dir.path().toUtf8()));
    QVERIFY(result.standardError.endsWith("(2 errors)\n"));
}

void StillsFailuresTest::folderThatCannotBeMade_isAnError()
{
    const ProgramResult result = stillsprogram::run(
        {samplePath(shortSample), QStringLiteral("-o"), QStringLiteral("/proc/no/folder")});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.standardError.startsWith("stills: /proc/no/folder: This folder cannot be made"));
}

void StillsFailuresTest::folderThatIsAFile_isAnError()
{
    const TestDir dir;
    QFile file(dir.filePath(QStringLiteral("out")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const ProgramResult result =
        stillsprogram::run({samplePath(shortSample), QStringLiteral("-o"), file.fileName()});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.standardError.contains("is no folder"));
}

void StillsFailuresTest::readOnlyFolder_isAnError()
{
    if (::geteuid() == 0) {
        QSKIP("Root may write anywhere.");
    }
    const TestDir dir;
    QVERIFY(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::ExeOwner));
    const ProgramResult result =
        stillsprogram::run({samplePath(shortSample), QStringLiteral("-o"), dir.path()});
    QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.standardError.contains("does not let you write"));
}

void StillsFailuresTest::closedPipe_endsTheRun_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("pictures") << QStringLiteral("-o -");
    QTest::newRow("objects") << QStringLiteral("--json");
}

void StillsFailuresTest::closedPipe_endsTheRun()
{
    QFETCH(const QString, options);
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("film.mp4"));
    QVERIFY(QFile::copy(samplePath(shortSample), video));
    const ProgramResult result = testsupport::runProgram(
        QStringLiteral("bash"),
        QStringList{QStringLiteral("-c"),
                    QStringLiteral("\"$@\" | head -c 10 >/dev/null; exit ${PIPESTATUS[0]}"),
                    QStringLiteral("bash"), stillsprogram::program()} +
            options.split(QLatin1Char(' ')) + words("--every 1ms -f png") + QStringList{video},
        60000, stillsprogram::environment());
    // A signal would give a status above 128.
    QCOMPARE(result.exitCode, 1);
    for (const QString& name : filesIn(dir.path())) {
        QVERIFY(!name.startsWith(QLatin1Char('.')));
    }
    QVERIFY(filesIn(dir.path()).size() < 100);
}

void StillsFailuresTest::namesWithLineBreaks_stayInOneLine()
{
    const ProgramResult result =
        stillsprogram::run({QStringLiteral("/no/such\n\u001b[31m.mp4"), QStringLiteral("--quiet")});
    QCOMPARE(result.standardError.count('\n'), 1);
    QVERIFY(!result.standardError.contains('\x1b'));
}

void StillsFailuresTest::nothingLeftOfAVideo_isAnError()
{
    const TestDir dir;
    const ProgramResult result =
        stillsprogram::run({samplePath(shortSample), QStringLiteral("--skip-start"),
                            QStringLiteral("1h"), QStringLiteral("-o"), dir.path()});
    QCOMPARE(result.exitCode, 1);
    QVERIFY(result.standardError.contains("There is no picture at the positions"));
}

QTEST_GUILESS_MAIN(StillsFailuresTest)

#include "StillsFailuresTest.moc"
