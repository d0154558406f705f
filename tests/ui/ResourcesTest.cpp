#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QSvgRenderer>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList images(const QString& pattern)
{
    return QDir(QStringLiteral(":/Images")).entryList({pattern}, QDir::Files);
}

/// Perceived brightness of a colour, 0 to 1 (WCAG's relative luminance).
double luminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

} // namespace

/// The files that are built into the program.
class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleSheet_isAcceptedWhole();
    void styleSheet_isAsciiWithoutNul();
    void styleSheet_namesOnlyImagesThatExist();
    void styleSheet_leavesFontsAlone();
    void styleSheet_leavesPlaceholdersPalerThanText();
    void styleSheet_leavesFieldsRoomForTheirText_data();
    void styleSheet_leavesFieldsRoomForTheirText();
    void icons_areDrawn_data();
    void icons_areDrawn();
    void icons_standOutOnLightAndDark_data();
    void icons_standOutOnLightAndDark();
    void applicationIcon_isThereInAllSizes_data();
    void applicationIcon_isThereInAllSizes();
    void watermarkBackground_isAPicture();
};

void ResourcesTest::styleSheet_isAcceptedWhole()
{
    static int warnings = 0;
    warnings = 0;
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
            warnings += type == QtWarningMsg ? 1 : 0;
        });
    const QString sheet = QString::fromLatin1(contents(QStringLiteral(":/Styles.qss")));
    QPushButton button;
    button.setStyleSheet(sheet);
    button.ensurePolished();
    qInstallMessageHandler(previous);
    QVERIFY(!sheet.isEmpty());
    QCOMPARE(warnings, 0);
}

void ResourcesTest::styleSheet_isAsciiWithoutNul()
{
    // It is read as Latin-1 up to the first NUL byte.
    const QByteArray sheet = contents(QStringLiteral(":/Styles.qss"));
    const auto isPlain = [](char c) { return c > 0; };
    QVERIFY(std::all_of(sheet.begin(), sheet.end(), isPlain));
}

void ResourcesTest::styleSheet_namesOnlyImagesThatExist()
{
    const QString sheet = QString::fromLatin1(contents(QStringLiteral(":/Styles.qss")));
    const QRegularExpression url(QStringLiteral("url\\((.*?)\\)"));
    auto matches = url.globalMatch(sheet);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
}

void ResourcesTest::styleSheet_leavesFontsAlone()
{
    // Font labels show the user's font.
    QLabel label;
    label.setFont(QFont(QStringLiteral("Courier"), 14, QFont::Bold));
    const QString before = label.font().toString();
    label.setStyleSheet(QString::fromLatin1(contents(QStringLiteral(":/Styles.qss"))));
    label.ensurePolished();
    QCOMPARE(label.font().toString(), before);
}

void ResourcesTest::styleSheet_leavesPlaceholdersPalerThanText()
{
    QLineEdit edit;
    edit.setStyleSheet(QString::fromLatin1(contents(QStringLiteral(":/Styles.qss"))));
    edit.ensurePolished();
    const QPalette palette = edit.palette();
    QVERIFY(palette.color(QPalette::PlaceholderText) != palette.color(QPalette::Text));
}

void ResourcesTest::styleSheet_leavesFieldsRoomForTheirText_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {8, 10, 15, 30}) {
        QTest::addRow("%d points", points) << points;
    }
}

void ResourcesTest::styleSheet_leavesFieldsRoomForTheirText()
{
    QFETCH(int, points);
    const QFont before = QApplication::font();
    QFont font = before;
    font.setPointSize(points);
    QApplication::setFont(font);
    QLineEdit edit;
    QComboBox box;
    QSpinBox number;
    QPushButton button;
    const std::initializer_list<QWidget*> widgets{&edit, &box, &number, &button};
    for (QWidget* const widget : widgets) {
        widget->setStyleSheet(QString::fromLatin1(contents(QStringLiteral(":/Styles.qss"))));
        widget->ensurePolished();
    }
    QApplication::setFont(before);
    for (const QWidget* const widget : widgets) {
        QVERIFY2(widget->minimumHeight() >= QFontMetrics(font).height(),
                 widget->metaObject()->className());
    }
}

void ResourcesTest::icons_areDrawn_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = images(QStringLiteral("*.svg"));
    for (const QString& wanted : {QStringLiteral("Play.svg"), QStringLiteral("Pause.svg")}) {
        QVERIFY2(names.contains(wanted), qPrintable(wanted));
    }
    for (const QString& name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void ResourcesTest::icons_areDrawn()
{
    QFETCH(QString, name);
    QSvgRenderer renderer(QStringLiteral(":/Images/") + name);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.defaultSize().width(), renderer.defaultSize().height());

    // The icon as buttons show it: through the icon engine, with a margin.
    const QImage image = QIcon(QStringLiteral(":/Images/") + name).pixmap(QSize(48, 48)).toImage();
    QCOMPARE(image.size(), QSize(48, 48));
    int drawn = 0;
    int onEdge = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 127) {
                ++drawn;
                onEdge += x == 0 || y == 0 || x == 47 || y == 47 ? 1 : 0;
            }
        }
    }
    QVERIFY2(drawn > 48, "nothing to see");
    QCOMPARE(onEdge, 0);
}

void ResourcesTest::icons_standOutOnLightAndDark_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = images(QStringLiteral("*.svg"));
    for (const QString& name : names) {
        // The marks in check boxes are drawn on the highlight colour.
        if (name != QLatin1String("Check.svg") && name != QLatin1String("Dash.svg")) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
}

void ResourcesTest::icons_standOutOnLightAndDark()
{
    // The accessibility guidelines require 3 : 1 for controls.
    QFETCH(QString, name);
    const QByteArray svg = contents(QStringLiteral(":/Images/") + name);
    const QRegularExpression colour(QStringLiteral("#[0-9a-f]{6}"));
    auto matches = colour.globalMatch(QString::fromLatin1(svg));
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QColor drawn(matches.next().captured());
        QVERIFY(contrast(drawn, QColor(0xef, 0xef, 0xef)) >= 3.0);
        QVERIFY(contrast(drawn, QColor(0x2d, 0x2d, 0x2d)) >= 3.0);
    }
}

void ResourcesTest::applicationIcon_isThereInAllSizes_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512, 1024}) {
        QTest::addRow("%d", size) << size;
    }
}

void ResourcesTest::applicationIcon_isThereInAllSizes()
{
    QFETCH(int, size);
    const QImage icon(QStringLiteral(":/Images/MVIcon%1.png").arg(size));
    QCOMPARE(icon.size(), QSize(size, size));
    QCOMPARE(qAlpha(icon.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(icon.pixel(size / 2, size / 2)), 255);
}

void ResourcesTest::watermarkBackground_isAPicture()
{
    const QImage picture(QStringLiteral(":/Images/watermarkBackground.jpg"));
    // Four to three, like the default size of output images, so that the preview fills its view.
    QCOMPARE(picture.width() * 3, picture.height() * 4);
    QVERIFY(picture.width() >= 640);
}

QTEST_MAIN(ResourcesTest)
#include "ResourcesTest.moc"
