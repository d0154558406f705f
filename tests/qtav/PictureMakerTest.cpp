#include "qtav/widgets/PictureMaker.h"

#include "tests/qtav/Decoding.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"

#include <QSemaphore>
#include <QTest>

using QtAV::PictureMaker;
using QtAV::VideoFrame;
using testsupport::patienceMs;

/// The thread that makes pictures from frames.
class PictureMakerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void picture_isThatOfTheFrame_atItsSize();
    void transparentParts_lieOnBlack();
    void newestRequest_isCarriedOut_whateverWasAskedBefore();
    void cancelledRequest_givesNoPicture();
    void maker_mayEnd_withRequestsWaiting();

private:
    QList<VideoFrame> m_frames;
};

void PictureMakerTest::initTestCase()
{
    decoding::Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    while (m_frames.size() < 12) {
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet && player.decoder->decode(*packet));
        const VideoFrame frame = player.decoder->frame();
        if (frame.isValid()) {
            m_frames.append(frame);
        }
    }
}

void PictureMakerTest::picture_isThatOfTheFrame_atItsSize()
{
    QSemaphore woken;
    PictureMaker maker([&woken] { woken.release(); });
    QVERIFY(!maker.take());
    quint64 serial = 0;
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGBX8888}) {
        for (const QSize size : {QSize(320, 240), QSize(160, 120), QSize(480, 360)}) {
            maker.request({m_frames.at(3), size, format, ++serial});
            QVERIFY(woken.tryAcquire(1, patienceMs));
            const auto picture = maker.take();
            QVERIFY(picture);
            QCOMPARE(picture->serial, serial);
            QCOMPARE(picture->image.size(), size);
            QCOMPARE(picture->image.format(), format);
            QCOMPARE(picture->image, m_frames.at(3).toImage(format, size));
            QVERIFY(!maker.take());
        }
    }
}

void PictureMakerTest::transparentParts_lieOnBlack()
{
    decoding::Player player(testsupport::samplePath(QStringLiteral("vp9_alpha.webm")));
    const auto packet = player.nextVideoPacket();
    QVERIFY(packet);
    const VideoFrame frame = player.decodeKeyFrame(*packet);
    const QSize size = frame.displaySize();
    QSemaphore woken;
    PictureMaker maker([&woken] { woken.release(); });
    maker.request({frame, size, QImage::Format_RGB32, 1});
    QVERIFY(woken.tryAcquire(1, patienceMs));
    const QImage image = maker.take()->image;
    const QPoint transparent(size.width() / 4, size.height() * 7 / 8);
    QCOMPARE(image.pixel(transparent), qRgb(0, 0, 0));
    const QPoint half(size.width() * 7 / 8, size.height() * 7 / 8);
    const QRgb own = frame.toImage().pixel(half);
    QVERIFY(qAbs(qRed(image.pixel(half)) - qRed(own) * qAlpha(own) / 255) <= 1);
}

void PictureMakerTest::newestRequest_isCarriedOut_whateverWasAskedBefore()
{
    QSemaphore woken;
    PictureMaker maker([&woken] { woken.release(); });
    quint64 serial = 0;
    for (int round = 0; round < 50; ++round) {
        for (const VideoFrame& frame : m_frames) {
            maker.request({frame, {64, 48}, QImage::Format_RGB32, ++serial});
        }
    }
    quint64 last = 0;
    int pictures = 0;
    while (last < serial) {
        QVERIFY(woken.tryAcquire(1, patienceMs));
        if (const auto picture = maker.take()) {
            QVERIFY(picture->serial > last);
            last = picture->serial;
            ++pictures;
        }
    }
    QVERIFY(pictures < int(serial));
}

void PictureMakerTest::cancelledRequest_givesNoPicture()
{
    QSemaphore woken;
    PictureMaker maker([&woken] { woken.release(); });
    maker.request({m_frames.at(0), {320, 240}, QImage::Format_RGB32, 1});
    QVERIFY(woken.tryAcquire(1, patienceMs));
    maker.cancel();
    QVERIFY(!maker.take());
}

void PictureMakerTest::maker_mayEnd_withRequestsWaiting()
{
    for (int i = 0; i < 20; ++i) {
        PictureMaker maker([] {});
        for (const VideoFrame& frame : m_frames) {
            maker.request({frame, {320, 240}, QImage::Format_RGB32, 1});
        }
    }
}

QTEST_GUILESS_MAIN(PictureMakerTest)
#include "PictureMakerTest.moc"
