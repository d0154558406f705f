#include "stills/ContactSheet.h"

#include <QTest>

using stills::ContactSheet;
using stills::Sheet;

namespace {

QImage filled(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

int countOf(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

QImage drawn(const Sheet& options, const QList<QImage>& pictures)
{
    ContactSheet sheet(options);
    for (const QImage& picture : pictures) {
        if (!sheet.add(picture, 1000)) {
            return {};
        }
    }
    return sheet.draw(QStringLiteral("film.mkv"), QStringLiteral("1:00"));
}

} // namespace

class ContactSheetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictures_areAllThere_unchanged();
    void picturesOfOtherProportions_areCentred();
    void titleAndTimes_takeRoom_whenThereAreAny();
    void longTitles_stayInTheSheet();
    void sheet_isNull_whenItWouldBeTooLarge();
    void sheet_takesSoManyPictures();
    void sheet_takesNoMorePixels_thanItCanHave();
};

void ContactSheetTest::pictures_areAllThere_unchanged()
{
    const QList<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::magenta};
    QList<QImage> pictures;
    for (const QColor& color : colors) {
        pictures += filled(QSize(160, 90), color);
    }
    const QImage sheet = drawn({}, pictures);
    for (const QColor& color : colors) {
        QCOMPARE(countOf(sheet, color), 160 * 90);
    }
}

void ContactSheetTest::picturesOfOtherProportions_areCentred()
{
    Sheet options;
    options.columns = 2;
    options.title = std::string();
    options.hasTimes = false;
    options.gap = 10;
    const QImage sheet =
        drawn(options, {filled(QSize(160, 90), Qt::red), filled(QSize(50, 90), Qt::blue)});
    const int row = sheet.height() / 2;
    const int left = 20 + 160 + 10;
    QCOMPARE(sheet.pixelColor(left + 80, row), QColor(Qt::blue));
    QVERIFY(sheet.pixelColor(left + 20, row) != QColor(Qt::blue));
    QVERIFY(sheet.pixelColor(left + 140, row) != QColor(Qt::blue));
}

void ContactSheetTest::titleAndTimes_takeRoom_whenThereAreAny()
{
    const QList<QImage> pictures{filled(QSize(160, 90), Qt::red)};
    Sheet bare;
    bare.hasTimes = false;
    bare.title = std::string();
    Sheet timed = bare;
    timed.hasTimes = true;
    Sheet titled = bare;
    titled.title = std::string("A title");
    const int height = drawn(bare, pictures).height();
    QVERIFY(drawn(timed, pictures).height() > height);
    QVERIFY(drawn(titled, pictures).height() > height);
    QVERIFY(drawn(titled, pictures).height() < drawn({}, pictures).height());
}

void ContactSheetTest::longTitles_stayInTheSheet()
{
    Sheet options;
    options.title = std::string(500, 'W');
    const QImage sheet = drawn(options, {filled(QSize(160, 90), Qt::red)});
    QCOMPARE(sheet.width(), 160 + 4 * options.gap);
}

void ContactSheetTest::sheet_isNull_whenItWouldBeTooLarge()
{
    Sheet options;
    options.columns = 1;
    QList<QImage> pictures;
    for (int i = 0; i < 800; ++i) {
        pictures += filled(QSize(20, 90), Qt::red);
    }
    QVERIFY(drawn(options, pictures).isNull());
}

void ContactSheetTest::sheet_takesSoManyPictures()
{
    ContactSheet sheet({});
    const QImage picture = filled(QSize(16, 9), Qt::red);
    for (int i = 0; i < ContactSheet::mostPictures; ++i) {
        QVERIFY(sheet.add(picture, i));
    }
    QVERIFY(!sheet.add(picture, 0));
    QCOMPARE(sheet.count(), ContactSheet::mostPictures);
}

void ContactSheetTest::sheet_takesNoMorePixels_thanItCanHave()
{
    // Copies share their pixels.
    const QImage picture = filled(QSize(4096, 4096), Qt::red);
    ContactSheet sheet({});
    for (int i = 0; i < 16; ++i) {
        QVERIFY(sheet.add(picture, i));
    }
    QVERIFY(!sheet.add(picture, 16));
    // Every place is as large as the largest picture.
    ContactSheet other({});
    for (int i = 0; i < 16; ++i) {
        QVERIFY(other.add(filled(QSize(16, 16), Qt::red), i));
    }
    QVERIFY(!other.add(picture, 16));
}

QTEST_MAIN(ContactSheetTest)

#include "ContactSheetTest.moc"
