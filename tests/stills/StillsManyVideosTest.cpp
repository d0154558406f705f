#include "tests/stills/StillsProgram.h"

#include "tests/support/Samples.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

using stillsprogram::filesIn;
using stillsprogram::objects;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

constexpr int videoCount = testsupport::isSanitized ? 200 : 1000;

/// Every tenth one is broken.
bool isBroken(int i)
{
    return i % 10 == 7;
}

QString videoName(int i)
{
    return QStringLiteral("clip%1.mp4").arg(i, 4, 10, QLatin1Char('0'));
}

void makeVideos(const QString& folder)
{
    for (int i = 0; i < videoCount; ++i) {
        const QString sample =
            isBroken(i) ? QStringLiteral("text.mp4") : QStringLiteral("h264_one_frame.mp4");
        if (!QFile::link(samplePath(sample), QDir(folder).filePath(videoName(i)))) {
            qFatal("Cannot make a link in %s", qUtf8Printable(folder));
        }
    }
}

} // namespace

class StillsManyVideosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyVideo_isAccountedFor_alsoBrokenAndVanishedOnes();
    void shards_doEveryVideoOnce();
};

void StillsManyVideosTest::everyVideo_isAccountedFor_alsoBrokenAndVanishedOnes()
{
    const TestDir dir;
    const QString videos = dir.filePath(QStringLiteral("videos"));
    const QString out = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(videos));
    makeVideos(videos);
    stillsprogram::InterruptibleProcess process({QStringLiteral("-r"), videos,
                                                 QStringLiteral("-c1"), QStringLiteral("--json"),
                                                 QStringLiteral("-o"), out});
    QVERIFY(process.waitForReadyRead());
    // The program is running; these are removed before their turn, or while being read.
    for (int i = videoCount - 100; i < videoCount; ++i) {
        QVERIFY(QFile::remove(QDir(videos).filePath(videoName(i))));
    }
    QVERIFY(process.waitForFinished(300000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 1);

    const QByteArray output = process.readAllStandardOutput();
    const auto told = objects(output, QStringLiteral("video"));
    QCOMPARE(told.size(), videoCount);
    int delivered = 0;
    for (int i = 0; i < videoCount; ++i) {
        const QJsonObject video = told.at(i);
        QVERIFY(video.value(QLatin1String("video")).toString().endsWith(videoName(i)));
        const int came = video.value(QLatin1String("delivered")).toInt();
        QCOMPARE(came + video.value(QLatin1String("failed")).toInt(), 1);
        if (i < videoCount - 100) {
            QCOMPARE(came, isBroken(i) ? 0 : 1);
        }
        delivered += came;
    }
    QCOMPARE(filesIn(out).size(), delivered);
    const QJsonObject summary = objects(output, QStringLiteral("summary")).first();
    QCOMPARE(summary.value(QLatin1String("videos")).toInt(), videoCount);
    QCOMPARE(summary.value(QLatin1String("delivered")).toInt(), delivered);
    QCOMPARE(summary.value(QLatin1String("failed")).toInt(), videoCount - delivered);
    QCOMPARE(process.readAllStandardError().count('\n'), videoCount - delivered);
}

void StillsManyVideosTest::shards_doEveryVideoOnce()
{
    const TestDir dir;
    const QString videos = dir.filePath(QStringLiteral("videos"));
    const QString out = dir.filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(videos));
    makeVideos(videos);
    int told = 0;
    for (int shard = 1; shard <= 4; ++shard) {
        const auto result =
            stillsprogram::runJson({QStringLiteral("-r"), videos, QStringLiteral("-c1"),
                                    QStringLiteral("--shard"), QStringLiteral("%1/4").arg(shard)},
                                   out);
        told += objects(result.standardOutput, QStringLiteral("video")).size();
    }
    QCOMPARE(told, videoCount);
    QCOMPARE(filesIn(out).size(), videoCount * 9 / 10);
}

QTEST_GUILESS_MAIN(StillsManyVideosTest)

#include "StillsManyVideosTest.moc"
