#include "ui/filmstrip/Filmstrip.h"

#include "ui/filmstrip/FilmstripDelegate.h"
#include "ui/filmstrip/FilmstripList.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <utility>

namespace {

/// Maximum number of deletions that can be undone.
constexpr int mostUndoSteps = 50;

/// Snapshots removed from the strip. Their files are removed with this object unless they were put
/// back.
class Deletion : public QUndoCommand
{
public:
    Deletion(SnapshotShelf& shelf, const QModelIndexList& indexes)
        : m_shelf(shelf)
        , m_indexes(indexes.cbegin(), indexes.cend())
    {
        setText(indexes.size() == 1
                    ? Filmstrip::tr("Delete 1 Snapshot")
                    : Filmstrip::tr("Delete %n Snapshots", nullptr, indexes.size()));
    }

    ~Deletion() override { m_shelf.discard(m_taken); }
    Deletion(const Deletion&) = delete;
    Deletion& operator=(const Deletion&) = delete;

    void redo() override
    {
        QModelIndexList indexes;
        for (const QPersistentModelIndex& index : qAsConst(m_indexes)) {
            if (index.isValid()) {
                indexes.append(index);
            }
        }
        m_taken = m_shelf.take(indexes);
    }

    void undo() override
    {
        const QVector<SnapshotShelf::Taken> taken = std::exchange(m_taken, {});
        m_shelf.putBack(taken);
        m_indexes.clear();
        for (const SnapshotShelf::Taken& one : taken) {
            m_indexes.append(m_shelf.indexOf(one.entry.note.id));
        }
    }

private:
    SnapshotShelf& m_shelf;
    QVector<QPersistentModelIndex> m_indexes;
    QVector<SnapshotShelf::Taken> m_taken; ///< valid while they are removed
};

} // namespace

Filmstrip::Filmstrip(QWidget* parent)
    : QWidget(parent)
    , m_shelf(new SnapshotShelf(this))
    , m_list(new FilmstripList(this))
    , m_countLabel(new QLabel(this))
    , m_saveAllButton(new QPushButton(tr("Save All"), this))
    , m_undoStack(new QUndoStack(this))
{
    m_undoStack->setUndoLimit(mostUndoSteps);
    layOut();
    setupActions();
    connect(m_shelf, &QAbstractItemModel::rowsInserted, this, &Filmstrip::scrollToEnd);
    connect(m_shelf, &QAbstractItemModel::rowsInserted, this, &Filmstrip::showState);
    connect(m_shelf, &QAbstractItemModel::rowsRemoved, this, &Filmstrip::showState);
    connect(m_shelf, &QAbstractItemModel::dataChanged, this, &Filmstrip::showState);
    connect(m_saveAllButton, &QPushButton::clicked, this,
            [this] { Q_EMIT saveRequested(m_shelf->unsaved()); });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Filmstrip::showState);
    showState();
}

Filmstrip::~Filmstrip()
{
    // The deletions use the shelf, so they must be destroyed before it.
    m_undoStack->clear();
}

void Filmstrip::layOut()
{
    m_list->setObjectName(QStringLiteral("filmstrip"));
    m_list->setAccessibleName(tr("Filmstrip"));
    m_list->setModel(m_shelf);
    auto* const delegate = new FilmstripDelegate(m_list);
    m_list->setItemDelegate(delegate);
    m_list->setFlow(QListView::LeftToRight);
    m_list->setWrapping(false);
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->setFocusPolicy(Qt::TabFocus);
    QStyleOptionViewItem option;
    option.fontMetrics = m_list->fontMetrics();
    // Includes the scroll bar, so that the video keeps its size when the strip grows.
    m_list->setFixedHeight(delegate->sizeHint(option, {}).height() +
                           m_list->horizontalScrollBar()->sizeHint().height() +
                           2 * m_list->frameWidth());

    m_countLabel->setObjectName(QStringLiteral("filmstripCountLabel"));
    m_countLabel->setAlignment(Qt::AlignCenter);
    m_saveAllButton->setObjectName(QStringLiteral("saveAllButton"));
    m_saveAllButton->setToolTip(tr("Save all snapshots that are not saved yet"));
    m_saveAllButton->setFocusPolicy(Qt::TabFocus);
    auto* const side = new QVBoxLayout;
    side->addStretch();
    side->addWidget(m_countLabel);
    side->addWidget(m_saveAllButton);
    side->addStretch();
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    layout->addLayout(side);
}

void Filmstrip::setupActions()
{
    m_undoAction = m_undoStack->createUndoAction(this, tr("Undo"));
    m_undoAction->setObjectName(QStringLiteral("actionUndo"));
    m_undoAction->setShortcut(QKeySequence::Undo);
    m_redoAction = m_undoStack->createRedoAction(this, tr("Redo"));
    m_redoAction->setObjectName(QStringLiteral("actionRedo"));
    m_redoAction->setShortcut(QKeySequence::Redo);
    m_deleteAction = new QAction(tr("Delete Snapshots"), this);
    m_deleteAction->setObjectName(QStringLiteral("actionDeleteSnapshots"));
    m_deleteAction->setShortcut(QKeySequence::Delete);
    connect(m_deleteAction, &QAction::triggered, this, &Filmstrip::deleteSelected);
    connect(m_list, &QListView::activated, this, &Filmstrip::choose);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex& index) {
        // With these modifiers, a click selects.
        if ((QApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) == 0) {
            choose(index);
        }
    });
}

void Filmstrip::choose(const QModelIndex& index)
{
    Q_EMIT chosen(index.data(SnapshotShelf::IdRole).toString());
}

void Filmstrip::setCurrent(const QString& id)
{
    const QModelIndex index = m_shelf->indexOf(id);
    QItemSelectionModel& selection = *m_list->selectionModel();
    if (!index.isValid()) {
        selection.clear();
    } else if (selection.currentIndex() != index || !selection.isSelected(index)) {
        selection.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    }
}

QStringList Filmstrip::selected() const
{
    QStringList ids;
    const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        ids.append(index.data(SnapshotShelf::IdRole).toString());
    }
    return ids;
}

void Filmstrip::comeAfter(QWidget& control)
{
    setTabOrder(&control, m_list);
    setTabOrder(m_list, m_saveAllButton);
}

void Filmstrip::deleteSelected()
{
    const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
    if (!indexes.isEmpty()) {
        m_undoStack->push(std::make_unique<Deletion>(*m_shelf, indexes).release());
    }
}

void Filmstrip::contextMenuEvent(QContextMenuEvent* event)
{
    const QStringList ids = selected();
    QMenu menu(this);
    QAction* const show = menu.addAction(tr("Show"), this, [&] { Q_EMIT chosen(ids.first()); });
    QAction* const save = menu.addAction(tr("Save"), this, [&] { Q_EMIT saveRequested(ids); });
    show->setEnabled(ids.size() == 1);
    save->setEnabled(!ids.isEmpty());
    menu.addAction(m_deleteAction);
    menu.addSeparator();
    menu.addAction(tr("Select All"), m_list, &QListView::selectAll);
    menu.exec(event->globalPos());
}

void Filmstrip::showState()
{
    const int unsaved = m_shelf->unsaved().size();
    m_countLabel->setText(unsaved == 0 ? tr("All saved") : tr("%n not saved", nullptr, unsaved));
    m_saveAllButton->setEnabled(unsaved > 0);
    m_deleteAction->setEnabled(m_list->selectionModel()->hasSelection());
    setVisible(m_shelf->rowCount() > 0);
    Q_EMIT contentChanged();
}

void Filmstrip::scrollToEnd()
{
    m_list->scrollToBottom();
}
