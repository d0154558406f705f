#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <QVector>

class QMenuBar;
class QWidget;

/// The keys of the main window: their assignment to actions, and the page that lists them.
namespace Shortcuts {

/// Assigns keys to the actions of the window's menus, and makes them work while the menu bar is
/// hidden. Actions with a single key have it in the form.
void giveTo(QWidget& window, const QMenuBar& bar);

/// The actions of one menu that have keys, with texts for people.
struct Section
{
    struct Entry
    {
        QString text;
        QString keys;
    };

    QString title;
    QVector<Entry> entries;
};

/// One section for each menu of the bar that contains an action with keys, in order; submenus
/// belong to the section of their menu. Uses the current state of the actions.
[[nodiscard]] QVector<Section> sectionsOf(const QMenuBar& bar);

/// The sections as an HTML page, followed by the mouse actions, which no menu lists.
[[nodiscard]] QString pageOf(const QVector<Section>& sections);

/// Shows that page in front of the window until it is closed.
void showPage(QWidget& window, const QMenuBar& bar);

} // namespace Shortcuts
