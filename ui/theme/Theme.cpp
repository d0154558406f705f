#include "ui/theme/Theme.h"

#include "ui/theme/Icons.h"
#include "ui/theme/ThemeStyle.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <memory>

namespace {

const QString key = QStringLiteral("theme");
const QString lightName = QStringLiteral("light");
const QString systemName = QStringLiteral("system");

/// The style sheet highlights buttons with this property.
constexpr char primaryProperty[] = "primary";

bool areAlike(const QPalette& a, const QPalette& b)
{
    const auto roles = {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::Highlight};
    return std::all_of(roles.begin(), roles.end(),
                       [&](QPalette::ColorRole role) { return a.color(role) == b.color(role); });
}

} // namespace

Theme::Theme(QObject* parent)
    : QObject(parent)
    , m_paletteScheme(theme::schemeOf(QGuiApplication::palette()))
    , m_systemScheme(m_paletteScheme)
{
    qApp->installEventFilter(this);
}

Theme& Theme::instance()
{
    auto* theme = qApp->findChild<Theme*>(QString(), Qt::FindDirectChildrenOnly);
    if (theme == nullptr) {
        theme = new Theme(qApp);
    }
    return *theme;
}

Theme::Choice Theme::storedIn(const QSettings& settings)
{
    const QString name = settings.value(key).toString();
    if (name == lightName) {
        return Choice::Light;
    }
    return name == systemName ? Choice::System : Choice::Dark;
}

void Theme::store(QSettings& settings, Choice choice)
{
    switch (choice) {
    case Choice::Dark:
        settings.setValue(key, QStringLiteral("dark"));
        break;
    case Choice::Light:
        settings.setValue(key, lightName);
        break;
    case Choice::System:
        settings.setValue(key, systemName);
        break;
    }
}

void Theme::apply(Choice choice)
{
    if (!m_applied) {
        auto style = std::make_unique<ThemeStyle>();
        connect(style.get(), &ThemeStyle::systemPaletteSeen, this, &Theme::noteSystemPalette);
        // The application takes ownership.
        QApplication::setStyle(style.release());
    }
    m_choice = choice;
    m_applied = scheme();
    QApplication::setPalette(theme::palette(*m_applied));
    // Qt 6 posts it to the windows, where it would arrive only after the style sheet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::ApplicationPaletteChange);
    // Widgets keep colours that style sheet rules took from the palette until the sheet is set
    // again.
    if (!qApp->styleSheet().isEmpty()) {
        qApp->setStyleSheet(qApp->styleSheet());
    }
    Q_EMIT changed();
}

/// Some desktops give the application a palette of their own instead, over ours.
bool Theme::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp && m_applied) {
        const QPalette palette = QGuiApplication::palette();
        if (!areAlike(palette, theme::palette(*m_applied))) {
            m_systemScheme = theme::schemeOf(palette);
            applyLater();
        }
    }
    return QObject::eventFilter(watched, event);
}

void Theme::noteSystemPalette(const QPalette& palette)
{
    const theme::Scheme scheme = theme::schemeOf(palette);
    if (scheme == m_paletteScheme) {
        return;
    }
    m_paletteScheme = scheme;
    m_systemScheme = scheme;
    if (m_choice == Choice::System) {
        applyLater();
    }
}

/// Qt is in the middle of changing palettes.
void Theme::applyLater()
{
    QTimer::singleShot(0, this, [this] { apply(m_choice); });
}

Theme::Choice Theme::choice() const
{
    return m_choice;
}

theme::Scheme Theme::scheme() const
{
    if (m_choice == Choice::System) {
        return m_systemScheme;
    }
    return m_choice == Choice::Light ? theme::Scheme::Light : theme::Scheme::Dark;
}

void Theme::setPrimary(QPushButton& button, bool isPrimary)
{
    if (isPrimary == Theme::isPrimary(button)) {
        return;
    }
    button.setProperty(primaryProperty, isPrimary);
    button.setIcon(theme::inInk(button.icon(), isPrimary ? theme::Ink::Accent : theme::Ink::Text));
    button.style()->unpolish(&button);
    button.style()->polish(&button);
}

bool Theme::isPrimary(const QPushButton& button)
{
    return button.property(primaryProperty).toBool();
}
