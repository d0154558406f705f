#include "ui/mainwindow/SpokenEvents.h"

#include "ui/widgets/Announcer.h"

#include <QtAV/AVPlayer.h>

#include <QMainWindow>
#include <QStatusBar>

#include <chrono>
#include <utility>

namespace {

/// How long the video must stand still before its position is announced: a held key keeps moving
/// it.
constexpr std::chrono::milliseconds restTime{250};

} // namespace

SpokenEvents::SpokenEvents(QMainWindow& window, QtAV::AVPlayer& player,
                           std::function<QString()> place)
    : QObject(&window)
    , m_player(player)
    , m_place(std::move(place))
    , m_announcer(new Announcer(&window))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_rest, &QTimer::timeout, this, &SpokenEvents::tellPlace);
    connect(&player, &QtAV::AVPlayer::positionChanged, this, &SpokenEvents::followPlayer);
    connect(&player, &QtAV::AVPlayer::stateChanged, this, &SpokenEvents::followPlayer);
    connect(window.statusBar(), &QStatusBar::messageChanged, this, &SpokenEvents::tell);
}

void SpokenEvents::tell(const QString& text)
{
    m_announcer->announce(text);
}

/// The position of a playing video changes constantly, and its sound is heard.
void SpokenEvents::followPlayer()
{
    if (m_player.isPaused()) {
        m_rest.start();
    } else {
        m_rest.stop();
    }
}

void SpokenEvents::tellPlace()
{
    if (m_player.isPaused()) {
        tell(m_place());
    }
}
