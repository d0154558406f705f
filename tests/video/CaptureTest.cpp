#include "video/FrameGrabber.h"

#include "tests/qtav/Playing.h"

#include <QTest>

#include <algorithm>

using namespace playing;
using testsupport::Sample;

namespace {

/// The player's capture of the picture on screen.
QImage captured(Stage& stage)
{
    QSignalSpy spy(stage.player.videoCapture(), &QtAV::VideoCapture::imageCaptured);
    stage.player.videoCapture()->capture();
    return spy.wait(patienceMs) ? spy.at(0).at(0).value<QImage>() : QImage();
}

/// The result of a batch job for that time.
QImage extracted(FrameGrabber& grabber, qint64 ms)
{
    QSignalSpy spy(&grabber, &FrameGrabber::frameExtracted);
    grabber.extractInternal(ms);
    if (spy.isEmpty()) {
        return {};
    }
    const auto frame = spy.at(0).at(0).value<QtAV::VideoFrame>();
    return frame.toImage(frame.imageFormat());
}

} // namespace

/// What you see is what you get: the player's picture equals that of a batch job, to the byte.
class CaptureTest : public QObject
{
    Q_OBJECT

private slots:
    void capture_isWhatIsExtracted_forEachFormat_data();
    void capture_isWhatIsExtracted_forEachFormat();
};

void CaptureTest::capture_isWhatIsExtracted_forEachFormat_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void CaptureTest::capture_isWhatIsExtracted_forEachFormat()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const int last = sample.frames - 1;
    // From here on an intra-refresh stream has complete pictures; before, batch jobs take no frame.
    const int middle = last * 5 / 7;
    Stage stage;
    QVERIFY(stage.open(file));
    FrameGrabber grabber;
    grabber.setSource(testsupport::samplePath(file));
    grabber.setPrecision(0);

    const auto isTheFrame = [&](int n) {
        const qint64 ms = testsupport::frameTimeMs(sample, n);
        const QImage image = captured(stage);
        return stage.number() == sample.firstNumber + n && stage.player.displayPosition() == ms &&
               !image.isNull() && image.size() == testsupport::displaySizeOf(sample, n) &&
               image == extracted(grabber, ms);
    };
    QVERIFY(isTheFrame(0));
    QVERIFY(stage.seek(testsupport::frameTimeMs(sample, middle)));
    QVERIFY(isTheFrame(middle));
    if (middle > 0) {
        QVERIFY(stage.stepBackward());
        QVERIFY(isTheFrame(middle - 1));
        QVERIFY(stage.stepForward());
        QVERIFY(stage.stepForward());
        QVERIFY(isTheFrame(middle + 1));
    }
    QVERIFY(stage.seek(stage.player.duration()));
    QVERIFY(isTheFrame(last));
}

QTEST_GUILESS_MAIN(CaptureTest)
#include "CaptureTest.moc"
