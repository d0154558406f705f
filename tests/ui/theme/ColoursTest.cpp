#include "ui/theme/Colours.h"
#include "ui/theme/Contrast.h"

#include <QTest>

#include <initializer_list>

using theme::contrast;
using theme::Scheme;

namespace {

/// Required by the accessibility guidelines between a text and its background.
constexpr double forText = 4.5;
/// Required for the outline of a control.
constexpr double forControls = 3.0;

using Role = QPalette::ColorRole;

} // namespace

class ColoursTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrast_isThatOfTheGuidelines();
    void texts_canBeRead_data();
    void texts_canBeRead();
    void outlines_standOut_data();
    void outlines_standOut();
    void chrome_isNeutral_data();
    void chrome_isNeutral();
    void disabledText_isPalerAndSeen_data();
    void disabledText_isPalerAndSeen();
    void scheme_isToldFromAPalette();

private:
    static void addSchemes();
};

void ColoursTest::addSchemes()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("dark") << true;
    QTest::newRow("light") << false;
}

void ColoursTest::contrast_isThatOfTheGuidelines()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
    QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
    // The guidelines' own example of a grey that just suffices on white, and one that does not.
    QVERIFY(contrast(QColor(0x76, 0x76, 0x76), Qt::white) >= forText);
    QVERIFY(contrast(QColor(0x77, 0x77, 0x77), Qt::white) < forText);
}

void ColoursTest::texts_canBeRead_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<int>("text");
    QTest::addColumn<int>("ground");
    struct Pair
    {
        const char* name;
        Role text;
        Role ground;
    };
    const Pair pairs[] = {
        {"window", Role::WindowText, Role::Window},
        {"field", Role::Text, Role::Base},
        {"every other row", Role::Text, Role::AlternateBase},
        {"button", Role::ButtonText, Role::Button},
        {"button pointed at", Role::ButtonText, theme::hoverRole},
        {"button pressed", Role::ButtonText, theme::pressedRole},
        {"selection", Role::HighlightedText, theme::accentRole},
        {"tool tip", Role::ToolTipText, Role::ToolTipBase},
        {"placeholder", theme::quietTextRole, Role::Base},
        {"quiet text", theme::quietTextRole, Role::Window},
        {"quiet text beside pictures", theme::quietTextRole, theme::canvasRole},
        {"text beside pictures", Role::WindowText, theme::canvasRole},
        {"link", Role::Link, Role::Window},
        {"link in a field", Role::Link, Role::Base},
        {"link visited", Role::LinkVisited, Role::Base},
        {"error", theme::errorRole, Role::Window},
    };
    for (const bool isDark : {true, false}) {
        for (const Pair& pair : pairs) {
            QTest::addRow("%s, %s", isDark ? "dark" : "light", pair.name)
                << isDark << int(pair.text) << int(pair.ground);
        }
    }
}

void ColoursTest::texts_canBeRead()
{
    QFETCH(const bool, isDark);
    QFETCH(const int, text);
    QFETCH(const int, ground);
    const QPalette palette = theme::palette(isDark ? Scheme::Dark : Scheme::Light);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const double is =
            contrast(palette.color(group, Role(text)), palette.color(group, Role(ground)));
        QVERIFY2(is >= forText, qPrintable(QString::number(is)));
    }
}

void ColoursTest::outlines_standOut_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("ground");
    struct Pair
    {
        const char* name;
        Role line;
        Role ground;
    };
    const Pair pairs[] = {
        {"control", theme::outlineRole, Role::Window},
        {"field", theme::outlineRole, Role::Base},
        {"button", theme::outlineRole, Role::Button},
        {"focus in a window", theme::accentLineRole, Role::Window},
        {"focus on a button", theme::accentLineRole, Role::Button},
        {"focus on a field", theme::accentLineRole, Role::Base},
        {"focus beside pictures", theme::accentLineRole, theme::canvasRole},
        {"focus on the main button", Role::Text, theme::accentRole},
        {"main button", theme::accentRole, Role::Window},
        {"refused field", theme::errorRole, Role::Base},
    };
    for (const bool isDark : {true, false}) {
        for (const Pair& pair : pairs) {
            QTest::addRow("%s, %s", isDark ? "dark" : "light", pair.name)
                << isDark << int(pair.line) << int(pair.ground);
        }
    }
}

void ColoursTest::outlines_standOut()
{
    QFETCH(const bool, isDark);
    QFETCH(const int, line);
    QFETCH(const int, ground);
    const QPalette palette = theme::palette(isDark ? Scheme::Dark : Scheme::Light);
    const double is = contrast(palette.color(Role(line)), palette.color(Role(ground)));
    QVERIFY2(is >= forControls, qPrintable(QString::number(is)));
}

void ColoursTest::chrome_isNeutral_data()
{
    addSchemes();
}

void ColoursTest::chrome_isNeutral()
{
    // A tint beside a picture changes how its colours are perceived.
    QFETCH(const bool, isDark);
    const QPalette palette = theme::palette(isDark ? Scheme::Dark : Scheme::Light);
    for (const Role role : {Role::Window, Role::Base, Role::Button, Role::WindowText,
                            theme::canvasRole, theme::outlineRole, theme::separatorRole}) {
        QCOMPARE(palette.color(role).saturation(), 0);
    }
}

void ColoursTest::disabledText_isPalerAndSeen_data()
{
    addSchemes();
}

void ColoursTest::disabledText_isPalerAndSeen()
{
    QFETCH(const bool, isDark);
    const QPalette palette = theme::palette(isDark ? Scheme::Dark : Scheme::Light);
    const QColor ground = palette.color(Role::Window);
    const double enabled = contrast(palette.color(Role::WindowText), ground);
    const double disabled = contrast(palette.color(QPalette::Disabled, Role::WindowText), ground);
    QVERIFY(disabled < enabled / 2.0);
    QVERIFY(disabled >= 2.5);
}

void ColoursTest::scheme_isToldFromAPalette()
{
    QCOMPARE(theme::schemeOf(theme::palette(Scheme::Dark)), Scheme::Dark);
    QCOMPARE(theme::schemeOf(theme::palette(Scheme::Light)), Scheme::Light);
    QCOMPARE(theme::schemeOf(QPalette(QColor(0xef, 0xef, 0xef))), Scheme::Light);
}

QTEST_GUILESS_MAIN(ColoursTest)
#include "ColoursTest.moc"
