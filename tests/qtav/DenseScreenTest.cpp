#include "tests/qtav/Decoding.h"
#include "tests/support/Patience.h"

#include <QtAV/VideoOutput.h>

#include <QApplication>
#include <QTest>
#include <QWidget>

using QtAV::VideoOutput;
using testsupport::patienceMs;

namespace {

constexpr int pixelRatio = 2;

/// The pixels that an output shows in a widget of that size, once it has made the picture for it.
QImage shownIn(const QSize& size, const QtAV::VideoFrame& frame)
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(size);
    output.present(frame);
    output.widget()->grab(); // which lets the widget know its size
    if (!QTest::qWaitFor([&output] { return output.isUpToDate(); }, patienceMs)) {
        qFatal("no picture comes");
    }
    QImage image = output.widget()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1.0);
    return image;
}

} // namespace

/// What is seen on a screen with two pixels for each that windows count in.
class DenseScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void picture_isMadeInTheScreensPixels();
};

void DenseScreenTest::picture_isMadeInTheScreensPixels()
{
    decoding::Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(player.isReady());
    const QtAV::VideoFrame frame = player.decodeKeyFrame(*player.nextVideoPacket());
    const QSize whole = frame.displaySize();
    QCOMPARE(qApp->devicePixelRatio(), double(pixelRatio));
    QCOMPARE(shownIn(whole / pixelRatio, frame), frame.toImage(QImage::Format_RGB32));
    QCOMPARE(shownIn(whole / 2 / pixelRatio, frame),
             frame.toImage(QImage::Format_RGB32, whole / 2));
}

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(pixelRatio));
    const QApplication application(argc, argv);
    DenseScreenTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DenseScreenTest.moc"
