#include "ui/mainwindow/FrameProposals.h"

#include "ui/mainwindow/BestFramesDialog.h"

#include <QtAV/AVPlayer.h>

#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

/// How far around the frame on screen to search.
constexpr qint64 aroundMs = 1000;

} // namespace

FrameProposals::FrameProposals(QtAV::AVPlayer& player, QWidget& window)
    : QObject(&window)
    , m_player(player)
    , m_dialog(new BestFramesDialog(&window))
{
    connect(m_dialog, &BestFramesDialog::frameChosen, this, &FrameProposals::goTo);
    connect(m_dialog, &BestFramesDialog::snapshotWanted, this, [this](qint64 ms) {
        m_takenWhenShown = ms;
        goTo(ms);
    });
    connect(&player, &QtAV::AVPlayer::seekFinished, this, &FrameProposals::noteShown);
}

VideoStretch FrameProposals::around(qint64 ms)
{
    return {std::max<qint64>(0, ms - aroundMs), ms + aroundMs + 1};
}

void FrameProposals::propose(const QString& video, QtAV::Deinterlacing deinterlacing,
                             const VideoStretch& stretch)
{
    m_dialog->propose(video, deinterlacing, stretch);
}

void FrameProposals::reset()
{
    m_takenWhenShown.reset();
    m_dialog->reset();
}

void FrameProposals::goTo(qint64 ms)
{
    m_player.pause();
    m_player.setPosition(ms);
}

/// Not if the user has moved elsewhere meanwhile.
void FrameProposals::noteShown()
{
    const std::optional<qint64> wanted = std::exchange(m_takenWhenShown, std::nullopt);
    if (wanted == m_player.displayPosition()) {
        Q_EMIT snapshotWanted();
    }
}
