#include "ui/mainwindow/Mnemonics.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace {

/// The letter that a text marks already; null for none.
QChar markIn(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&')) {
            continue;
        }
        if (text.at(i + 1) != QLatin1Char('&')) {
            return text.at(i + 1).toLower();
        }
        ++i;
    }
    return {};
}

bool isFirstOfWord(const QString& text, int i)
{
    return i == 0 || !text.at(i - 1).isLetterOrNumber();
}

void mark(const QList<QAction*>& actions)
{
    QSet<QChar> taken;
    for (const QAction* const action : actions) {
        taken.insert(markIn(action->text()));
    }
    for (QAction* const action : actions) {
        if (!action->isSeparator() && markIn(action->text()).isNull()) {
            action->setText(Mnemonics::marked(action->text(), taken));
        }
    }
}

} // namespace

QString Mnemonics::marked(const QString& text, QSet<QChar>& taken)
{
    for (const bool anywhere : {false, true}) {
        for (int i = 0; i < text.size(); ++i) {
            const QChar letter = text.at(i).toLower();
            const bool fits = letter.isLetterOrNumber() && (anywhere || isFirstOfWord(text, i));
            if (fits && !taken.contains(letter)) {
                taken.insert(letter);
                return QString(text).insert(i, QLatin1Char('&'));
            }
        }
    }
    return text;
}

void Mnemonics::giveTo(QMenuBar& bar)
{
    auto* const mnemonics = new Mnemonics(&bar);
    mark(bar.actions());
    const auto menus = bar.findChildren<QMenu*>();
    for (QMenu* const menu : menus) {
        mnemonics->follow(*menu);
    }
}

void Mnemonics::follow(QMenu& menu)
{
    connect(&menu, &QMenu::aboutToShow, this, [&menu] { mark(menu.actions()); });
}
