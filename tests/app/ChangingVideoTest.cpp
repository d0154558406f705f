#include "tests/app/CommandLine.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTest>

#include <functional>

using commandline::copySample;
using commandline::imagesIn;
using commandline::numbersIn;
using testsupport::samplePath;
using testsupport::TestDir;

using Change = std::function<bool(const QString& path)>;
Q_DECLARE_METATYPE(Change)

namespace {

constexpr int patienceMs = 60000;

/// Like the start of a download or a recording under the same name.
bool cutToNothing(const QString& path)
{
    return QFile::resize(path, 0);
}

/// Like cutToNothing(), after that has progressed for a while.
bool overwrite(const QString& path)
{
    QFile other(samplePath(QStringLiteral("vp9.webm")));
    QFile file(path);
    return other.open(QIODevice::ReadOnly) &&
           file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(other.readAll()) == other.size();
}

/// Like programs that save by writing a new file first.
bool replaceByFewerStreams(const QString& path)
{
    const QString beside = path + QStringLiteral(".mp4");
    return QFile::copy(samplePath(QStringLiteral("sound_only.mp4")), beside) &&
           QFile::remove(path) && QFile::rename(beside, path);
}

/// The contents of the finished images.
QHash<QString, QByteArray> contents(const QString& folder)
{
    QHash<QString, QByteArray> result;
    for (const QString& name : QDir(folder).entryList(QDir::Files)) {
        QFile image(QDir(folder).filePath(name));
        if (image.open(QIODevice::ReadOnly)) {
            result.insert(name, image.readAll());
        }
    }
    return result;
}

/// Starts taking images; returns true once some exist.
bool startTaking(QProcess& process, const QString& video, const QString& destination)
{
    process.setProcessEnvironment(commandline::environment());
    process.start(commandline::program(),
                  {video, destination, QStringLiteral("--count"), QStringLiteral("12"),
                   QStringLiteral("--skipfront"), QStringLiteral("0"), QStringLiteral("--skipback"),
                   QStringLiteral("0")});
    const auto someAreThere = [&destination] { return imagesIn(destination).size() >= 3; };
    return QTest::qWaitFor(someAreThere, patienceMs);
}

} // namespace

/// Videos that other programs change while the command line takes images from them.
class ChangingVideoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imagesMadeBefore_stay_whenTheVideoChanges_data();
    void imagesMadeBefore_stay_whenTheVideoChanges();
};

void ChangingVideoTest::imagesMadeBefore_stay_whenTheVideoChanges_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isLost");
    for (const char* const sample : {"h264_gop250.mp4", "h264_bframes.mkv", "mpeg2.ts",
                                     "mpeg4_xvid_packed.avi", "mpeg2.mpg"}) {
        const QString name = QString::fromLatin1(sample);
        QTest::addRow("%s, cut", sample) << name << Change(cutToNothing) << true;
        QTest::addRow("%s, overwritten", sample) << name << Change(overwrite) << true;
        // The open file does not change.
        QTest::addRow("%s, replaced", sample) << name << Change(replaceByFewerStreams) << false;
    }
}

void ChangingVideoTest::imagesMadeBefore_stay_whenTheVideoChanges()
{
    QFETCH(const QString, sample);
    QFETCH(const Change, change);
    QFETCH(const bool, isLost);
    const TestDir videos;
    const TestDir destination;
    const QString video = copySample(sample, videos.path());
    QProcess process;
    QVERIFY(startTaking(process, video, destination.path()));
    QVERIFY(change(video));
    const QHash<QString, QByteArray> before = contents(destination.path());
    QVERIFY(process.waitForFinished(patienceMs));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);

    const QHash<QString, QByteArray> after = contents(destination.path());
    for (auto image = before.begin(); image != before.end(); ++image) {
        QVERIFY2(after.value(image.key()) == image.value(), qPrintable(image.key()));
    }
    const QByteArray errors = process.readAllStandardError();
    QCOMPARE(errors.contains("FrameGrabber failed to"), isLost);
}

QTEST_GUILESS_MAIN(ChangingVideoTest)
#include "ChangingVideoTest.moc"
