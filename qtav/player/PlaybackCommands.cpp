#include "qtav/player/PlaybackCommands.h"

#include <algorithm>
#include <utility>

namespace QtAV {

quint64 PlaybackCommands::post()
{
    m_hasArrived = true;
    return ++m_serial;
}

void PlaybackCommands::dropMoves()
{
    m_seek.reset();
    m_steps = 0;
    m_isSeekOutdated = true;
    m_isStepOutdated = true;
}

quint64 PlaybackCommands::open(const QString& path, qint64 cacheBytes)
{
    dropMoves();
    m_isFileOutdated = true;
    const quint64 serial = post();
    m_file = File{path, cacheBytes, serial};
    return serial;
}

quint64 PlaybackCommands::close()
{
    return open(QString(), 0);
}

quint64 PlaybackCommands::seek(qint64 ms)
{
    dropMoves();
    const quint64 serial = post();
    m_seek = Seek{ms, serial};
    return serial;
}

quint64 PlaybackCommands::step(Direction direction)
{
    const bool withdrawsTaken =
        m_steps == 0 && m_taken && *m_taken != direction && !m_isStepOutdated;
    if (withdrawsTaken) {
        m_isStepOutdated = true;
    } else {
        const int steps = m_steps + (direction == Direction::Forward ? 1 : -1);
        m_steps = std::clamp(steps, -mostWaitingSteps, mostWaitingSteps);
    }
    m_stepSerial = post();
    return m_stepSerial;
}

quint64 PlaybackCommands::capture(const VideoFrame& frame)
{
    if (m_captures.size() == mostWaitingCaptures) {
        return 0;
    }
    const quint64 serial = post();
    m_captures.push_back({frame, serial});
    return serial;
}

void PlaybackCommands::quit()
{
    dropMoves();
    m_captures.clear();
    m_file.reset();
    m_isFileOutdated = true;
    m_quits = true;
    m_hasArrived = true;
}

std::optional<PlaybackCommands::Direction> PlaybackCommands::nextStep() const
{
    if (m_steps == 0) {
        return std::nullopt;
    }
    return m_steps > 0 ? Direction::Forward : Direction::Backward;
}

PlaybackCommands::Capture PlaybackCommands::takeCapture()
{
    const Capture capture = m_captures.front();
    m_captures.pop_front();
    return capture;
}

PlaybackCommands::File PlaybackCommands::takeFile()
{
    m_isFileOutdated = false;
    return *std::exchange(m_file, std::nullopt);
}

PlaybackCommands::Seek PlaybackCommands::takeSeek()
{
    m_isSeekOutdated = false;
    return *std::exchange(m_seek, std::nullopt);
}

PlaybackCommands::Step PlaybackCommands::takeStep()
{
    const Direction direction = *nextStep();
    m_steps += direction == Direction::Forward ? -1 : 1;
    m_taken = direction;
    m_isStepOutdated = false;
    return {direction, m_stepSerial};
}

bool PlaybackCommands::endStep()
{
    m_taken.reset();
    return !m_isStepOutdated;
}

} // namespace QtAV
