#pragma once

#include <QListView>

/// The list of a filmstrip. Up and Down go from one snapshot to another, since Left and Right are
/// shortcuts of the window, which steps through the video by them; where the window has no use for
/// them, they go from one snapshot to another, too. User-interface thread only.
class FilmstripList : public QListView
{
    Q_OBJECT

public:
    explicit FilmstripList(QWidget* parent = nullptr);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};
