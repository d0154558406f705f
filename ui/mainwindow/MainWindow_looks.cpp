// The division of the window, and which button stands out.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/SnapshotPane.h"
#include "ui/theme/ActionButton.h"
#include "ui/theme/Theme.h"
#include "ui_MainWindow.h"

namespace {

/// Share of the window's width, unless the user moved the splitter.
constexpr int playerShare = 735;
constexpr int snapshotShare = 265;

} // namespace

void MainWindow::setupLooks()
{
    m_ui->splitter->setChildrenCollapsible(false);
    m_ui->splitter->setSizes({playerShare, snapshotShare});
    if (layoutDirection() == Qt::RightToLeft) {
        // The pane with margins of its own is at the other edge.
        const QMargins margins = m_ui->centralLayout->contentsMargins();
        m_ui->centralLayout->setContentsMargins(margins.right(), margins.top(), margins.left(),
                                                margins.bottom());
    }
    playerPane()->setSpeedMenu(*m_ui->menuSpeed);
    snapshotPane()->saveButton().setKeys(
        m_ui->actionSaveSnapshot->shortcut().toString(QKeySequence::NativeText));
    // The list of recent files may have been cleared there.
    connect(m_ui->menuFile, &QMenu::aboutToHide, playerPane(), &PlayerPane::showRecentFiles,
            Qt::QueuedConnection);
    showWhatIsNext(false);
}

/// One button stands out: that of the snapshot's pane if it is unsaved, otherwise the one that
/// takes a snapshot.
void MainWindow::showWhatIsNext(bool isUnsaved)
{
    Theme::setPrimary(playerPane()->snapshotButton(), !isUnsaved);
}
