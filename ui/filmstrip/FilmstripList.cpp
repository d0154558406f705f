#include "ui/filmstrip/FilmstripList.h"

#include <QEvent>

FilmstripList::FilmstripList(QWidget* parent)
    : QListView(parent)
{}

/// The view claims the arrow keys before shortcuts get them.
bool FilmstripList::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->ignore();
        return false;
    }
    return QListView::event(event);
}

QModelIndex FilmstripList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // It runs the other way from right to left.
    switch (action) {
    case MoveUp:
        return QListView::moveCursor(isRightToLeft() ? MoveRight : MoveLeft, modifiers);
    case MoveDown:
        return QListView::moveCursor(isRightToLeft() ? MoveLeft : MoveRight, modifiers);
    default:
        return QListView::moveCursor(action, modifiers);
    }
}
