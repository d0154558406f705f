#include "ui/theme/Theme.h"

#include "ui/theme/Icons.h"
#include "ui/theme/ThemeStyle.h"

#include <QApplication>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QVariant>

#include <memory>

namespace {

const QString key = QStringLiteral("theme");
const QString lightName = QStringLiteral("light");
const QString systemName = QStringLiteral("system");

/// The style sheet highlights buttons with this property.
constexpr char primaryProperty[] = "primary";

} // namespace

Theme::Theme(QObject* parent)
    : QObject(parent)
    , m_systemScheme(theme::schemeOf(QGuiApplication::palette()))
{}

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
    if (!m_isApplied) {
        m_isApplied = true;
        // The application takes ownership.
        QApplication::setStyle(std::make_unique<ThemeStyle>().release());
    }
    m_choice = choice;
    QApplication::setPalette(theme::palette(scheme()));
    // Widgets keep colours that style sheet rules took from the palette until the sheet is set
    // again.
    if (!qApp->styleSheet().isEmpty()) {
        qApp->setStyleSheet(qApp->styleSheet());
    }
    Q_EMIT changed();
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
