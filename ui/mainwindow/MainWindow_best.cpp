// Proposals of the best frames of a stretch.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/ImageProfile.h"
#include "ui/mainwindow/FrameProposals.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

void MainWindow::setupBestFrames()
{
    m_proposals = new FrameProposals(playerPane()->player(), *this);
    m_bestFramesAction = new QAction(tr("Best of These\u2026"), this);
    m_bestFramesAction->setObjectName(QStringLiteral("actionBestFrames"));
    m_bestFramesAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+B")));
    m_bestFramesAction->setToolTip(tr("Propose the sharpest frames around this one"));
    m_ui->menuEdit->insertAction(m_ui->actionCopy_Snapshot, m_bestFramesAction);
    m_ui->menuEdit->insertSeparator(m_ui->actionCopy_Snapshot);
    connect(m_bestFramesAction, &QAction::triggered, this, &MainWindow::proposeBestFramesHere);
    connect(m_proposals, &FrameProposals::snapshotWanted, this, [this] { capture(); });
}

void MainWindow::proposeBestFramesHere()
{
    const MarkedStretch& marked = playerPane()->steering()->stretch();
    if (marked.fromMs && marked.toMs) {
        proposeBestFrames(*marked.fromMs, *marked.toMs + 1);
        return;
    }
    const VideoStretch here = FrameProposals::around(playerPane()->player().displayPosition());
    proposeBestFrames(here.fromMs, here.toMs);
}

void MainWindow::proposeBestFrames(qint64 fromMs, qint64 toMs)
{
    if (!playerPane()->isVideoShown()) {
        return;
    }
    pause();
    m_proposals->propose(playerPane()->video(),
                         QtAV::deinterlacingNamed(snapshotPane()->imageProfile()->deinterlacing()),
                         {fromMs, toMs});
}
