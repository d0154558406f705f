#include "stills/SheetLayout.h"

#include <QTest>

using stills::SheetLayout;

namespace {

SheetLayout layoutOf(int pictures, int columns = 0, int gap = 10)
{
    return SheetLayout({pictures, QSize(320, 180), columns, gap, 20, 50});
}

} // namespace

class SheetLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_makeAboutAsManyRows_data();
    void columns_makeAboutAsManyRows();
    void parts_lieInTheSheet_andNotOnEachOther_data();
    void parts_lieInTheSheet_andNotOnEachOther();
    void fewerPicturesThanColumns_needNoMoreRoom();
    void tooLargeSheets_areNotPossible();
};

void SheetLayoutTest::columns_makeAboutAsManyRows_data()
{
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("columns");
    const QList<QPair<int, int>> rows{{1, 1},  {2, 2},  {3, 3},  {4, 2},   {6, 3},
                                      {7, 3},  {9, 3},  {10, 5}, {12, 4},  {16, 4},
                                      {20, 5}, {24, 6}, {25, 5}, {100, 10}};
    for (const auto& [pictures, columns] : rows) {
        QTest::addRow("%d", pictures) << pictures << columns;
    }
}

void SheetLayoutTest::columns_makeAboutAsManyRows()
{
    QFETCH(const int, pictures);
    QFETCH(const int, columns);
    QCOMPARE(SheetLayout::usualColumns(pictures), columns);
    QCOMPARE(layoutOf(pictures).columns(), columns);
}

void SheetLayoutTest::parts_lieInTheSheet_andNotOnEachOther_data()
{
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("gap");
    QTest::newRow("usual") << 10 << 0 << 12;
    QTest::newRow("no gap") << 12 << 4 << 0;
    QTest::newRow("one column") << 5 << 1 << 3;
    QTest::newRow("last row not full") << 7 << 3 << 50;
}

void SheetLayoutTest::parts_lieInTheSheet_andNotOnEachOther()
{
    QFETCH(const int, pictures);
    QFETCH(const int, columns);
    QFETCH(const int, gap);
    const SheetLayout layout = layoutOf(pictures, columns, gap);
    QList<QRect> areas{layout.titleArea()};
    for (int i = 0; i < pictures; ++i) {
        areas << layout.pictureArea(i) << layout.captionArea(i);
    }
    const QRect sheet(QPoint(), layout.size());
    for (int i = 0; i < areas.size(); ++i) {
        QVERIFY(sheet.contains(areas.at(i)));
        for (int j = 0; j < i; ++j) {
            QVERIFY(!areas.at(i).intersects(areas.at(j)));
        }
    }
    QVERIFY(layout.isPossible());
}

void SheetLayoutTest::fewerPicturesThanColumns_needNoMoreRoom()
{
    QCOMPARE(layoutOf(2, 10).size().width(), layoutOf(2, 2).size().width());
}

void SheetLayoutTest::tooLargeSheets_areNotPossible()
{
    QVERIFY(!layoutOf(2000, 1).isPossible());
    QVERIFY(!layoutOf(1000000, 100).isPossible());
}

QTEST_APPLESS_MAIN(SheetLayoutTest)

#include "SheetLayoutTest.moc"
