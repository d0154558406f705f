#include "ui/mainwindow/Mnemonics.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// The letter already marked in a text; null for none.
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

/// Whether the letter is written with an input method instead of a key.
bool isIdeographic(QChar letter)
{
    const QChar::Script script = letter.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana ||
           script == QChar::Script_Katakana || letter == QChar(0x30fc);
}

/// Takes the first free letter.
QChar takeLatin(QSet<QChar>& taken, const QString& hint)
{
    const QString letters = hint.toLower() + QStringLiteral("abcdefghijklmnopqrstuvwxyz");
    for (const QChar letter : letters) {
        if (letter.isLetter() && !taken.contains(letter)) {
            taken.insert(letter);
            return letter.toUpper();
        }
    }
    return {};
}

/// "Open" for the action that has this in its name.
QString hintOf(const QAction& action)
{
    QString name = action.objectName();
    if (name.isEmpty() && action.menu() != nullptr) {
        name = action.menu()->objectName();
    }
    static const QRegularExpression kind(QStringLiteral("^(action|menu)_?"));
    return name.remove(kind);
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
            action->setText(Mnemonics::marked(action->text(), taken, hintOf(*action)));
        }
    }
}

} // namespace

QString Mnemonics::marked(const QString& text, QSet<QChar>& taken, const QString& hint)
{
    if (std::any_of(text.cbegin(), text.cend(), isIdeographic)) {
        const QChar letter = takeLatin(taken, hint);
        const int end = text.endsWith(QChar(0x2026)) ? text.size() - 1 : text.size();
        return letter.isNull() ? text
                               : QString(text).insert(end, QStringLiteral("(&%1)").arg(letter));
    }
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

QString Mnemonics::plain(const QString& text)
{
    static const QRegularExpression behind(QStringLiteral("\\(&\\w\\)"));
    // Two ampersands are shown as one; a single one marks the next letter.
    const QString both = QStringLiteral("&&");
    QStringList parts = text.split(both);
    for (QString& part : parts) {
        part.remove(behind).remove(QLatin1Char('&'));
    }
    return parts.join(QLatin1Char('&'));
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
