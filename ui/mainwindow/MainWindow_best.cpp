// Proposals of the best frames of a stretch, and the way from them to a snapshot.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/ImageProfile.h"
#include "ui/mainwindow/BestFramesDialog.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <algorithm>
#include <utility>

namespace {

/// How far around the frame on screen frames are looked at.
constexpr qint64 aroundMs = 1000;

} // namespace

void MainWindow::setupBestFrames()
{
    m_bestFrames = new BestFramesDialog(this);
    m_bestFramesAction = new QAction(tr("Best of These\u2026"), this);
    m_bestFramesAction->setObjectName(QStringLiteral("actionBestFrames"));
    m_bestFramesAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+B")));
    m_bestFramesAction->setToolTip(tr("Propose the sharpest frames around this one"));
    m_ui->menuEdit->insertAction(m_ui->actionCopy_Snapshot, m_bestFramesAction);
    m_ui->menuEdit->insertSeparator(m_ui->actionCopy_Snapshot);
    connect(m_bestFramesAction, &QAction::triggered, this, &MainWindow::proposeBestFramesHere);
    connect(m_bestFrames, &BestFramesDialog::frameChosen, this, [this](qint64 ms) {
        m_player->pause();
        m_player->setPosition(ms);
    });
    connect(m_bestFrames, &BestFramesDialog::snapshotWanted, this, &MainWindow::takeSnapshotAt);
}

void MainWindow::proposeBestFramesHere()
{
    const MarkedStretch& marked = m_steering->stretch();
    if (marked.fromMs && marked.toMs) {
        proposeBestFrames(*marked.fromMs, *marked.toMs + 1);
        return;
    }
    const qint64 here = m_player->displayPosition();
    proposeBestFrames(std::max<qint64>(0, here - aroundMs), here + aroundMs + 1);
}

void MainWindow::proposeBestFrames(qint64 fromMs, qint64 toMs)
{
    if (!isVideoShown()) {
        return;
    }
    pause();
    m_bestFrames->propose(m_currentVideoPath,
                          QtAV::deinterlacingNamed(m_imageProfile->deinterlacing()),
                          {fromMs, toMs});
}

void MainWindow::takeSnapshotAt(qint64 ms)
{
    m_player->pause();
    m_takenWhenShown = ms;
    m_player->setPosition(ms);
}

/// Unless the user has gone somewhere else meanwhile.
void MainWindow::takeWhenShown()
{
    const std::optional<qint64> wanted = std::exchange(m_takenWhenShown, std::nullopt);
    if (wanted == m_player->displayPosition()) {
        capture();
    }
}
