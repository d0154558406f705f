#include "ui/mainwindow/LanguageMenu.h"

#include "product/ProductInfo.h"
#include "ui/language/Languages.h"

#include <QActionGroup>
#include <QSettings>

LanguageMenu::LanguageMenu(QWidget* parent)
    : QMenu(tr("Language"), parent)
    , m_group(new QActionGroup(this))
{
    setObjectName(QStringLiteral("menuLanguage"));
    add(tr("System Language"), QString());
    addSeparator();
    const QStringList languages = Languages::available();
    for (const QString& language : languages) {
        add(Languages::nativeName(language), language);
    }
}

void LanguageMenu::add(const QString& text, const QString& language)
{
    QAction* const action = addAction(text);
    action->setObjectName(QLatin1String("actionLanguage_") + language);
    action->setCheckable(true);
    action->setChecked(Languages::chosen(QSettings()) == language);
    m_group->addAction(action);
    connect(action, &QAction::triggered, this, [this, language] { choose(language); });
}

void LanguageMenu::choose(const QString& language)
{
    QSettings settings;
    if (language != Languages::chosen(settings)) {
        Languages::setChosen(settings, language);
        Q_EMIT message(
            tr("%1 shows this language when it is started again.").arg(ProductInfo::name()));
    }
}
