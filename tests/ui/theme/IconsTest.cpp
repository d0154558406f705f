#include "ui/theme/Icons.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>

namespace {

constexpr char folder[] = ":/Icons/";

QByteArray contents(const QString& name)
{
    QFile file(QLatin1String(folder) + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The colour of the most opaque pixel.
QColor inkOf(const QImage& image)
{
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor here = image.pixelColor(x, y);
            ink = here.alpha() > ink.alpha() ? here : ink;
        }
    }
    return ink;
}

QImage drawn(const QIcon& icon, int edge, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(edge, edge), mode).toImage();
}

} // namespace

class IconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void allIcons_areOfOneSet_data();
    void allIcons_areOfOneSet();
    void icon_isDrawnInTheColourOfText();
    void icon_followsThePalette();
    void icon_isPalerWhenDisabled();
    void icon_ofAForm_isALineIcon();
    void icon_isSharpOnADenseScreen();
    void ink_ofTheAccent_isThatOfTheSelection();
    void icon_isNull_whenThereIsNoSuchFile();
};

void IconsTest::cleanup()
{
    QGuiApplication::setPalette(QPalette());
}

void IconsTest::allIcons_areOfOneSet_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = QDir(QLatin1String(folder)).entryList(QDir::Files);
    QVERIFY(names.size() > 30);
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void IconsTest::allIcons_areOfOneSet()
{
    QFETCH(const QString, name);
    const QByteArray svg = contents(name);
    QSvgRenderer renderer(svg);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.defaultSize(), QSize(24, 24));

    // The same line width everywhere, and one colour, which the theme replaces.
    const QRegularExpression widths(QStringLiteral("stroke-width=\"([^\"]*)\""));
    auto matches = widths.globalMatch(QString::fromLatin1(svg));
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        QCOMPARE(matches.next().captured(1), QStringLiteral("1.75"));
    }

    const QImage image = drawn(QIcon(QLatin1String(folder) + name), 48);
    QCOMPARE(image.size(), QSize(48, 48));
    int seen = 0;
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 48; ++x) {
            const bool isSeen = qAlpha(image.pixel(x, y)) > 127;
            const bool isOnEdge = x == 0 || y == 0 || x == 47 || y == 47;
            seen += isSeen ? 1 : 0;
            QVERIFY(!isSeen || !isOnEdge);
        }
    }
    QVERIFY2(seen > 48, "nothing to see");
}

void IconsTest::icon_isDrawnInTheColourOfText()
{
    QPalette palette;
    palette.setColor(QPalette::ButtonText, QColor(10, 200, 30));
    QGuiApplication::setPalette(palette);
    QCOMPARE(inkOf(drawn(theme::icon(QStringLiteral("Pause")), 32)), QColor(10, 200, 30));
}

void IconsTest::icon_followsThePalette()
{
    const QIcon icon = theme::icon(QStringLiteral("Save"));
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::white);
    QGuiApplication::setPalette(palette);
    const QColor before = inkOf(drawn(icon, 32));
    palette.setColor(QPalette::ButtonText, Qt::black);
    QGuiApplication::setPalette(palette);
    QCOMPARE(before, QColor(Qt::white));
    QCOMPARE(inkOf(drawn(icon, 32)), QColor(Qt::black));
}

void IconsTest::icon_isPalerWhenDisabled()
{
    QPalette palette;
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(90, 90, 90));
    QGuiApplication::setPalette(palette);
    QCOMPARE(inkOf(drawn(theme::icon(QStringLiteral("Save")), 32, QIcon::Disabled)),
             QColor(90, 90, 90));
}

void IconsTest::icon_ofAForm_isALineIcon()
{
    QIcon icon;
    icon.addFile(QStringLiteral(":/Icons/Save.icon"));
    QCOMPARE(icon.name(), QStringLiteral("Save"));
    QCOMPARE(drawn(icon, 24), drawn(theme::icon(QStringLiteral("Save")), 24));
}

void IconsTest::icon_isSharpOnADenseScreen()
{
    // In the painted result each screen pixel is drawn, not one for four.
    QImage screen(48, 48, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(2.0);
    screen.fill(Qt::transparent);
    QPainter painter(&screen);
    theme::icon(QStringLiteral("Camera")).paint(&painter, QRect(0, 0, 24, 24));
    painter.end();
    screen.setDevicePixelRatio(1.0);
    QCOMPARE(screen, drawn(theme::icon(QStringLiteral("Camera")), 48)
                         .convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void IconsTest::ink_ofTheAccent_isThatOfTheSelection()
{
    QPalette palette;
    palette.setColor(QPalette::HighlightedText, QColor(250, 240, 230));
    QGuiApplication::setPalette(palette);
    const QIcon icon = theme::inInk(theme::icon(QStringLiteral("Save")), theme::Ink::Accent);
    QCOMPARE(inkOf(drawn(icon, 32)), QColor(250, 240, 230));
    QVERIFY(theme::inInk(QIcon(), theme::Ink::Accent).isNull());
}

void IconsTest::icon_isNull_whenThereIsNoSuchFile()
{
    QVERIFY(theme::icon(QStringLiteral("None")).isNull());
}

QTEST_MAIN(IconsTest)
#include "IconsTest.moc"
