#include "ui/theme/Theme.h"
#include "tests/ui/support/TestSettings.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using testsupport::TestSettings;

namespace {

QColor groundOf(QWidget& widget)
{
    return widget.grab().toImage().pixelColor(widget.width() / 2, widget.height() / 2);
}

} // namespace

class ThemeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void choice_isDark_untilAnotherIsMade();
    void choice_isRemembered_data();
    void choice_isRemembered();
    void open_window_changesAtOnce();
    void system_isWhatTheDesktopIs();
    void sheet_isMadeAnew_forThePaletteOfTheTheme();
    void primaryButton_standsOut_untilItIsAnOrdinaryOneAgain();
    void messageBox_hasALineIcon();
};

void ThemeTest::cleanup()
{
    qApp->setStyleSheet(QString());
}

void ThemeTest::choice_isDark_untilAnotherIsMade()
{
    const TestSettings settings;
    QCOMPARE(Theme::storedIn(QSettings()), Theme::Choice::Dark);
    QSettings().setValue(QStringLiteral("theme"), QStringLiteral("pink"));
    QCOMPARE(Theme::storedIn(QSettings()), Theme::Choice::Dark);
}

void ThemeTest::choice_isRemembered_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("text");
    QTest::newRow("dark") << int(Theme::Choice::Dark) << QStringLiteral("dark");
    QTest::newRow("light") << int(Theme::Choice::Light) << QStringLiteral("light");
    QTest::newRow("system") << int(Theme::Choice::System) << QStringLiteral("system");
}

void ThemeTest::choice_isRemembered()
{
    QFETCH(const int, choice);
    QFETCH(const QString, text);
    const TestSettings testSettings;
    QSettings settings;
    Theme::store(settings, Theme::Choice(choice));
    QCOMPARE(settings.value(QStringLiteral("theme")).toString(), text);
    QCOMPARE(Theme::storedIn(settings), Theme::Choice(choice));
}

void ThemeTest::open_window_changesAtOnce()
{
    Theme& theme = Theme::instance();
    theme.apply(Theme::Choice::Dark);
    QWidget window;
    window.resize(40, 40);
    window.show();
    QCOMPARE(groundOf(window), theme::palette(theme::Scheme::Dark).color(QPalette::Window));
    QSignalSpy changed(&theme, &Theme::changed);
    theme.apply(Theme::Choice::Light);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(theme.choice(), Theme::Choice::Light);
    QCOMPARE(groundOf(window), theme::palette(theme::Scheme::Light).color(QPalette::Window));
}

void ThemeTest::system_isWhatTheDesktopIs()
{
    // The tests start with Qt's own light palette.
    Theme::instance().apply(Theme::Choice::Dark);
    Theme::instance().apply(Theme::Choice::System);
    QCOMPARE(Theme::instance().scheme(), theme::Scheme::Light);
    QCOMPARE(QApplication::palette().color(QPalette::Window),
             theme::palette(theme::Scheme::Light).color(QPalette::Window));
}

void ThemeTest::sheet_isMadeAnew_forThePaletteOfTheTheme()
{
    Theme& theme = Theme::instance();
    theme.apply(Theme::Choice::Dark);
    qApp->setStyleSheet(
        QStringLiteral("QPushButton { border: none; background: palette(highlight); }"));
    QPushButton button;
    button.resize(60, 30);
    button.show();
    QCOMPARE(groundOf(button), theme::palette(theme::Scheme::Dark).color(QPalette::Highlight));
    theme.apply(Theme::Choice::Light);
    QCOMPARE(groundOf(button), theme::palette(theme::Scheme::Light).color(QPalette::Highlight));
}

void ThemeTest::primaryButton_standsOut_untilItIsAnOrdinaryOneAgain()
{
    QFile sheet(QStringLiteral(":/Styles.qss"));
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    Theme::instance().apply(Theme::Choice::Dark);
    qApp->setStyleSheet(QString::fromLatin1(sheet.readAll()));
    const QPalette palette = theme::palette(theme::Scheme::Dark);
    QPushButton button;
    button.resize(80, 30);
    button.show();
    QCOMPARE(groundOf(button), palette.color(QPalette::Button));
    Theme::setPrimary(button, true);
    QVERIFY(Theme::isPrimary(button));
    QCOMPARE(groundOf(button), palette.color(QPalette::Highlight));
    Theme::setPrimary(button, false);
    QVERIFY(!Theme::isPrimary(button));
    QCOMPARE(groundOf(button), palette.color(QPalette::Button));
}

void ThemeTest::messageBox_hasALineIcon()
{
    Theme::instance().apply(Theme::Choice::Dark);
    const QMessageBox box(QMessageBox::Warning, QString(), QString());
    const QImage icon = box.iconPixmap().toImage();
    QVERIFY(!icon.isNull());
    const QColor text = theme::palette(theme::Scheme::Dark).color(QPalette::ButtonText);
    bool isSeen = false;
    for (int x = 0; x < icon.width(); ++x) {
        const QColor here = icon.pixelColor(x, icon.height() / 2);
        isSeen = isSeen || here == text;
    }
    QVERIFY(isSeen);
}

QTEST_MAIN(ThemeTest)
#include "ThemeTest.moc"
