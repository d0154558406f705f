#include "ui/mainwindow/SpokenEvents.h"

#include "ui/widgets/Announcer.h"

#include <QtAV/AVPlayer.h>

#include <QMainWindow>
#include <QStatusBar>

#include <chrono>
#include <utility>

namespace {

/// So long a video stands still before its place is told: a held key moves it further before.
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

/// The place of a video that plays changes all the time, and is heard.
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
