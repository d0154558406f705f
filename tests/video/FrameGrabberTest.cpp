#include "video/FrameGrabber.h"

#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/GrabberSignals.h"
#include "tests/video/MakeVideo.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using grabbersignals::lastFrame;
using grabbersignals::lastNumber;
using grabbersignals::SignalLog;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

const QString bframesSample = QStringLiteral("h264_bframes.mp4");

/// Number of open handles of this process on the file.
int openHandles(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    int count = 0;
    const QDir handles(QStringLiteral("/proc/self/fd"));
    for (const QFileInfo& handle : handles.entryInfoList(QDir::Files | QDir::System)) {
        count += handle.symLinkTarget() == target ? 1 : 0;
    }
    return count;
}

} // namespace

class FrameGrabberTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void properties_haveTheirDefaults_whenNew();
    void properties_areReachableByName();
    void setSource_emitsOnce_forANewNameOnly();
    void setSource_closesTheFile_forANewName();
    void setPosition_changesNothing_withinThePrecision();
    void setPosition_takesEffect_atExactlyThePrecision();
    void setPosition_takesAnyNumber();
    void setPosition_changesNothing_withoutVideo();
    void setPosition_worksAgain_afterAnotherSource();
    void setPrecision_keepsTheNumber_whenNegative();
    void setPrecision_emitsNothing_forTheSameNumber();
    void setPrecision_holdsAcrossOpening_whenNotNegative();
    void precision_followsTheLength_whenAutomatic_data();
    void precision_followsTheLength_whenAutomatic();
    void getDuration_opensTheFile();
    void getDuration_isZero_whenNothingCanBeOpened();
    void extract_takesThePosition();
    void extract_tellsOfTheNewPrecision_beforeTheFrame();
    void extract_givesTheKeyFrame_slightlyBeforeTheTarget();
    void extract_givesTheKeyFrame_slightlyAfterTheTarget();
    void extract_logsTheFrameThatItFound();
    void extract_keepsTheFileOpen_insideTheVideo();
    void extract_closesTheFile_atTheEnd();
    void safeReleaseResource_closesTheFile();
};

void FrameGrabberTest::properties_haveTheirDefaults_whenNew()
{
    const FrameGrabber grabber;
    QCOMPARE(grabber.getSource(), QString());
    QCOMPARE(grabber.getPosition(), -1000);
    QCOMPARE(grabber.getPrecision(), 500);
}

void FrameGrabberTest::properties_areReachableByName()
{
    FrameGrabber grabber;
    QVERIFY(grabber.setProperty("source", QStringLiteral("a.mp4")));
    QVERIFY(grabber.setProperty("position", 12345));
    QVERIFY(grabber.setProperty("precision", 77));
    QCOMPARE(grabber.property("source").toString(), QStringLiteral("a.mp4"));
    QCOMPARE(grabber.property("position").toLongLong(), 12345);
    QCOMPARE(grabber.property("precision").toInt(), 77);
}

void FrameGrabberTest::setSource_emitsOnce_forANewNameOnly()
{
    FrameGrabber grabber;
    const SignalLog log(grabber);
    grabber.setSource(QStringLiteral("a.mp4"));
    grabber.setSource(QStringLiteral("a.mp4"));
    QCOMPARE(log.names, QStringList{QStringLiteral("sourceChanged")});
}

void FrameGrabberTest::setSource_closesTheFile_forANewName()
{
    const QString path = samplePath(bframesSample);
    FrameGrabber grabber;
    grabber.setSource(path);
    QVERIFY(grabber.getDuration() > 0);
    QCOMPARE(openHandles(path), 1);
    grabber.setSource(QStringLiteral("another.mp4"));
    QCOMPARE(openHandles(path), 0);
}

void FrameGrabberTest::setPosition_changesNothing_withinThePrecision()
{
    FrameGrabber grabber;
    grabber.setPosition(5000);
    const SignalLog log(grabber);
    grabber.setPosition(5499);
    grabber.setPosition(4501);
    grabber.setPosition(5000);
    QCOMPARE(grabber.getPosition(), 5000);
    QVERIFY(log.names.isEmpty());
}

void FrameGrabberTest::setPosition_takesEffect_atExactlyThePrecision()
{
    FrameGrabber grabber;
    grabber.setPosition(5000);
    const SignalLog log(grabber);
    grabber.setPosition(5500);
    QCOMPARE(grabber.getPosition(), 5500);
    grabber.setPosition(5000);
    QCOMPARE(grabber.getPosition(), 5000);
    QCOMPARE(log.names.size(), 2);
}

void FrameGrabberTest::setPosition_takesAnyNumber()
{
    FrameGrabber grabber;
    for (const qint64 position : {std::numeric_limits<qint64>::max(),
                                  std::numeric_limits<qint64>::min(), qint64(0), qint64(-500)}) {
        grabber.setPosition(position);
        QCOMPARE(grabber.getPosition(), position);
    }
}

void FrameGrabberTest::setPosition_changesNothing_withoutVideo()
{
    for (const Sample& sample : testsupport::noVideoSamples()) {
        FrameGrabber grabber;
        grabber.setSource(samplePath(sample.file));
        QVERIFY(!grabber.checkAndOpen());
        const SignalLog log(grabber);
        grabber.setPosition(5000);
        QCOMPARE(grabber.getPosition(), -1000);
        QVERIFY(log.names.isEmpty());
    }
}

void FrameGrabberTest::setPosition_worksAgain_afterAnotherSource()
{
    for (const Sample& sample : testsupport::noVideoSamples()) {
        FrameGrabber grabber;
        grabber.setSource(samplePath(sample.file));
        QVERIFY(!grabber.checkAndOpen());
        grabber.setSource(samplePath(bframesSample));
        grabber.setPosition(2000);
        QCOMPARE(grabber.getPosition(), 2000);
    }
}

void FrameGrabberTest::setPrecision_keepsTheNumber_whenNegative()
{
    FrameGrabber grabber;
    grabber.setPrecision(123);
    const SignalLog log(grabber);
    grabber.setPrecision(-1);
    QCOMPARE(grabber.getPrecision(), 123);
    QCOMPARE(log.names, QStringList{QStringLiteral("precisionChanged")});

    grabber.setSource(samplePath(bframesSample));
    QVERIFY(grabber.checkAndOpen());
    QCOMPARE(grabber.getPrecision(), 250);
}

void FrameGrabberTest::setPrecision_emitsNothing_forTheSameNumber()
{
    FrameGrabber grabber;
    const SignalLog log(grabber);
    grabber.setPrecision(500);
    QVERIFY(log.names.isEmpty());

    // The automatic choice is still active.
    grabber.setSource(samplePath(bframesSample));
    QVERIFY(grabber.checkAndOpen());
    QCOMPARE(grabber.getPrecision(), 250);
}

void FrameGrabberTest::setPrecision_holdsAcrossOpening_whenNotNegative()
{
    FrameGrabber grabber;
    grabber.setPrecision(0);
    grabber.setSource(samplePath(bframesSample));
    QVERIFY(grabber.checkAndOpen());
    QCOMPARE(grabber.getPrecision(), 0);
}

void FrameGrabberTest::precision_followsTheLength_whenAutomatic_data()
{
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("frameMs");
    QTest::addColumn<int>("precision");
    QTest::newRow("9999 ms") << 9 << 1111 << 250;
    QTest::newRow("10000 ms") << 10 << 1000 << 500;
}

void FrameGrabberTest::precision_followsTheLength_whenAutomatic()
{
    QFETCH(const int, frames);
    QFETCH(const int, frameMs);
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("video.mov"));
    testsupport::makeVideo(path, frames, frameMs);
    FrameGrabber grabber;
    grabber.setSource(path);
    QCOMPARE(grabber.getDuration(), frames * frameMs);
    QTEST(grabber.getPrecision(), "precision");
}

void FrameGrabberTest::getDuration_opensTheFile()
{
    const QString path = samplePath(bframesSample);
    FrameGrabber grabber;
    grabber.setSource(path);
    QCOMPARE(openHandles(path), 0);
    QCOMPARE(grabber.getDuration(), 4000);
    QCOMPARE(openHandles(path), 1);
}

void FrameGrabberTest::getDuration_isZero_whenNothingCanBeOpened()
{
    const TestDir dir;
    FrameGrabber grabber;
    const SignalLog log(grabber);
    QCOMPARE(grabber.getDuration(), 0);
    grabber.setSource(dir.filePath(QStringLiteral("missing.mp4")));
    QCOMPARE(grabber.getDuration(), 0);
    QCOMPARE(log.names, QStringList{QStringLiteral("sourceChanged")});
}

void FrameGrabberTest::extract_takesThePosition()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(bframesSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.setPosition(1600);
    grabber.extract();
    QCOMPARE(frames.count(), 1);
    QCOMPARE(lastNumber(frames), 40);
    QCOMPARE(lastFrame(frames).timestamp(), 1.6);
}

void FrameGrabberTest::extract_tellsOfTheNewPrecision_beforeTheFrame()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(bframesSample));
    const SignalLog log(grabber);
    grabber.extractInternal(1600);
    grabber.extractInternal(2600);
    const QStringList expected{QStringLiteral("precisionChanged"), QStringLiteral("frameExtracted"),
                               QStringLiteral("frameExtracted")};
    QCOMPARE(log.names, expected);
}

void FrameGrabberTest::extract_givesTheKeyFrame_slightlyBeforeTheTarget()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(bframesSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(1250);
    QCOMPARE(lastNumber(frames), 25);
    grabber.extractInternal(1251);
    QCOMPARE(lastNumber(frames), 32);
}

/// The only key frame is not at the start of the timeline, so a seek can end behind its target.
void FrameGrabberTest::extract_givesTheKeyFrame_slightlyAfterTheTarget()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(bframesSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(-250);
    QCOMPARE(frames.count(), 1);
    QCOMPARE(lastNumber(frames), 0);
}

void FrameGrabberTest::extract_logsTheFrameThatItFound()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(bframesSample));
    QTest::ignoreMessage(QtDebugMsg, "FrameGrabber: key frame found @1 diff=-100. format: yuv420p");
    grabber.extractInternal(1100);
    QTest::ignoreMessage(QtDebugMsg, "got frame at 1.600000s, diff=10");
    grabber.extractInternal(1590);
}

void FrameGrabberTest::extract_keepsTheFileOpen_insideTheVideo()
{
    const QString path = samplePath(bframesSample);
    FrameGrabber grabber;
    grabber.setSource(path);
    grabber.extractInternal(0);
    QCOMPARE(openHandles(path), 1);
    grabber.extractInternal(1600);
    QCOMPARE(openHandles(path), 1);
}

void FrameGrabberTest::extract_closesTheFile_atTheEnd()
{
    const QString path = samplePath(bframesSample);
    FrameGrabber grabber;
    grabber.setSource(path);
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(5000);
    QCOMPARE(lastNumber(frames), 99);
    QCOMPARE(openHandles(path), 0);

    grabber.extractInternal(1600);
    QCOMPARE(lastNumber(frames), 40);
    QCOMPARE(openHandles(path), 1);
}

void FrameGrabberTest::safeReleaseResource_closesTheFile()
{
    const QString path = samplePath(bframesSample);
    FrameGrabber grabber;
    grabber.setSource(path);
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(1600);
    grabber.safeReleaseResource();
    QCOMPARE(openHandles(path), 0);
    grabber.extractInternal(1600);
    QCOMPARE(frames.count(), 2);
    QCOMPARE(lastNumber(frames), 40);
}

QTEST_GUILESS_MAIN(FrameGrabberTest)
#include "FrameGrabberTest.moc"
