#include "ui/widgets/PictureZoom.h"

#include <QTest>

#include <cmath>

class PictureZoomTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_isFitted_atFirst();
    void pointUnderThePointer_stays();
    void edges_leaveNoGap();
    void smallerPicture_isCentred_andCannotBeMoved();
    void scales_haveLimits();
    void resize_keepsTheScale();
    void nothing_isThere_withoutPictureOrScreen();
};

namespace {

PictureZoom zoomOf(const QSize& picture, const QSize& screen)
{
    PictureZoom zoom;
    zoom.setPicture(picture);
    zoom.setScreen(screen);
    return zoom;
}

} // namespace

void PictureZoomTest::picture_isFitted_atFirst()
{
    const PictureZoom zoom = zoomOf({1920, 1080}, {400, 300});
    QVERIFY(zoom.isFitted());
    QVERIFY(!zoom.canPan());
    QCOMPARE(zoom.place(), QRect(0, 37, 400, 225));
    QCOMPARE(zoom.scale(), 400.0 / 1920.0);
}

void PictureZoomTest::pointUnderThePointer_stays()
{
    PictureZoom zoom = zoomOf({1920, 1080}, {960, 540});
    const QPointF pointer(300.0, 200.0);
    for (const double scale : {1.0, 4.0, 2.5, 0.75}) {
        zoom.setScale(scale, pointer);
        QCOMPARE(zoom.scale(), scale);
        // 600 by 400 of the picture, in its own pixels.
        const QPointF under = (pointer - zoom.place().topLeft()) / scale;
        QVERIFY2(std::abs(under.x() - 600.0) < 1.0 && std::abs(under.y() - 400.0) < 1.0,
                 qPrintable(QStringLiteral("%1 %2").arg(under.x()).arg(under.y())));
    }
}

void PictureZoomTest::edges_leaveNoGap()
{
    PictureZoom zoom = zoomOf({1920, 1080}, {400, 300});
    zoom.setScale(1.0, {0.0, 37.0});
    QCOMPARE(zoom.place().topLeft(), QPoint(0, -0));
    zoom.pan({500.0, 500.0});
    QCOMPARE(zoom.place().topLeft(), QPoint(0, 0));
    zoom.pan({-100.0, -50.0});
    QCOMPARE(zoom.place().topLeft(), QPoint(-100, -50));
    zoom.pan({-9999.0, -9999.0});
    QCOMPARE(zoom.place().bottomRight(), QPoint(399, 299));
}

void PictureZoomTest::smallerPicture_isCentred_andCannotBeMoved()
{
    PictureZoom zoom = zoomOf({100, 100}, {400, 200});
    zoom.setScale(1.0, {0.0, 0.0});
    QCOMPARE(zoom.place(), QRect(150, 50, 100, 100));
    zoom.pan({40.0, 20.0});
    QCOMPARE(zoom.place(), QRect(150, 50, 100, 100));
    zoom.setScale(0.9, {0.0, 0.0});
    QVERIFY(zoom.isFitted());
    zoom.setScale(3.0, {200.0, 100.0});
    QCOMPARE(zoom.place(), QRect(50, -50, 300, 300));
    zoom.pan({40.0, 20.0});
    QCOMPARE(zoom.place(), QRect(50, -30, 300, 300));
}

void PictureZoomTest::scales_haveLimits()
{
    PictureZoom zoom = zoomOf({1000, 1000}, {100, 100});
    zoom.setScale(1000.0, {50.0, 50.0});
    QCOMPARE(zoom.scale(), PictureZoom::largestScale);
    zoom.setScale(0.01, {50.0, 50.0});
    QVERIFY(zoom.isFitted());
}

void PictureZoomTest::resize_keepsTheScale()
{
    PictureZoom zoom = zoomOf({1000, 1000}, {100, 100});
    zoom.setScale(1.0, {50.0, 50.0});
    zoom.setScreen({300, 200});
    QCOMPARE(zoom.scale(), 1.0);
    QCOMPARE(zoom.place(), QRect(-350, -400, 1000, 1000));
    zoom.setScreen({2000, 1500});
    QCOMPARE(zoom.place(), QRect(500, 250, 1000, 1000));
    QVERIFY(!zoom.canPan());
}

void PictureZoomTest::nothing_isThere_withoutPictureOrScreen()
{
    PictureZoom zoom;
    zoom.setScale(2.0, {0.0, 0.0});
    zoom.pan({1.0, 1.0});
    QVERIFY(zoom.place().isNull());
    QCOMPARE(zoom.scale(), 0.0);
    zoom.setPicture({10, 10});
    QVERIFY(zoom.place().isNull());
}

QTEST_APPLESS_MAIN(PictureZoomTest)
#include "PictureZoomTest.moc"
