// Navigation besides playing and stepping, the keys, and the full screen.

#include "ui/mainwindow/MainWindow.h"

#include "ui/batch/BatchModeDialog.h"
#include "ui/mainwindow/FullScreen.h"
#include "ui/mainwindow/KeyTips.h"
#include "ui/mainwindow/Mnemonics.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/ReturnKey.h"
#include "ui/mainwindow/Shortcuts.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/SpokenEvents.h"
#include "ui/mainwindow/VideoZoom.h"
#include "ui/theme/ActionButton.h"
#include "ui/widgets/VolumePopup.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <QShortcut>

#include <algorithm>

namespace {

/// Distance of the keys for large jumps.
constexpr qint64 leapMs = 10000;

constexpr int scaleMessageMs = 1500;

} // namespace

void MainWindow::setupSteering()
{
    connectPlayback();
    connectSteering();
    connectMute();
    setupFullScreen();
    Shortcuts::giveTo(*this, *m_ui->menuBar);
    Mnemonics::giveTo(*m_ui->menuBar);
    ReturnKey::pressControls(*m_ui->statusBar);
    auto* const tips = new KeyTips(this);
    playerPane()->showKeys(*tips, {*m_ui->actionPlayPause, *m_ui->actionStepForward,
                                   *m_ui->actionStepBackward, *m_ui->actionSkipForward,
                                   *m_ui->actionSkipBackward, *m_ui->actionTake_Snapshot,
                                   *m_ui->actionGoToTime});
    tips->add(snapshotPane()->saveButton(), *m_ui->actionSaveSnapshot);
    m_spoken = new SpokenEvents(*this, playerPane()->player(),
                                [this] { return playerPane()->describePlace(); });
    setSteeringEnabled(false);
}

void MainWindow::connectSteering()
{
    PlayerSteering* const steering = playerPane()->steering();
    const auto on = [steering](const QAction* action, auto does) {
        connect(action, &QAction::triggered, steering, does);
    };
    on(m_ui->actionSlower, &PlayerSteering::slower);
    on(m_ui->actionFaster, &PlayerSteering::faster);
    on(m_ui->actionNormalSpeed, &PlayerSteering::playNormally);
    on(m_ui->actionGoToStart, &PlayerSteering::goToStart);
    on(m_ui->actionGoToEnd, &PlayerSteering::goToEnd);
    on(m_ui->actionMarkStart, &PlayerSteering::markStart);
    on(m_ui->actionMarkEnd, &PlayerSteering::markEnd);
    on(m_ui->actionClearStretch, &PlayerSteering::clearStretch);
    connect(m_ui->actionLoopStretch, &QAction::toggled, steering, &PlayerSteering::setLooping);
}

void MainWindow::connectPlayback()
{
    const auto on = [this](const QAction* action, auto does) {
        connect(action, &QAction::triggered, playerPane(), does);
    };
    on(m_ui->actionPlayPause, &PlayerPane::playPause);
    on(m_ui->actionSkipBackward, &PlayerPane::skipBackward);
    on(m_ui->actionSkipForward, &PlayerPane::skipForward);
    on(m_ui->actionLeapForward, [this] { playerPane()->seekRelative(leapMs); });
    on(m_ui->actionLeapBackward, [this] { playerPane()->seekRelative(-leapMs); });
    on(m_ui->actionStepBackward, &PlayerPane::stepBackward);
    on(m_ui->actionStepForward, &PlayerPane::stepForward);
    on(m_ui->actionGoToTime, &PlayerPane::typePosition);
    QtAV::AVPlayer& player = playerPane()->player();
    connect(m_ui->actionStepFieldForward, &QAction::triggered, &player,
            &QtAV::AVPlayer::stepFieldForward);
    connect(m_ui->actionStepFieldBackward, &QAction::triggered, &player,
            &QtAV::AVPlayer::stepFieldBackward);
}

void MainWindow::setupZoom()
{
    const VideoZoom& zoom = playerPane()->zoom();
    connect(&zoom, &VideoZoom::scaled, this, [this](int percent) {
        statusBar()->showMessage(tr("%1 %").arg(percent), scaleMessageMs);
    });
    connect(m_ui->actionFitVideo, &QAction::triggered, &zoom, &VideoZoom::fit);
    connect(m_ui->actionActualSize, &QAction::triggered, &zoom, &VideoZoom::toggleActualSize);
    connect(m_ui->actionFourfold, &QAction::triggered, &zoom, &VideoZoom::showFourfold);
}

void MainWindow::connectMute()
{
    VolumePopup* const popup = playerPane()->volumePopup();
    const auto show = [this, popup] { m_ui->actionMute->setChecked(popup->isMuted()); };
    show();
    connect(popup, &VolumePopup::volumeChanged, m_ui->actionMute, show);
    connect(m_ui->actionMute, &QAction::triggered, popup, &VolumePopup::setMuted);
}

void MainWindow::setupFullScreen()
{
    m_fullScreen = new FullScreen(*this, {m_ui->menuBar, snapshotPane()});
    connect(m_ui->actionFullScreen, &QAction::triggered, m_fullScreen, &FullScreen::setOn);
    connect(m_fullScreen, &FullScreen::toggled, m_ui->actionFullScreen, &QAction::setChecked);
    auto* const escape = new QShortcut(Qt::Key_Escape, this);
    escape->setEnabled(false);
    connect(m_fullScreen, &FullScreen::toggled, escape, &QShortcut::setEnabled);
    connect(escape, &QShortcut::activated, m_fullScreen, [this] { m_fullScreen->setOn(false); });
}

/// Controls that the player's menu does not contain.
void MainWindow::setSteeringEnabled(bool on)
{
    const QList<QAction*> actions = m_ui->menuSpeed->actions() + m_ui->menuStretch->actions();
    for (QAction* const action : actions) {
        action->setEnabled(on);
    }
    m_ui->actionTakeAndSave->setEnabled(on);
    for (QAction* const action :
         {m_ui->actionFitVideo, m_ui->actionActualSize, m_ui->actionFourfold}) {
        action->setEnabled(on);
    }
}

/// Passes the marked stretch of the open video to batch mode.
void MainWindow::loadMarkedStretch(BatchModeDialog& dialog) const
{
    const PlayerSteering* const steering = playerPane()->steering();
    const MarkedStretch stretch = steering == nullptr ? MarkedStretch() : steering->stretch();
    if (stretch.isEmpty()) {
        return;
    }
    const qint64 duration = playerPane()->player().duration();
    const qint64 end = std::min(stretch.toMs.value_or(duration), duration);
    dialog.loadStretch(playerPane()->video(), stretch.fromMs.value_or(0), duration - end);
}
