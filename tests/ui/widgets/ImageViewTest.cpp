#include "ui/widgets/ImageView.h"

#include "tests/ui/support/Painting.h"
#include "ui/widgets/ZoomGestures.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTest>
#include <QWheelEvent>

#include <cstdlib>

using testsupport::paintedBounds;
using testsupport::paintedBy;

namespace {

QImage filled(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Alternating black and white columns of one pixel each.
QImage stripes(const QSize& size)
{
    QImage image = filled(size, Qt::black);
    QPainter painter(&image);
    for (int x = 0; x < size.width(); x += 2) {
        painter.fillRect(x, 0, 1, size.height(), Qt::white);
    }
    return image;
}

} // namespace

class ImageViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_isFittedAndCentred_data();
    void picture_isFittedAndCentred();
    void picture_showsWholeImage();
    void picture_isReplaced_whenImageIsSetAgain();
    void picture_follows_whenViewIsResized();
    void nothing_isPainted_withoutImage();
    void nothing_isPainted_whenImageIsSetToNull();
    void placeholder_isPaintedQuietlyInTheMiddle_untilThereIsAnImage();
    void alpha_showsWhatIsBehind();
    void surroundings_showParentsBackground();
    void fineDetail_isAveraged_whenMadeSmaller();
    void fineDetailOfALargeImage_isAveraged_inTheBackground();
    void settingImage_repaints();
    void fullSize_showsPixelsAsTheyAre();
    void enlargedImage_hasSharpPixels();
    void wheel_zoomsAtThePointer();
    void drag_movesAnEnlargedImage();
    void doubleClick_changesBetweenFullSizeAndFitted();
    void otherImage_isFitted_oneOfTheSameSizeKeepsItsZoom();
};

void ImageViewTest::picture_isFittedAndCentred_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QRect>("picture");
    QTest::newRow("wide image") << QSize(400, 300) << QSize(1920, 1080) << QRect(0, 37, 400, 225);
    QTest::newRow("tall image") << QSize(400, 300) << QSize(1080, 1920) << QRect(116, 0, 168, 300);
    QTest::newRow("same shape") << QSize(400, 300) << QSize(800, 600) << QRect(0, 0, 400, 300);
    QTest::newRow("same size") << QSize(400, 300) << QSize(400, 300) << QRect(0, 0, 400, 300);
    QTest::newRow("small image") << QSize(400, 300) << QSize(10, 10) << QRect(50, 0, 300, 300);
    QTest::newRow("odd rest") << QSize(11, 4) << QSize(4, 4) << QRect(3, 0, 4, 4);
    QTest::newRow("too flat to be seen") << QSize(100, 80) << QSize(1000, 2) << QRect();
}

void ImageViewTest::picture_isFittedAndCentred()
{
    QFETCH(QSize, view);
    QFETCH(QSize, image);
    QFETCH(QRect, picture);
    ImageView imageView;
    imageView.resize(view);
    imageView.setImage(filled(image, Qt::red));
    QCOMPARE(paintedBounds(paintedBy(imageView)), picture);
}

void ImageViewTest::picture_showsWholeImage()
{
    QImage image = filled({400, 400}, Qt::red);
    QPainter painter(&image);
    painter.fillRect(200, 0, 200, 200, Qt::green);
    painter.fillRect(0, 200, 200, 200, Qt::blue);
    painter.fillRect(200, 200, 200, 200, Qt::white);
    painter.end();

    ImageView view;
    view.resize(100, 100);
    view.setImage(image);
    const QImage painted = paintedBy(view);
    QCOMPARE(painted.pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(painted.pixelColor(99, 0), QColor(Qt::green));
    QCOMPARE(painted.pixelColor(0, 99), QColor(Qt::blue));
    QCOMPARE(painted.pixelColor(99, 99), QColor(Qt::white));
    QCOMPARE(painted.pixelColor(47, 47), QColor(Qt::red));
    QCOMPARE(painted.pixelColor(52, 52), QColor(Qt::white));
}

void ImageViewTest::picture_isReplaced_whenImageIsSetAgain()
{
    ImageView view;
    view.resize(100, 100);
    view.setImage(filled({400, 400}, Qt::red));
    QCOMPARE(paintedBy(view).pixelColor(50, 50), QColor(Qt::red));
    view.setImage(filled({400, 400}, Qt::blue));
    QCOMPARE(paintedBy(view).pixelColor(50, 50), QColor(Qt::blue));
}

void ImageViewTest::picture_follows_whenViewIsResized()
{
    ImageView view;
    view.setImage(filled({400, 200}, Qt::red));
    view.resize(100, 100);
    QCOMPARE(paintedBounds(paintedBy(view)), QRect(0, 25, 100, 50));
    view.resize(200, 300);
    QCOMPARE(paintedBounds(paintedBy(view)), QRect(0, 100, 200, 100));
    view.resize(800, 800);
    QCOMPARE(paintedBounds(paintedBy(view)), QRect(0, 200, 800, 400));
}

void ImageViewTest::nothing_isPainted_withoutImage()
{
    ImageView view;
    view.resize(100, 100);
    QVERIFY(paintedBounds(paintedBy(view)).isNull());
}

void ImageViewTest::nothing_isPainted_whenImageIsSetToNull()
{
    ImageView view;
    view.resize(100, 100);
    view.setImage(filled({400, 200}, Qt::red));
    QVERIFY(!paintedBounds(paintedBy(view)).isNull());
    view.setImage(QImage());
    QVERIFY(paintedBounds(paintedBy(view)).isNull());
}

void ImageViewTest::placeholder_isPaintedQuietlyInTheMiddle_untilThereIsAnImage()
{
    ImageView view;
    view.resize(300, 200);
    view.setPlaceholder(QIcon(), QStringLiteral("Nothing yet"));
    const QRect bounds = paintedBounds(paintedBy(view));
    QVERIFY(!bounds.isEmpty());
    QVERIFY(std::abs(bounds.center().x() - 150) <= 3);
    view.setImage(filled({300, 200}, Qt::red));
    const QImage shown = paintedBy(view);
    QCOMPARE(shown.pixelColor(bounds.center()), QColor(Qt::red));
}

void ImageViewTest::alpha_showsWhatIsBehind()
{
    QImage image(400, 400, QImage::Format_ARGB32);
    image.fill(QColor(255, 0, 0, 128));
    ImageView view;
    view.resize(100, 100);
    view.setImage(image);
    QCOMPARE(paintedBy(view).pixelColor(50, 50).alpha(), 128);
}

void ImageViewTest::surroundings_showParentsBackground()
{
    QWidget window;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(1, 2, 3));
    window.setPalette(palette);
    auto* view = new ImageView(&window);
    view->setGeometry(0, 0, 100, 100);
    view->setImage(filled({400, 200}, Qt::red));
    window.resize(100, 100);
    const QImage grabbed = window.grab().toImage();
    QCOMPARE(grabbed.pixelColor(50, 10), QColor(1, 2, 3));
    QCOMPARE(grabbed.pixelColor(50, 50), QColor(Qt::red));
    QCOMPARE(grabbed.pixelColor(50, 90), QColor(1, 2, 3));
}

void ImageViewTest::fineDetail_isAveraged_whenMadeSmaller()
{
    ImageView view;
    view.resize(100, 60);
    view.setImage(stripes({700, 420}));
    const QImage painted = paintedBy(view);
    constexpr int grey = 127;
    constexpr int oneStripeOfSeven = 255 / 7;
    for (int x = 1; x < 99; ++x) {
        const int value = qRed(painted.pixel(x, 30));
        QVERIFY2(std::abs(value - grey) <= oneStripeOfSeven, qPrintable(QString::number(value)));
    }
}

/// Afterwards, the image that was set last is shown.
void ImageViewTest::fineDetailOfALargeImage_isAveraged_inTheBackground()
{
    ImageView view;
    view.resize(150, 100);
    view.setImage(filled({3000, 2000}, Qt::red));
    static_cast<void>(paintedBy(view));
    view.setImage(stripes({3000, 2000}));
    const auto isGrey = [&view] {
        const QImage painted = paintedBy(view);
        for (int x = 1; x < 149; ++x) {
            const QRgb pixel = painted.pixel(x, 50);
            if (std::abs(qRed(pixel) - 127) > 12 || qRed(pixel) != qBlue(pixel)) {
                return false;
            }
        }
        return true;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isGrey(), 10000);
    view.resize(75, 50);
    QTRY_COMPARE_WITH_TIMEOUT(paintedBounds(paintedBy(view)), QRect(0, 0, 75, 50), 10000);
}

void ImageViewTest::settingImage_repaints()
{
    ImageView view;
    view.resize(100, 100);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCoreApplication::processEvents();
    const testsupport::EventCounter paints(view, QEvent::Paint);
    view.setImage(filled({10, 10}, Qt::red));
    QTRY_COMPARE(paints.count(), 1);
}

void ImageViewTest::fullSize_showsPixelsAsTheyAre()
{
    ImageView view;
    view.resize(100, 100);
    const QImage image = stripes({400, 400});
    view.setImage(image);
    view.zoom().showActualSize();
    QCOMPARE(paintedBy(view).convertToFormat(QImage::Format_RGB32), image.copy(150, 150, 100, 100));
}

void ImageViewTest::enlargedImage_hasSharpPixels()
{
    ImageView view;
    view.resize(80, 40);
    view.setImage(stripes({400, 400}));
    view.zoom().setScale(4.0);
    const QImage painted = paintedBy(view);
    for (int x = 0; x < 80; ++x) {
        QCOMPARE(painted.pixelColor(x, 20), painted.pixelColor(x / 4 * 4, 20));
        QVERIFY(qRed(painted.pixel(x, 20)) == 0 || qRed(painted.pixel(x, 20)) == 255);
    }
    QVERIFY(painted.pixel(0, 20) != painted.pixel(4, 20));
}

void ImageViewTest::wheel_zoomsAtThePointer()
{
    ImageView view;
    view.resize(100, 100);
    QImage image = filled({400, 400}, Qt::blue);
    QPainter(&image).fillRect(300, 300, 8, 8, Qt::red);
    view.setImage(image);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QPointF pointer(76.0, 76.0);
    for (int i = 0; i < 9; ++i) {
        QWheelEvent turn(pointer, view.mapToGlobal(pointer.toPoint()), {}, {0, 120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &turn);
    }
    QVERIFY(!view.zoom().zoom().isFitted());
    QCOMPARE(paintedBy(view).pixelColor(76, 76), QColor(Qt::red));
    QWheelEvent back(pointer, view.mapToGlobal(pointer.toPoint()), {}, {0, -1200}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &back);
    QVERIFY(view.zoom().zoom().isFitted());
}

void ImageViewTest::drag_movesAnEnlargedImage()
{
    ImageView view;
    view.resize(100, 100);
    view.setImage(filled({400, 400}, Qt::red));
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.zoom().showActualSize();
    const QRect before = view.zoom().zoom().place();
    QTest::mousePress(&view, Qt::LeftButton, {}, {50, 50});
    QMouseEvent move(QEvent::MouseMove, {20.0, 30.0}, Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&view, &move);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, {20, 30});
    QCOMPARE(view.zoom().zoom().place(), before.translated(-30, -20));
}

void ImageViewTest::doubleClick_changesBetweenFullSizeAndFitted()
{
    ImageView view;
    view.resize(100, 100);
    view.setImage(filled({400, 400}, Qt::red));
    QTest::mouseDClick(&view, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(view.zoom().zoom().scale(), 1.0);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, {50, 50});
    QVERIFY(view.zoom().zoom().isFitted());
}

void ImageViewTest::otherImage_isFitted_oneOfTheSameSizeKeepsItsZoom()
{
    ImageView view;
    view.resize(100, 100);
    view.setImage(filled({400, 400}, Qt::red));
    view.zoom().showActualSize();
    view.setImage(filled({400, 400}, Qt::blue));
    QVERIFY(!view.zoom().zoom().isFitted());
    view.setImage(filled({300, 400}, Qt::blue));
    QVERIFY(view.zoom().zoom().isFitted());
}

QTEST_MAIN(ImageViewTest)
#include "ImageViewTest.moc"
