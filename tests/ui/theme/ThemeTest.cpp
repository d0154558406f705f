#include "ui/theme/Theme.h"
#include "tests/ui/support/TestSettings.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using testsupport::TestSettings;

namespace {

/// A desktop whose palette changes, as the program's style gets to see it.
class ChangingDesktop : public QProxyStyle
{
public:
    ChangingDesktop()
        : QProxyStyle(QApplication::style())
    {}

    using QProxyStyle::polish;
    void polish(QPalette& palette) override
    {
        palette = m_palette;
        QProxyStyle::polish(palette);
    }

    void change(const QColor& ground)
    {
        m_palette = QPalette(ground);
        // Has Qt look at the system's palette, as a change of it does.
        QApplication::setPalette(QApplication::palette());
    }

private:
    QPalette m_palette{Qt::white};
};

QColor windowColour(theme::Scheme scheme)
{
    return theme::palette(scheme).color(QPalette::Window);
}

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
    void system_isFollowed_whenItsPaletteChanges();
    void system_isFollowed_whenItGivesTheApplicationAPalette();
    void chosenTheme_stays_whateverTheSystemBecomes();
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

void ThemeTest::system_isFollowed_whenItsPaletteChanges()
{
    Theme& theme = Theme::instance();
    theme.apply(Theme::Choice::System);
    auto* const desktop = new ChangingDesktop;
    QApplication::setStyle(desktop);
    QCOMPARE(theme.scheme(), theme::Scheme::Light);
    QWidget window;
    window.resize(40, 40);
    window.show();
    QSignalSpy changed(&theme, &Theme::changed);
    desktop->change(QColor(40, 40, 40));
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(theme.choice(), Theme::Choice::System);
    QCOMPARE(theme.scheme(), theme::Scheme::Dark);
    QCOMPARE(groundOf(window), windowColour(theme::Scheme::Dark));
    desktop->change(Qt::white);
    QTRY_COMPARE(changed.size(), 2);
    QCOMPARE(groundOf(window), windowColour(theme::Scheme::Light));
    // It stays at that.
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), 2);
}

void ThemeTest::system_isFollowed_whenItGivesTheApplicationAPalette()
{
    Theme& theme = Theme::instance();
    theme.apply(Theme::Choice::System);
    QWidget window;
    window.resize(40, 40);
    window.show();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QTRY_COMPARE(groundOf(window), windowColour(theme::Scheme::Dark));
    QCOMPARE(theme.scheme(), theme::Scheme::Dark);
    QApplication::setPalette(QPalette(QColor(Qt::white)));
    QTRY_COMPARE(groundOf(window), windowColour(theme::Scheme::Light));
}

void ThemeTest::chosenTheme_stays_whateverTheSystemBecomes()
{
    Theme& theme = Theme::instance();
    theme.apply(Theme::Choice::Light);
    QWidget window;
    window.resize(40, 40);
    window.show();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QTRY_COMPARE(groundOf(window), windowColour(theme::Scheme::Light));
    // What it became is taken when it is asked for.
    theme.apply(Theme::Choice::System);
    QCOMPARE(groundOf(window), windowColour(theme::Scheme::Dark));
    QApplication::setPalette(QPalette(QColor(Qt::white)));
    QTRY_COMPARE(groundOf(window), windowColour(theme::Scheme::Light));
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
