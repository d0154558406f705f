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

/// The snapshots that were taken, as a strip of small pictures: one is chosen by a click or by
/// Return, several are selected, deleted and brought back, or saved. Hidden while there are none.
/// User-interface thread only.
class Filmstrip : public QWidget
{
    Q_OBJECT

public:
    explicit Filmstrip(QWidget* parent = nullptr);
    ~Filmstrip() override;

    /// What is in the strip. Owned by it.
    [[nodiscard]] SnapshotShelf& shelf() { return *m_shelf; }

    /// Deletes what is selected; enabled while something is.
    [[nodiscard]] QAction* deleteAction() const { return m_deleteAction; }
    /// Take deletions back and make them again, and say so in their texts.
    [[nodiscard]] QAction* undoAction() const { return m_undoAction; }
    [[nodiscard]] QAction* redoAction() const { return m_redoAction; }

    /// Marks a snapshot as the one that is shown elsewhere, and brings it into view; an empty name
    /// marks none.
    void setCurrent(const QString& id);

    [[nodiscard]] QStringList selected() const;

    /// Has Tab come here from another control of the same window.
    void comeAfter(QWidget& control);

public Q_SLOTS:
    /// Deletes the selected snapshots, which can be undone.
    void deleteSelected();

Q_SIGNALS:
    /// The user wants to see the snapshot, and the frame in its video.
    void chosen(const QString& id);
    /// The user wants these as files.
    void saveRequested(const QStringList& ids);
    /// Something of what is in the strip is another.
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
    /// Keeps the deleted ones. Goes before the shelf.
    QUndoStack* const m_undoStack;
    QAction* m_undoAction = nullptr;
    QAction* m_redoAction = nullptr;
    QAction* m_deleteAction = nullptr;
};
