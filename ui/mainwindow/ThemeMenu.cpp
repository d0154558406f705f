#include "ui/mainwindow/ThemeMenu.h"

#include "ui/theme/Theme.h"

#include <QAction>
#include <QActionGroup>
#include <QSettings>

ThemeMenu::ThemeMenu(QSettings& settings, QWidget* parent)
    : QMenu(tr("Theme"), parent)
{
    setObjectName(QStringLiteral("menuTheme"));
    auto* const group = new QActionGroup(this);
    const Theme::Choice stored = Theme::storedIn(settings);
    const auto add = [&](Theme::Choice choice, const QString& text, const QString& name) {
        QAction* const action = addAction(text);
        action->setObjectName(name);
        action->setCheckable(true);
        action->setChecked(choice == stored);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [&settings, choice] {
            Theme::store(settings, choice);
            Theme::instance().apply(choice);
        });
    };
    add(Theme::Choice::Dark, tr("Dark"), QStringLiteral("actionThemeDark"));
    add(Theme::Choice::Light, tr("Light"), QStringLiteral("actionThemeLight"));
    add(Theme::Choice::System, tr("As the System"), QStringLiteral("actionThemeSystem"));
}
