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
#include "ui/theme/ActionButton.h"
#include "ui/widgets/VolumePopup.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QShortcut>

#include <algorithm>

namespace {

/// Distance of the keys for large jumps.
constexpr qint64 leapMs = 10000;

} // namespace

void MainWindow::setupSteering()
{
    const PlayerSteering::Parts parts{*m_player, *m_ui->videoSlider, *m_ui->timecodeField,
                                      *m_ui->videoFactsLabel};
    m_steering = new PlayerSteering(parts, this);
    connectSteering();
    connectStretch();
    connectMute();
    setupFullScreen();
    Shortcuts::giveTo(*this, *m_ui->menuBar);
    Mnemonics::giveTo(*m_ui->menuBar);
    ReturnKey::pressControls(*m_ui->statusBar);
    setupKeyTips();
    setupSpokenEvents();
    setSteeringEnabled(false);
}

void MainWindow::connectSteering()
{
    const auto on = [this](const QAction* action, auto&& does) {
        connect(action, &QAction::triggered, m_steering, does);
    };
    on(m_ui->actionSlower, [this] { m_steering->slower(); });
    on(m_ui->actionFaster, [this] { m_steering->faster(); });
    on(m_ui->actionNormalSpeed, [this] { m_steering->playNormally(); });
    on(m_ui->actionLeapForward, [this] { seekRelative(leapMs); });
    on(m_ui->actionLeapBackward, [this] { seekRelative(-leapMs); });
    on(m_ui->actionGoToStart, [this] { m_steering->goToStart(); });
    on(m_ui->actionGoToEnd, [this] { m_steering->goToEnd(); });
    on(m_ui->actionGoToTime, [this] { m_ui->timecodeField->type(); });
    on(m_ui->actionTakeAndSave, [this] { takeAndSave(); });
    on(m_ui->actionShortcuts, [this] {
        Shortcuts::showPage(*this, *m_ui->menuBar);
        retakeFocusAfterDialog();
    });
    connect(this, &MainWindow::snapshotTimesChanged, m_ui->videoSlider,
            &TimeSlider::setSnapshotTicks);
    connect(m_steering, &PlayerSteering::message, this,
            [this](const QString& text) { statusBar()->showMessage(text, messageMs); });
    connect(m_steering, &PlayerSteering::typedPositionTaken, this,
            &MainWindow::giveKeyboardToVideo);
    connect(m_ui->timecodeField, &TimecodeField::givenUp, this, &MainWindow::giveKeyboardToVideo);
}

void MainWindow::connectStretch()
{
    connect(m_ui->actionMarkStart, &QAction::triggered, m_steering, &PlayerSteering::markStart);
    connect(m_ui->actionMarkEnd, &QAction::triggered, m_steering, &PlayerSteering::markEnd);
    connect(m_ui->actionClearStretch, &QAction::triggered, m_steering,
            &PlayerSteering::clearStretch);
    connect(m_ui->actionLoopStretch, &QAction::toggled, m_steering, &PlayerSteering::setLooping);
}

void MainWindow::connectMute()
{
    const auto show = [this] { m_ui->actionMute->setChecked(m_volumePopup->isMuted()); };
    show();
    connect(m_volumePopup, &VolumePopup::volumeChanged, m_ui->actionMute, show);
    connect(m_ui->actionMute, &QAction::triggered, m_volumePopup, &VolumePopup::setMuted);
}

void MainWindow::setupFullScreen()
{
    m_fullScreen = new FullScreen(*this, {m_ui->menuBar, m_snapshotPane});
    connect(m_ui->actionFullScreen, &QAction::triggered, m_fullScreen, &FullScreen::setOn);
    connect(m_fullScreen, &FullScreen::toggled, m_ui->actionFullScreen, &QAction::setChecked);
    auto* const escape = new QShortcut(Qt::Key_Escape, this);
    escape->setEnabled(false);
    connect(m_fullScreen, &FullScreen::toggled, escape, &QShortcut::setEnabled);
    connect(escape, &QShortcut::activated, m_fullScreen, [this] { m_fullScreen->setOn(false); });
}

void MainWindow::setupKeyTips()
{
    auto* const tips = new KeyTips(this);
    tips->add(*m_ui->playButton, *m_ui->actionPlayPause);
    tips->add(*m_ui->stepForwardButton, *m_ui->actionStepForward);
    tips->add(*m_ui->stepBackwardButton, *m_ui->actionStepBackward);
    tips->add(*m_ui->skipForwardButton, *m_ui->actionSkipForward);
    tips->add(*m_ui->skipBackwardButton, *m_ui->actionSkipBackward);
    tips->add(*m_ui->snapshotButton, *m_ui->actionTake_Snapshot);
    tips->add(m_snapshotPane->saveButton(), *m_ui->actionSaveSnapshot);
    tips->add(*m_ui->timecodeField, *m_ui->actionGoToTime);
}

/// The picture also gets a description, for users who reach it later.
void MainWindow::setupSpokenEvents()
{
    m_spoken = new SpokenEvents(*this, *m_player, [this] {
        const QString place = spokenPlace();
        m_videoOutput->widget()->setAccessibleDescription(place);
        return place;
    });
    m_videoOutput->widget()->setAccessibleName(tr("Picture of the video"));
}

QString MainWindow::spokenPlace() const
{
    const QString time = m_ui->timecodeField->time();
    const auto frame = m_steering->frameOnScreen();
    return frame ? tr("%1, frame %2").arg(time).arg(frame->value) : time;
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

void MainWindow::giveKeyboardToVideo()
{
    m_ui->videoFrame->setFocus();
}

/// Passes the marked stretch of the open video to batch mode.
void MainWindow::loadMarkedStretch(BatchModeDialog& dialog) const
{
    const MarkedStretch stretch = m_steering == nullptr ? MarkedStretch() : m_steering->stretch();
    if (stretch.isEmpty()) {
        return;
    }
    const qint64 duration = m_player->duration();
    const qint64 end = std::min(stretch.toMs.value_or(duration), duration);
    dialog.loadStretch(m_currentVideoPath, stretch.fromMs.value_or(0), duration - end);
}
