#pragma once

#include <QListView>

/// The list of a filmstrip. Up and Down go from one snapshot to another, so that Left and Right can
/// be those of the window, which steps through the video by them; where the window has no use for
/// them, they go from one snapshot to another, too. User-interface thread only.
class FilmstripList : public QListView
{
    Q_OBJECT

public:
    explicit FilmstripList(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};
