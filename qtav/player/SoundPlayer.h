#pragma once

#include "qtav/player/SoundThread.h"

#include <QString>

#include <memory>
#include <optional>

namespace QtAV {

/// Plays the sound of one file on a thread of its own and tells the time by it.
///
/// Where there is no device, or it fails, the sound falls silent and gives no time; nothing else
/// happens. A device that holds up the thread is given up: the next open() or play() tries it anew
/// on another thread. All functions are for the owner's thread and never wait.
class SoundPlayer
{
public:
    SoundPlayer();
    /// Waits until the thread has ended, but never longer than SoundThread::longestWork.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void open(const QString& path);
    void close();

    /// Plays from a time in seconds on, so many seconds of the file in one; the pitch stays, see
    /// SoundFile::setFormat().
    void play(double seconds, double speed = 1.0);
    void pause();

    /// From 0 to 1; 0 is silence.
    void setVolume(qreal volume);

    /// The time in seconds that can be heard now; nothing while no sound comes out.
    std::optional<double> position() const;

private:
    void ensureThread();
    void tellWish();

    SoundState::Wish m_wish;
    std::unique_ptr<SoundThread> m_thread; ///< started for the first file with sound
};

} // namespace QtAV
