#include "ui/filmstrip/FilmstripList.h"

FilmstripList::FilmstripList(QWidget* parent)
    : QListView(parent)
{}

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
