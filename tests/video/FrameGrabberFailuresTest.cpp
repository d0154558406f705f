#include "video/FrameGrabber.h"

#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/GrabberSignals.h"
#include "tests/video/MakeVideo.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <chrono>
#include <thread>

using grabbersignals::lastFrame;
using grabbersignals::lastNumber;
using grabbersignals::SignalLog;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

const QString goodSample = QStringLiteral("h264_bframes.mp4");
const QString longGopSample = QStringLiteral("h264_gop250.mp4");

} // namespace

class FrameGrabberFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extract_givesTheNextFrame_howeverFarAway();
    void extract_givesTheNextFrame_withOneKeyFrameInTheVideo();
    void extract_fails_whenTheFileCannotBeOpened_data();
    void extract_fails_whenTheFileCannotBeOpened();
    void extract_endsInOneSignal_forBrokenFiles_data();
    void extract_endsInOneSignal_forBrokenFiles();
    void grabber_isUsable_afterAFailure();
    void abort_isForgotten_beforeAnExtraction();
    void abort_endsARunningExtraction();
};

/// However far behind the target the next frame is, it is the one shown next.
void FrameGrabberFailuresTest::extract_givesTheNextFrame_howeverFarAway()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(QStringLiteral("h264_1fps.mp4")));
    grabber.setPrecision(100);
    const SignalLog log(grabber);
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    QTest::ignoreMessage(QtWarningMsg, "out pts out of range. diff=501, range=100");
    grabber.extractInternal(6499);
    QCOMPARE(log.names, QStringList{QStringLiteral("frameExtracted")});
    QCOMPARE(lastFrame(frames).timestamp(), 7.0);
}

void FrameGrabberFailuresTest::extract_givesTheNextFrame_withOneKeyFrameInTheVideo()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("slow.mov"));
    testsupport::makeVideoWithOneKeyFrame(path, 12, 2000);
    FrameGrabber grabber;
    grabber.setSource(path);
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(4100);
    QCOMPARE(lastFrame(frames).timestamp(), 6.0);
}

void FrameGrabberFailuresTest::extract_fails_whenTheFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no name") << QString();
    QTest::newRow("missing") << QStringLiteral("/nowhere/missing.mp4");
    QTest::newRow("folder") << QDir::tempPath();
    for (const Sample& sample : testsupport::noVideoSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
    }
    for (const Sample& sample : testsupport::brokenSamples()) {
        if (sample.has(testsupport::Trait::Unopenable)) {
            QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
        }
    }
}

void FrameGrabberFailuresTest::extract_fails_whenTheFileCannotBeOpened()
{
    QFETCH(const QString, path);
    FrameGrabber grabber;
    grabber.setSource(path);
    const SignalLog log(grabber);
    const QSignalSpy errors(&grabber, &FrameGrabber::error);
    grabber.extractInternal(2000);
    QCOMPARE(log.names, QStringList{QStringLiteral("error")});
    QCOMPARE(errors.first().first().toString(), QStringLiteral("Cannot open file"));
}

void FrameGrabberFailuresTest::extract_endsInOneSignal_forBrokenFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QStringLiteral("/nowhere/missing.mp4");
    for (const Sample& sample : testsupport::brokenSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << samplePath(sample.file);
    }
}

void FrameGrabberFailuresTest::extract_endsInOneSignal_forBrokenFiles()
{
    QFETCH(const QString, path);
    FrameGrabber grabber;
    grabber.setPrecision(100);
    grabber.setSource(path);
    const SignalLog log(grabber);
    int extractions = 0;
    for (const qint64 position : {0, 700, 1500, 100, 3300, 100000, 900}) {
        grabber.extractInternal(position);
        ++extractions;
        QCOMPARE(log.names.size(), extractions);
        QVERIFY(log.names.last() == QLatin1String("frameExtracted") ||
                log.names.last() == QLatin1String("error"));
    }
}

void FrameGrabberFailuresTest::grabber_isUsable_afterAFailure()
{
    const TestDir dir;
    FrameGrabber grabber;
    grabber.setSource(dir.filePath(QStringLiteral("missing.mp4")));
    grabber.extractInternal(0);
    grabber.setSource(samplePath(goodSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(1600);
    QCOMPARE(lastNumber(frames), 40);
}

void FrameGrabberFailuresTest::abort_isForgotten_beforeAnExtraction()
{
    FrameGrabber grabber;
    grabber.setSource(samplePath(goodSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    grabber.abort();
    grabber.extractInternal(1600);
    QCOMPARE(frames.count(), 1);
}

/// The arrival of the request depends on the threads: it is tried with rising delays until it was
/// noticed in the longest phase, decoding towards the target.
void FrameGrabberFailuresTest::abort_endsARunningExtraction()
{
    constexpr qint64 position = 9400;
    const QString beforeDecoding = QStringLiteral("abort seek before read");
    const QString atKeyFrame = QStringLiteral("abort seek before decoding key frames");
    const QString decoding = QStringLiteral("abort seek after key frame before read");
    const QStringList reasons{beforeDecoding, atKeyFrame, decoding};

    FrameGrabber grabber;
    grabber.setSource(samplePath(longGopSample));
    const QSignalSpy frames(&grabber, &FrameGrabber::frameExtracted);
    const QSignalSpy aborts(&grabber, &FrameGrabber::aborted);
    bool seenWhileDecoding = false;
    for (int delay = 0; delay < 2000 && !seenWhileDecoding; ++delay) {
        const int answers = frames.count() + aborts.count();
        std::thread aborter([&grabber, delay] {
            std::this_thread::sleep_for(std::chrono::microseconds(100 * delay));
            grabber.abort();
        });
        grabber.extractInternal(position);
        aborter.join();
        QCOMPARE(frames.count() + aborts.count(), answers + 1);
        if (!aborts.isEmpty()) {
            const QString message = aborts.last().first().toString();
            const QString prefix = QStringLiteral("Abort at position 9400: ");
            QVERIFY2(message.startsWith(prefix), qPrintable(message));
            QVERIFY2(reasons.contains(message.mid(prefix.size())), qPrintable(message));
            seenWhileDecoding = message.endsWith(decoding);
        }
    }
    QVERIFY(seenWhileDecoding);

    grabber.extractInternal(position);
    QCOMPARE(lastNumber(frames), 235);
}

QTEST_GUILESS_MAIN(FrameGrabberFailuresTest)
#include "FrameGrabberFailuresTest.moc"
