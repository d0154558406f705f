// Guidance in the window: what an empty window says, and which button stands out.

#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/PlaybackSpeeds.h"
#include "ui/mainwindow/RecentFiles.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/VideoFactsText.h"
#include "ui/theme/ActionButton.h"
#include "ui/theme/Theme.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

namespace {

/// Share of the window's width, unless the user moved the splitter.
constexpr int playerShare = 735;
constexpr int snapshotShare = 265;

} // namespace

void MainWindow::setupLooks()
{
    m_ui->videoControlsFrame->setParts(*m_ui->timePart, *m_ui->transportPart,
                                       *m_ui->videoFactsLabel, *m_ui->snapshotButton);
    m_ui->videoFactsLabel->setSeparator(VideoFactsText::separator);
    m_ui->splitter->setSizes({playerShare, snapshotShare});
    if (layoutDirection() == Qt::RightToLeft) {
        // The pane with margins of its own is at the other edge.
        const QMargins margins = m_ui->centralLayout->contentsMargins();
        m_ui->centralLayout->setContentsMargins(margins.right(), margins.top(), margins.left(),
                                                margins.bottom());
    }
    m_ui->speedButton->setMenu(m_ui->menuSpeed);
    connect(m_player, &QtAV::AVPlayer::speedChanged, this, &MainWindow::showSpeed);
    const auto keyOf = [](const QAction& action) {
        return action.shortcut().toString(QKeySequence::NativeText);
    };
    m_ui->snapshotButton->setKeys(keyOf(*m_ui->actionTake_Snapshot));
    m_snapshotPane->saveButton().setKeys(keyOf(*m_ui->actionSaveSnapshot));
    connect(m_ui->openVideoLabel, &OpenVideoButton::fileChosen, this, &MainWindow::openFromOutside);
    // The list of recent files may have been cleared there.
    connect(m_ui->menuFile, &QMenu::aboutToHide, this, &MainWindow::showRecentFiles,
            Qt::QueuedConnection);
    showOpenButton(m_ui->openVideoLabel->text());
    showWhatIsNext(false);
}

void MainWindow::showRecentFiles()
{
    m_ui->openVideoLabel->setRecentFiles(isVideoLoaded() ? QStringList()
                                                         : RecentFiles::in(m_settings));
}

void MainWindow::showSpeed(qreal speed)
{
    const QString text = PlaybackSpeeds::text(speed);
    m_ui->speedButton->setText(text);
    m_ui->speedButton->setAccessibleDescription(text);
}

/// One button stands out: that of the snapshot's pane if it is unsaved, otherwise this one.
void MainWindow::showWhatIsNext(bool isUnsaved)
{
    Theme::setPrimary(*m_ui->snapshotButton, !isUnsaved);
}
