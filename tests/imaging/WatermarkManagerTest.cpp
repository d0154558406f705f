#include "imaging/WatermarkManager.h"

#include "profiles/WatermarkProfile.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QStandardPaths>
#include <QTest>

namespace {

constexpr int imageWidth = 640;
constexpr int imageHeight = 480;
constexpr int xMargin = 15;
constexpr int yMargin = 10;

QImage blackImage(QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(imageWidth, imageHeight, format);
    image.fill(Qt::black);
    return image;
}

QFont testFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(32);
    return font;
}

/// The smallest rectangle around the pixels for which the condition holds.
template <typename Condition>
QRect boundsOf(const QImage& image, Condition holds)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (holds(image.pixel(x, y))) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

bool isNotBlack(QRgb pixel)
{
    return qRed(pixel) + qGreen(pixel) + qBlue(pixel) > 0;
}

/// White text without a visible shadow.
void setUpText(WatermarkProfile& profile, const QString& text)
{
    profile.setWatermarkType(0);
    profile.setText(text);
    profile.setTextFont(testFont());
    profile.setTextColor(Qt::white);
    profile.setTextShadowColor(Qt::transparent);
    profile.setXMargin(xMargin);
    profile.setYMargin(yMargin);
}

/// Saves the picture under the name where profiles expect it, and selects it.
void setUpPicture(WatermarkProfile& profile, const QImage& picture, const QString& name)
{
    QVERIFY(picture.save(WatermarkProfile::pathForImage(name)));
    profile.setWatermarkType(1);
    profile.setImageFile(name);
    profile.setXMargin(xMargin);
    profile.setYMargin(yMargin);
}

QImage draw(QImage image, WatermarkProfile& profile)
{
    return WatermarkManager::instance()->processImage(image, &profile);
}

void addAnchors()
{
    QTest::addColumn<int>("index");
    const std::array<const char*, 9> names{"top left",    "top",    "top right",
                                           "left",        "centre", "right",
                                           "bottom left", "bottom", "bottom right"};
    for (int index = 0; index < 9; ++index) {
        QTest::newRow(names[static_cast<std::size_t>(index)]) << index;
    }
}

} // namespace

class WatermarkManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        const QString file = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
        QVERIFY2(QFontDatabase::addApplicationFont(file) >= 0, qPrintable(file));
    }

    void instance_isAlwaysTheSame()
    {
        QVERIFY(WatermarkManager::instance() != nullptr);
        QCOMPARE(WatermarkManager::instance(), WatermarkManager::instance());
    }

    void alignedPoint_followsTheFlags_data()
    {
        QTest::addColumn<QSize>("container");
        QTest::addColumn<QSize>("item");
        QTest::addColumn<int>("flags");
        QTest::addColumn<QPoint>("point");
        const QSize container(640, 480);
        const QSize item(100, 50);
        const int left = Qt::AlignLeft, right = Qt::AlignRight, hCentre = Qt::AlignHCenter;
        const int top = Qt::AlignTop, bottom = Qt::AlignBottom, vCentre = Qt::AlignVCenter;
        QTest::newRow("top left") << container << item << (left | top) << QPoint(15, 10);
        QTest::newRow("top") << container << item << (hCentre | top) << QPoint(270, 10);
        QTest::newRow("top right") << container << item << (right | top) << QPoint(525, 10);
        QTest::newRow("left") << container << item << (left | vCentre) << QPoint(15, 215);
        QTest::newRow("centre") << container << item << (hCentre | vCentre) << QPoint(270, 215);
        QTest::newRow("right") << container << item << (right | vCentre) << QPoint(525, 215);
        QTest::newRow("bottom left") << container << item << (left | bottom) << QPoint(15, 420);
        QTest::newRow("bottom") << container << item << (hCentre | bottom) << QPoint(270, 420);
        QTest::newRow("bottom right") << container << item << (right | bottom) << QPoint(525, 420);
        QTest::newRow("no flags") << container << item << 0 << QPoint(15, 10);
        QTest::newRow("right before centre, bottom before centre")
            << container << item << (right | hCentre | bottom | vCentre) << QPoint(525, 420);
        QTest::newRow("odd difference")
            << QSize(15, 15) << QSize(10, 10) << (hCentre | vCentre) << QPoint(2, 2);
        QTest::newRow("negative odd difference")
            << QSize(10, 10) << QSize(15, 15) << (hCentre | vCentre) << QPoint(-2, -2);
        QTest::newRow("larger item")
            << QSize(50, 20) << item << (right | bottom) << QPoint(-65, -40);
    }
    void alignedPoint_followsTheFlags()
    {
        QFETCH(QSize, container);
        QFETCH(QSize, item);
        QFETCH(int, flags);
        QTEST(WatermarkManager::getAlignedPoint(container, item, Qt::Alignment(flags), xMargin,
                                                yMargin),
              "point");
    }

    void picture_isDrawnPixelByPixel_atEveryAnchor_data() { addAnchors(); }
    void picture_isDrawnPixelByPixel_atEveryAnchor()
    {
        QFETCH(int, index);
        QImage picture(101, 51, QImage::Format_RGB32);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                picture.setPixel(x, y, qRgb(2 * x, 5 * y, 255));
            }
        }
        WatermarkProfile profile(nullptr);
        setUpPicture(profile, picture, QStringLiteral("gradient.png"));
        profile.setAlignmentIndex(index);

        const std::array<int, 3> lefts{15, 269, 524};
        const std::array<int, 3> tops{10, 214, 419};
        const QPoint corner(lefts[static_cast<std::size_t>(index % 3)],
                            tops[static_cast<std::size_t>(index / 3)]);
        const QImage result = draw(blackImage(), profile);
        for (int y = 0; y < imageHeight; ++y) {
            for (int x = 0; x < imageWidth; ++x) {
                const QPoint inside = QPoint(x, y) - corner;
                QCOMPARE(result.pixel(x, y),
                         picture.valid(inside) ? picture.pixel(inside) : qRgb(0, 0, 0));
            }
        }
    }

    void picture_isClipped_whenItIsLargerThanTheImage()
    {
        QImage picture(700, 500, QImage::Format_RGB32);
        picture.fill(Qt::green);
        picture.setPixel(700 - 640 + 15 + 3, 500 - 480 + 10 + 4, qRgb(255, 0, 0));
        WatermarkProfile profile(nullptr);
        setUpPicture(profile, picture, QStringLiteral("large.png"));
        profile.setAlignmentIndex(8);
        const QImage result = draw(blackImage(), profile);
        // It ends at the margins, and its beginning is outside.
        QCOMPARE(boundsOf(result, isNotBlack), QRect(0, 0, 625, 470));
        QCOMPARE(result.pixel(3, 4), qRgb(255, 0, 0));
    }

    void picture_isBlended_byTheOpacity()
    {
        QImage picture(10, 10, QImage::Format_RGB32);
        picture.fill(Qt::white);
        WatermarkProfile profile(nullptr);
        setUpPicture(profile, picture, QStringLiteral("white.png"));
        profile.setAlignmentIndex(0);
        for (const int alpha : {1, 64, 128, 254, 255}) {
            profile.setAlpha(alpha);
            const int red = qRed(draw(blackImage(), profile).pixel(16, 11));
            QVERIFY2(std::abs(red - alpha) <= 1, qPrintable(QString::number(red)));
        }
    }

    void picture_hasItsOwnPixels_whenItsNameSpeaksOfDoubleDensity()
    {
        QImage picture(20, 10, QImage::Format_RGB32);
        picture.fill(Qt::white);
        WatermarkProfile profile(nullptr);
        setUpPicture(profile, picture, QStringLiteral("logo@2x.png"));
        profile.setAlignmentIndex(8);
        QCOMPARE(boundsOf(draw(blackImage(), profile), isNotBlack), QRect(605, 460, 20, 10));
    }

    void picture_isLeftOut_whenItIsMissing()
    {
        WatermarkProfile profile(nullptr);
        profile.setWatermarkType(7);
        profile.setImageFile(QStringLiteral("missing.png"));
        QCOMPARE(draw(blackImage(), profile), blackImage());
    }

    void text_isDrawnWithItsBox_atEveryAnchor_data() { addAnchors(); }
    void text_isDrawnWithItsBox_atEveryAnchor()
    {
        QFETCH(int, index);
        const QString text = QStringLiteral("Watermark");
        WatermarkProfile profile(nullptr);
        setUpText(profile, text);
        profile.setAlignmentIndex(index);
        const QImage result = draw(blackImage(), profile);

        // The text's box, placed manually.
        QImage expected = blackImage();
        const QFontMetrics metrics(testFont(), &expected);
        const QSize box = metrics.boundingRect(QRect(0, 0, 1000, 1000), Qt::AlignLeft, text).size();
        const int freeWidth = imageWidth - 2 * xMargin - box.width();
        const int freeHeight = imageHeight - 2 * yMargin - box.height();
        const int left = xMargin + freeWidth * (index % 3) / 2;
        const int top = yMargin + freeHeight * (index / 3) / 2;
        const QRect actual = boundsOf(result, isNotBlack);
        QPainter painter(&expected);
        painter.setFont(testFont());
        painter.setPen(Qt::white);
        painter.drawText(QPoint(left, top + metrics.ascent()), text);
        painter.end();
        const QRect wanted = boundsOf(expected, isNotBlack);

        // Centred text may begin at half a pixel.
        QVERIFY(std::abs(actual.left() - wanted.left()) <= 1);
        QVERIFY(std::abs(actual.right() - wanted.right()) <= 1);
        QVERIFY(std::abs(actual.top() - wanted.top()) <= 1);
        QVERIFY(std::abs(actual.bottom() - wanted.bottom()) <= 1);
        if (index == 0) {
            QCOMPARE(result, expected);
        }
    }

    void text_takesTheWholeColor_whenAllIsOpaque()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("\u2588\u2588"));
        profile.setTextColor(QColor(10, 200, 30));
        profile.setAlignmentIndex(4);
        const QImage result = draw(blackImage(), profile);
        QCOMPARE(result.pixel(imageWidth / 2, imageHeight / 2), qRgb(10, 200, 30));
    }

    /// Compared with text of the multiplied alpha, because text is blended with gamma correction.
    void text_multipliesTheColorsAlphaWithTheOpacity()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("\u2588\u2588"));
        profile.setAlignmentIndex(4);
        const auto redWith = [&profile](int colorAlpha, int opacity) {
            profile.setTextColor(QColor(255, 255, 255, colorAlpha));
            profile.setAlpha(opacity);
            return qRed(draw(blackImage(), profile).pixel(imageWidth / 2, imageHeight / 2));
        };
        QCOMPARE(redWith(255, 255), 255);
        for (const int opacity : {64, 128, 200}) {
            const int red = redWith(128, opacity);
            QVERIFY(std::abs(red - redWith(128 * opacity / 255, 255)) <= 2);
            QVERIFY(red < redWith(128, 255));
        }
    }

    void shadow_isTheTextMovedByTheOffset()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("Shadow"));
        const QRect text = boundsOf(draw(blackImage(), profile), isNotBlack);
        profile.setTextColor(Qt::transparent);
        profile.setTextShadowColor(Qt::white);
        profile.setTextShadowXOffset(-7);
        profile.setTextShadowYOffset(5);
        QCOMPARE(boundsOf(draw(blackImage(), profile), isNotBlack), text.translated(-7, 5));
    }

    void shadow_liesUnderTheText()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("\u2588\u2588"));
        profile.setAlignmentIndex(4);
        profile.setTextColor(QColor(0, 0, 255, 128));
        profile.setTextShadowColor(QColor(255, 0, 0));
        // Also without an offset: it is visible through the text.
        const QRgb both = draw(blackImage(), profile).pixel(imageWidth / 2, imageHeight / 2);
        QVERIFY(qRed(both) > 64 && qRed(both) < 192);
        QVERIFY(qBlue(both) > 64 && qBlue(both) < 192);
        profile.setTextColor(Qt::blue);
        QCOMPARE(draw(blackImage(), profile).pixel(imageWidth / 2, imageHeight / 2),
                 qRgb(0, 0, 255));
    }

    void text_keepsItsLines()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("H"));
        profile.setAlignmentIndex(0);
        const QRect one = boundsOf(draw(blackImage(), profile), isNotBlack);
        setUpText(profile, QStringLiteral("H\nH\nH"));
        const QRect three = boundsOf(draw(blackImage(), profile), isNotBlack);
        QCOMPARE(three.topLeft(), one.topLeft());
        QCOMPARE(three.width(), one.width());
        QImage device = blackImage();
        const int spacing = QFontMetrics(testFont(), &device).lineSpacing();
        QVERIFY(std::abs(three.height() - one.height() - 2 * spacing) <= 1);
    }

    void text_isLeftOut_whenItIsEmpty()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QString());
        QCOMPARE(draw(blackImage(), profile), blackImage());
    }

    void result_equalsTheImage_whenTheOpacityIsZero_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("text") << 0;
        QTest::newRow("picture") << 1;
    }
    void result_equalsTheImage_whenTheOpacityIsZero()
    {
        QFETCH(int, type);
        QImage image(64, 64, QImage::Format_ARGB32);
        for (int y = 0; y < 64; ++y) {
            for (int x = 0; x < 64; ++x) {
                image.setPixel(x, y, qRgba(4 * x, 4 * y, 200, x + y));
            }
        }
        QImage picture(60, 60, QImage::Format_ARGB32);
        picture.fill(Qt::white);
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("Text"));
        setUpPicture(profile, picture, QStringLiteral("zero.png"));
        profile.setWatermarkType(type);
        profile.setXMargin(0);
        profile.setYMargin(0);
        profile.setAlpha(0);
        QCOMPARE(draw(image, profile), image);
        profile.setAlpha(255);
        QVERIFY(draw(image, profile) != image);
    }

    void image_isNotChanged()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("Text"));
        QImage image = blackImage();
        const QImage result = WatermarkManager::instance()->processTypeText(image, &profile);
        QCOMPARE(image, blackImage());
        QVERIFY(result != image);
        QCOMPARE(result.format(), image.format());
    }

    void result_isNull_forANullImage()
    {
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("Text"));
        QVERIFY(draw(QImage(), profile).isNull());
        profile.setWatermarkType(1);
        QVERIFY(draw(QImage(), profile).isNull());
    }

    void text_isDrawn_onEveryFormat_data()
    {
        QTest::addColumn<QImage::Format>("format");
        for (const auto format :
             {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
              QImage::Format_RGB888, QImage::Format_RGB32, QImage::Format_RGBA8888}) {
            QTest::addRow("%d", format) << format;
        }
    }
    void text_isDrawn_onEveryFormat()
    {
        QFETCH(QImage::Format, format);
        WatermarkProfile profile(nullptr);
        setUpText(profile, QStringLiteral("\u2588\u2588"));
        profile.setAlignmentIndex(4);
        const QImage result =
            draw(blackImage(QImage::Format_RGB32).convertToFormat(format), profile);
        QCOMPARE(result.pixel(imageWidth / 2, imageHeight / 2), qRgb(255, 255, 255));
        QCOMPARE(result.pixel(0, 0), qRgb(0, 0, 0));
    }
};

QTEST_MAIN(WatermarkManagerTest)
#include "WatermarkManagerTest.moc"
