#include "tests/qtav/Playing.h"
#include "tests/support/FrameNumber.h"

#include <QtAVWidgets>

#include <QApplication>
#include <QTest>
#include <QWidget>

#include <algorithm>

using namespace playing;
using QtAV::VideoOutput;
using testsupport::Sample;

namespace {

/// The first frame of a sample.
QtAV::VideoFrame firstFrame(const QString& file)
{
    decoding::Player player(testsupport::samplePath(file));
    const auto packet = player.isReady() ? player.nextVideoPacket() : std::nullopt;
    return packet ? player.decodeKeyFrame(*packet) : QtAV::VideoFrame();
}

QImage grabbed(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// What an output shows once it has made the picture for its widget's size.
QImage shownBy(const VideoOutput& output)
{
    grabbed(*output.widget()); // which lets the widget know its size
    if (!QTest::qWaitFor([&output] { return output.isUpToDate(); }, patienceMs)) {
        qFatal("no picture comes");
    }
    return grabbed(*output.widget());
}

constexpr QRgb black = qRgb(0, 0, 0);

} // namespace

/// What the widget shows.
class VideoOutputTest : public QObject
{
    Q_OBJECT

private slots:
    void widget_isMade_withAndWithoutOpenGL();
    void widget_isBlack_withoutAFrame();
    void frame_isShown_asItsImage_inItsOwnSize();
    void frame_isLetterboxed_whenTheWidgetIsWiderOrHigher();
    void frame_isSeenUprightAndSquare_data();
    void frame_isSeenUprightAndSquare();
    void newFrame_replacesTheOld_andNoFrameLeavesBlack();
    void frame_followsTheWidgetsSize();
    void tinyWidget_paintsWithoutHarm();
    void output_goesOn_withoutItsWidget();
    void openGL_drawsWhatRasterDraws();
    void enlargedFrame_hasSharpPixels_inItsPlace();
    void frameInFullSize_isShownPixelByPixel_inItsPlace();
    void picture_movesAtOnce_whenItsPlaceDoes();
    void player_showsItsFrames_inTheWidget();
    void oldPicture_staysScaled_untilTheNewOneComes();
    void present_returnsAtOnce_andOnlyTheNewestFrameIsShown();
    void screenSize_isToldInPixels_whenTheWidgetChanges();
};

void VideoOutputTest::widget_isMade_withAndWithoutOpenGL()
{
    QtAV::Widgets::registerRenderers();
    VideoOutput automatic;
    QVERIFY(automatic.widget());
    VideoOutput raster(VideoOutput::Drawing::Raster);
    QVERIFY(raster.widget());
    QCOMPARE(raster.widget()->metaObject()->className(), "QtAV::RasterWidget");
}

void VideoOutputTest::widget_isBlack_withoutAFrame()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(64, 48);
    QImage expected(64, 48, QImage::Format_RGB32);
    expected.fill(black);
    QCOMPARE(shownBy(output), expected);
}

void VideoOutputTest::frame_isShown_asItsImage_inItsOwnSize()
{
    const QtAV::VideoFrame frame = firstFrame(QStringLiteral("h264_bframes.mp4"));
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(frame.displaySize());
    output.present(frame);
    QCOMPARE(shownBy(output), frame.toImage(QImage::Format_RGB32));
}

void VideoOutputTest::frame_isLetterboxed_whenTheWidgetIsWiderOrHigher()
{
    const QtAV::VideoFrame frame = firstFrame(QStringLiteral("h264_bframes.mp4")); // 320 x 240
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.present(frame);

    output.widget()->resize(520, 240);
    QImage image = shownBy(output);
    QCOMPARE(image.copy(100, 0, 320, 240), frame.toImage(QImage::Format_RGB32));
    QCOMPARE(image.pixel(99, 120), black);
    QCOMPARE(image.pixel(420, 120), black);

    output.widget()->resize(320, 300);
    image = shownBy(output);
    QCOMPARE(image.copy(0, 30, 320, 240), frame.toImage(QImage::Format_RGB32));
    QCOMPARE(image.pixel(160, 29), black);
    QCOMPARE(image.pixel(160, 270), black);
}

void VideoOutputTest::frame_isSeenUprightAndSquare_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"turned_90.mp4", "turned_180.mp4", "mirrored_left_right.mp4",
                             "turned_90_anamorphic.mp4", "anamorphic_pal.mpg"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void VideoOutputTest::frame_isSeenUprightAndSquare()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(sample.displaySize + QSize(40, 0));
    output.present(firstFrame(file));
    const QImage image = shownBy(output);
    const QImage picture = image.copy(QRect(QPoint(20, 0), sample.displaySize));
    QCOMPARE(testsupport::frameNumber(picture).value_or(-1), 0);
    QCOMPARE(image.pixel(10, image.height() / 2), black);
}

void VideoOutputTest::newFrame_replacesTheOld_andNoFrameLeavesBlack()
{
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("h264_bframes.mp4")));
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(320, 240);
    stage.player.setRenderer(&output);
    QCOMPARE(testsupport::frameNumber(shownBy(output)).value_or(-1), 0);
    QVERIFY(stage.seek(2000));
    QCOMPARE(testsupport::frameNumber(shownBy(output)).value_or(-1), 50);
    stage.player.stop();
    QCOMPARE(shownBy(output).pixel(10, 10), black);
}

void VideoOutputTest::frame_followsTheWidgetsSize()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.present(firstFrame(QStringLiteral("h264_bframes.mp4")));
    for (const QSize size : {QSize(640, 480), QSize(160, 120), QSize(400, 300)}) {
        output.widget()->resize(size);
        QCOMPARE(testsupport::frameNumber(shownBy(output)).value_or(-1), 0);
    }
}

void VideoOutputTest::tinyWidget_paintsWithoutHarm()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.present(firstFrame(QStringLiteral("h264_bframes.mp4")));
    for (const QSize size : {QSize(1, 1), QSize(500, 1), QSize(1, 500)}) {
        output.widget()->resize(size);
        QCOMPARE(shownBy(output).size(), size);
    }
}

void VideoOutputTest::output_goesOn_withoutItsWidget()
{
    VideoOutput output;
    {
        QWidget window;
        output.widget()->setParent(&window);
    }
    QVERIFY(!output.widget());
    output.present(firstFrame(QStringLiteral("h264_bframes.mp4")));
}

void VideoOutputTest::openGL_drawsWhatRasterDraws()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QSKIP("There is no OpenGL without a display; VideoOutputTest.display has one");
    }
    VideoOutput output(VideoOutput::Drawing::OpenGL);
    QCOMPARE(QByteArray(output.widget()->metaObject()->className()), "QtAV::OpenGLWidget");
    VideoOutput raster(VideoOutput::Drawing::Raster);
    for (const char* file :
         {"h264_bframes.mp4", "turned_90_anamorphic.mp4", "vp9_alpha.webm", "h264_baseline.mp4"}) {
        const QtAV::VideoFrame frame = firstFrame(QString::fromLatin1(file));
        const bool zooms = qstrcmp(file, "h264_baseline.mp4") == 0;
        const QSize size = frame.displaySize() + QSize(41, 0);
        QImage images[2];
        for (VideoOutput* each : {&output, &raster}) {
            each->widget()->resize(size);
            each->widget()->show();
            QVERIFY(QTest::qWaitForWindowExposed(each->widget()));
            each->present(frame);
            // Fitted, and then enlarged by three.
            each->setPlace(zooms ? QRect(QPoint(-size.width(), -70), size * 3) : QRect());
            images[each == &raster] = shownBy(*each);
        }
        QCOMPARE(images[0].size(), images[1].size());
        int largest = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb a = images[0].pixel(x, y);
                const QRgb b = images[1].pixel(x, y);
                largest = std::max({largest, qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)),
                                    qAbs(qBlue(a) - qBlue(b))});
            }
        }
        QVERIFY2(largest <= 2, QByteArray::number(largest).constData());
        output.present(QtAV::VideoFrame());
        QCOMPARE(shownBy(output).pixel(size.width() / 2, size.height() / 2), black);
    }
}

/// Each pixel of the frame covers sixteen of the screen.
void VideoOutputTest::enlargedFrame_hasSharpPixels_inItsPlace()
{
    const QtAV::VideoFrame frame = firstFrame(QStringLiteral("h264_bframes.mp4")); // 320 x 240
    const QImage whole = frame.toImage(QImage::Format_RGB32);
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(200, 100);
    output.present(frame);
    output.setPlace({-406, -202, 1280, 960});
    const QImage image = shownBy(output);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixel(x, y), whole.pixel((x + 406) / 4, (y + 202) / 4));
        }
    }
}

void VideoOutputTest::frameInFullSize_isShownPixelByPixel_inItsPlace()
{
    const QtAV::VideoFrame frame = firstFrame(QStringLiteral("h264_bframes.mp4"));
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(100, 80);
    output.present(frame);
    output.setPlace({-110, -80, 320, 240});
    QCOMPARE(shownBy(output), frame.toImage(QImage::Format_RGB32).copy(110, 80, 100, 80));
    // Back to the whole picture.
    output.setPlace({});
    QCOMPARE(testsupport::frameNumber(shownBy(output).copy(0, 2, 100, 75)).value_or(-1), 0);
}

void VideoOutputTest::picture_movesAtOnce_whenItsPlaceDoes()
{
    const QtAV::VideoFrame frame = firstFrame(QStringLiteral("h264_bframes.mp4"));
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(320, 240);
    output.present(frame);
    const QImage before = shownBy(output);
    output.setPlace({40, 30, 320, 240});
    // No event loop runs here, so no picture can arrive.
    const QImage moved = grabbed(*output.widget());
    QVERIFY(!output.isUpToDate());
    QCOMPARE(moved.copy(40, 30, 280, 210), before.copy(0, 0, 280, 210));
    QCOMPARE(moved.pixel(39, 100), black);
}

void VideoOutputTest::player_showsItsFrames_inTheWidget()
{
    VideoOutput output;
    QWidget window;
    window.resize(320, 240);
    output.widget()->setParent(&window);
    output.widget()->resize(320, 240);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QtAV::AVPlayer player;
    player.setRenderer(&output);
    player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    player.play(testsupport::samplePath(QStringLiteral("h264_baseline.mp4")));
    player.seek(1800);
    QSignalSpy statuses(&player, &QtAV::AVPlayer::mediaStatusChanged);
    while (player.mediaStatus() != QtAV::EndOfMedia) {
        QVERIFY(statuses.wait(patienceMs));
    }
    QCOMPARE(testsupport::frameNumber(shownBy(output)).value_or(-1), 49);
}

void VideoOutputTest::oldPicture_staysScaled_untilTheNewOneComes()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(320, 240);
    output.present(firstFrame(QStringLiteral("h264_bframes.mp4")));
    const QImage before = shownBy(output);
    output.widget()->resize(640, 480);
    // No event loop runs here, so no picture can arrive.
    const QImage scaled = grabbed(*output.widget());
    QVERIFY(!output.isUpToDate());
    QCOMPARE(scaled, before.scaled(640, 480));
    QVERIFY(shownBy(output) != scaled);
}

void VideoOutputTest::present_returnsAtOnce_andOnlyTheNewestFrameIsShown()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    output.widget()->resize(320, 240);
    const QImage dark = shownBy(output);
    decoding::Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    int last = -1;
    for (int i = 0; i < 40; ++i) {
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet && player.decoder->decode(*packet));
        const QtAV::VideoFrame frame = player.decoder->frame();
        if (!frame.isValid()) {
            continue;
        }
        output.present(frame);
        last = decoding::shown(frame).number;
        QCOMPARE(grabbed(*output.widget()), dark);
    }
    QVERIFY(last > 10);
    QCOMPARE(testsupport::frameNumber(shownBy(output)).value_or(-1), last);
    // A late picture must not replace a black screen.
    output.widget()->resize(160, 120);
    output.present(firstFrame(QStringLiteral("h264_bframes.mp4")));
    output.present(QtAV::VideoFrame());
    QTest::qWait(50);
    QCOMPARE(shownBy(output).pixel(80, 60), black);
}

void VideoOutputTest::screenSize_isToldInPixels_whenTheWidgetChanges()
{
    VideoOutput output(VideoOutput::Drawing::Raster);
    const QSignalSpy changes(&output, &QtAV::VideoRenderer::screenSizeChanged);
    output.widget()->resize(300, 200);
    output.widget()->show();
    QVERIFY(QTest::qWaitForWindowExposed(output.widget()));
    QCOMPARE(output.screenSize(), output.widget()->size() * output.widget()->devicePixelRatioF());
    QVERIFY(!changes.isEmpty());
    const int before = changes.count();
    output.widget()->resize(400, 200);
    QTRY_VERIFY_WITH_TIMEOUT(changes.count() > before, patienceMs);
    QCOMPARE(output.screenSize().width(), qRound(400 * output.widget()->devicePixelRatioF()));
}

QTEST_MAIN(VideoOutputTest)
#include "VideoOutputTest.moc"
