#pragma once

#include <QListView>

/// The list of a filmstrip. Up and Down move between snapshots, because Left and Right are
/// shortcuts of the window for stepping through the video; if the window does not handle them, they
/// move between snapshots, too. User-interface thread only.
class FilmstripList : public QListView
{
    Q_OBJECT

public:
    explicit FilmstripList(QWidget* parent = nullptr);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};
