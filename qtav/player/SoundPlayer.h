#pragma once

#include "qtav/player/SoundThread.h"

#include <QString>

#include <memory>
#include <optional>

namespace QtAV {

/// Plays the sound of one file on its own thread and provides its time.
///
/// If there is no device, or it fails, there is silence and no time, and nothing else happens. A
/// device that blocks the thread is abandoned: the next open() or play() tries again on another
/// thread. All functions must be called from the owner's thread and never wait.
class SoundPlayer
{
public:
    SoundPlayer();
    /// Waits until the thread has ended, but never longer than SoundThread::LongestWork.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void open(const QString& path);
    void close();

    /// Plays from a time in seconds, with a speed in seconds of the file per second. The pitch is
    /// kept, see SoundFile::setFormat().
    void play(double seconds, double speed = 1.0);
    void pause();

    /// From 0 to 1; 0 is silence.
    void setVolume(qreal volume);

    /// The time in seconds that is heard now; nothing while no sound is played.
    std::optional<double> position() const;

private:
    void ensureThread();
    void tellWish();

    SoundState::Wish m_wish;
    std::unique_ptr<SoundThread> m_thread; ///< started for the first file with sound
};

} // namespace QtAV
