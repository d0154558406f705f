#pragma once

#include "ui/filmstrip/SnapshotShelf.h"

#include <QString>
#include <QStringList>
#include <QUndoStack>
#include <QWidget>

class QAction;
class QLabel;
class QListView;
class QPushButton;

/// A strip of small pictures of the snapshots taken. A click or Return chooses one; several can be
/// selected, deleted (with undo) or saved. Hidden while there are none. User-interface thread only.
class Filmstrip : public QWidget
{
    Q_OBJECT

public:
    explicit Filmstrip(QWidget* parent = nullptr);
    ~Filmstrip() override;

    /// The contents of the strip. Owned by it.
    [[nodiscard]] SnapshotShelf& shelf() { return *m_shelf; }

    /// Deletes the selection; disabled while there is none.
    [[nodiscard]] QAction* deleteAction() const { return m_deleteAction; }
    /// Undo and redo deletions; their texts name the deletion.
    [[nodiscard]] QAction* undoAction() const { return m_undoAction; }
    [[nodiscard]] QAction* redoAction() const { return m_redoAction; }

    /// Marks a snapshot as the one shown elsewhere, and scrolls to it; an empty name marks none.
    void setCurrent(const QString& id);

    [[nodiscard]] QStringList selected() const;

    /// Places the strip after another control of the same window in the tab order.
    void comeAfter(QWidget& control);

public Q_SLOTS:
    /// Deletes the selected snapshots, which can be undone.
    void deleteSelected();

Q_SIGNALS:
    /// The user requests the snapshot, and the frame in its video.
    void chosen(const QString& id);
    /// The user requests to save these.
    void saveRequested(const QStringList& ids);
    /// A snapshot of the strip, or its state, has changed.
    void contentChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void setupActions();
    void layOut();
    void choose(const QModelIndex& index);
    void showState();
    void scrollToEnd();

    SnapshotShelf* const m_shelf;
    QListView* const m_list;
    QLabel* const m_countLabel;
    QPushButton* const m_saveAllButton;
    /// Holds the deleted ones. Destroyed before the shelf.
    QUndoStack* const m_undoStack;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QAction* m_deleteAction = nullptr;
};
