#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <QVector>

class QMenuBar;
class QWidget;

/// The keys of the main window: which action has which, and the page that tells them all.
namespace Shortcuts {

/// Gives the actions of the window's menus their keys, and has them work where the menu bar is not
/// shown, too. An action that has one key has it from the form.
void giveTo(QWidget& window, const QMenuBar& bar);

/// The actions of one menu that have keys, as they are told to people.
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

/// One section for each menu of the bar in which an action has a key, in their order, submenus with
/// the menu that they are in. Made from the actions as they are at this moment.
[[nodiscard]] QVector<Section> sectionsOf(const QMenuBar& bar);

/// The sections as a page of HTML, and below it the ways with the mouse that no action tells of.
[[nodiscard]] QString pageOf(const QVector<Section>& sections);

/// Shows that page for the window, until it is closed.
void showPage(QWidget& window, const QMenuBar& bar);

} // namespace Shortcuts
