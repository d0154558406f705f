// Playing, seeking, the slider and the volume.

#include "ui/mainwindow/PlayerPane.h"

#include "ui/mainwindow/VideoZoom.h"
#include "ui/theme/Icons.h"
#include "ui/widgets/TimeText.h"
#include "ui/widgets/VolumePopup.h"
#include "ui_PlayerPane.h"

#include <QtAV/AVPlayer.h>

#include <QDebug>

#include <algorithm>
#include <limits>

namespace {

/// Distance of the skip buttons.
constexpr qint64 skipMs = 1000;

/// Resolution of the slider: finer than a frame of most videos.
constexpr qint64 sliderUnitMs = 30;

int sliderSteps(qint64 ms, qint64 unit)
{
    return int(std::min<qint64>(ms / unit, std::numeric_limits<int>::max()));
}

} // namespace

void PlayerPane::clickVideo()
{
    if (isVideoShown()) {
        playPause();
    } else {
        Q_EMIT videoRequested();
    }
}

void PlayerPane::pause()
{
    m_player->pause();
}

void PlayerPane::playPause()
{
    if (m_player->isPlaying()) {
        m_player->pause(!m_player->isPaused());
    } else {
        m_player->play();
    }
}

void PlayerPane::updatePlayButton()
{
    qDebug() << "updatePlayButton: " << m_player->state();
    if (m_playIcon.isNull()) {
        m_playIcon = theme::icon(QStringLiteral("Play"));
        m_pauseIcon = theme::icon(QStringLiteral("Pause"));
    }
    const bool isPlaying = isVideoLoaded() && m_player->state() == QtAV::AVPlayer::PlayingState;
    m_ui->playButton->setIcon(isPlaying ? m_pauseIcon : m_playIcon);
}

void PlayerPane::updateSliderUnit()
{
    m_sliderUnit = sliderUnitMs;
    m_ui->videoSlider->setStepMs(m_sliderUnit);
    qDebug() << "updateSliderUnit: " << m_sliderUnit;
    updateSlider();
}

void PlayerPane::updateSlider()
{
    if (m_ui->videoSlider->isSliderDown()) {
        return;
    }
    m_ui->videoSlider->setRange(0, sliderSteps(m_player->duration(), m_sliderUnit));
    m_ui->videoSlider->setValue(sliderSteps(m_player->position(), m_sliderUnit));
}

void PlayerPane::showDuration(qint64 ms)
{
    m_ui->durationLabel->setText(timeText(ms));
    updateSlider();
}

void PlayerPane::showPosition()
{
    m_ui->timecodeField->setTime(timeText(m_player->displayPosition()));
    m_zoom->followFrame();
    updateSlider();
}

void PlayerPane::seekBySlider(int value)
{
    m_player->seek(value * m_sliderUnit);
}

void PlayerPane::seekBySlider()
{
    seekBySlider(m_ui->videoSlider->value());
}

void PlayerPane::skipBackward()
{
    seekRelative(-skipMs);
}

void PlayerPane::skipForward()
{
    seekRelative(skipMs);
}

void PlayerPane::seekRelative(qint64 ms)
{
    m_player->pause();
    m_player->setPosition(m_player->position() + ms);
}

void PlayerPane::stepBackward()
{
    m_player->stepBackward();
}

void PlayerPane::stepForward()
{
    m_player->stepForward();
}

void PlayerPane::setVolume(int volume)
{
    m_player->audio()->setVolume(volume / 100.0);
}

void PlayerPane::showVolumePopup()
{
    // Showing it again would otherwise widen it.
    m_volumePopup->resize(m_volumePopup->size().expandedTo(m_volumePopup->minimumSizeHint()));
    const QPoint button = m_ui->volumeButton->mapToGlobal(QPoint(0, 0));
    const int x = button.x() + (m_ui->volumeButton->width() - m_volumePopup->width()) / 2;
    const int y = int(button.y() - m_volumePopup->height() * 1.1);
    m_volumePopup->move(x, y);
    m_volumePopup->show();
}
