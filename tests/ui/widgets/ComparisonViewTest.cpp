#include "ui/widgets/ComparisonView.h"

#include <QTest>

class ComparisonViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void line_followsMouseAndKeys_andStaysInside();
    void pictures_standOnTheirSidesOfTheLine();
    void nothing_isShown_withoutPictures();
};

namespace {

QImage filled(Qt::GlobalColor color)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

void ComparisonViewTest::line_followsMouseAndKeys_andStaysInside()
{
    ComparisonView view;
    view.resize(400, 200);
    view.setPictures(filled(Qt::red), filled(Qt::blue));
    QCOMPARE(view.divider(), 0.5);
    QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, {100, 50});
    QCOMPARE(view.divider(), 0.25);
    QTest::keyClick(&view, Qt::Key_Right);
    QCOMPARE(view.divider(), 0.27);
    QTest::keyClick(&view, Qt::Key_Left);
    QTest::keyClick(&view, Qt::Key_Left);
    QCOMPARE(view.divider(), 0.23);
    view.setDivider(7.0);
    QCOMPARE(view.divider(), 1.0);
    view.setDivider(-1.0);
    QCOMPARE(view.divider(), 0.0);
}

void ComparisonViewTest::pictures_standOnTheirSidesOfTheLine()
{
    ComparisonView view;
    view.resize(400, 300);
    view.setPictures(filled(Qt::red), filled(Qt::blue));
    view.setDivider(0.75);
    const QImage shown = view.grab().toImage();
    QCOMPARE(shown.pixelColor(290, 150), QColor(Qt::red));
    QCOMPARE(shown.pixelColor(310, 150), QColor(Qt::blue));
    // Above the picture, which is centred.
    QVERIFY(shown.pixelColor(100, 20) != QColor(Qt::red));
}

void ComparisonViewTest::nothing_isShown_withoutPictures()
{
    ComparisonView view;
    view.resize(400, 300);
    const QImage empty = view.grab().toImage();
    view.setPictures(filled(Qt::red), QImage());
    QCOMPARE(view.grab().toImage(), empty);
}

QTEST_MAIN(ComparisonViewTest)
#include "ComparisonViewTest.moc"
