#include "ui/filmstrip/FilmstripList.h"

FilmstripList::FilmstripList(QWidget* parent)
    : QListView(parent)
{}

QModelIndex FilmstripList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    // The direction is reversed in right-to-left layouts.
    switch (action) {
    case MoveUp:
        return QListView::moveCursor(isRightToLeft() ? MoveRight : MoveLeft, modifiers);
    case MoveDown:
        return QListView::moveCursor(isRightToLeft() ? MoveLeft : MoveRight, modifiers);
    default:
        return QListView::moveCursor(action, modifiers);
    }
}
