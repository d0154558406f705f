#include "tests/support/FrameNumber.h"

#include <QPainter>
#include <QTest>

using namespace testsupport;

Q_DECLARE_METATYPE(testsupport::Orientation)

namespace {

/// A picture like those of the sample videos, drawn independently.
QImage numberedPicture(int number, QSize size = {320, 240})
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QPainter painter(&picture);
    const double width = size.width() / 16.0;
    const double height = size.height() / 12.0;
    for (int column = 0; column < 16; ++column) {
        const bool bit = column == 0 || (column < 15 && (number >> (14 - column)) % 2 == 1);
        painter.fillRect(QRectF(column * width, 0, width, height), bit ? Qt::white : Qt::black);
        painter.fillRect(QRectF(column * width, height, width, height),
                         bit ? Qt::black : Qt::white);
    }
    return picture;
}

} // namespace

class FrameNumberTest : public QObject
{
    Q_OBJECT

private slots:
    void number_isRead_atAnySize_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QSize>("size");
        for (const int number : {0, 1, 37, 8191, 16383}) {
            for (const QSize size : {QSize(32, 24), QSize(320, 240), QSize(175, 99),
                                     QSize(240, 320), QSize(800, 48)}) {
                QTest::addRow("%d at %dx%d", number, size.width(), size.height()) << number << size;
            }
        }
    }
    void number_isRead_atAnySize()
    {
        QFETCH(int, number);
        QFETCH(QSize, size);
        QCOMPARE(frameNumber(numberedPicture(number, size)).value_or(-1), number);
    }

    void number_isRead_afterSmoothResizing()
    {
        const QImage resized = numberedPicture(1234).scaled({100, 300}, Qt::IgnoreAspectRatio,
                                                            Qt::SmoothTransformation);
        QCOMPARE(frameNumber(resized).value_or(-1), 1234);
    }

    void number_isNothing_inBlendOfTwoFrames()
    {
        QImage blend = numberedPicture(100);
        QPainter painter(&blend);
        painter.setOpacity(0.5);
        painter.drawImage(0, 0, numberedPicture(101));
        painter.end();
        QVERIFY(!frameNumber(blend));
    }

    void number_isNothing_inOtherPictures()
    {
        QImage grey(320, 240, QImage::Format_RGB32);
        grey.fill(Qt::gray);
        QVERIFY(!frameNumber(grey));
        QVERIFY(!frameNumber(QImage()));
        QVERIFY(!frameNumber(numberedPicture(5, {20, 20})));
    }

    void orientation_isToldApart_data()
    {
        QTest::addColumn<QTransform>("transform");
        QTest::addColumn<Orientation>("expected");
        // QTransform expects the matrix row by row, for row vectors: x' = m11 x + m21 y.
        QTest::newRow("upright") << QTransform() << Orientation::Upright;
        QTest::newRow("90") << QTransform(0, 1, -1, 0, 0, 0) << Orientation::Turned90;
        QTest::newRow("180") << QTransform(-1, 0, 0, -1, 0, 0) << Orientation::Turned180;
        QTest::newRow("270") << QTransform(0, -1, 1, 0, 0, 0) << Orientation::Turned270;
        QTest::newRow("left-right")
            << QTransform(-1, 0, 0, 1, 0, 0) << Orientation::MirroredLeftRight;
        QTest::newRow("up-down") << QTransform(1, 0, 0, -1, 0, 0) << Orientation::MirroredUpDown;
        QTest::newRow("transposed") << QTransform(0, 1, 1, 0, 0, 0) << Orientation::Transposed;
        QTest::newRow("anti-transposed")
            << QTransform(0, -1, -1, 0, 0, 0) << Orientation::AntiTransposed;
    }
    void orientation_isToldApart()
    {
        QFETCH(QTransform, transform);
        QFETCH(Orientation, expected);
        const QImage laid = numberedPicture(600).transformed(transform);
        const auto found = orientation(laid);
        QVERIFY(found.has_value());
        QCOMPARE(int(*found), int(expected));
        QCOMPARE(isUpright(laid), expected == Orientation::Upright);
    }

    void orientation_isNothing_withoutNumber()
    {
        QImage grey(320, 240, QImage::Format_RGB32);
        grey.fill(Qt::gray);
        QVERIFY(!orientation(grey));
    }
};

QTEST_GUILESS_MAIN(FrameNumberTest)
#include "FrameNumberTest.moc"
