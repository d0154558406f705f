#pragma once

#include "qtav/player/SoundWorker.h"

#include <QString>
#include <QThread>

#include <memory>
#include <optional>

namespace QtAV {

/// Plays the sound of one file in a thread of its own and gives the time by it.
///
/// Where there is no device, or it fails, the sound falls silent and gives no time; nothing else
/// happens. A worker that a device blocks is left behind with its thread, which ends by itself if
/// the device ever returns; the next open() or play() starts another one. All functions are for
/// the thread that made the player, and only the destructor waits.
class SoundPlayer
{
public:
    /// How many threads there may be in the process, those left behind included. A player that
    /// would need one more is silent.
    static constexpr int maximumThreads = 8;

    SoundPlayer() = default;
    /// Waits for the thread to end, but no longer than SoundWorker::longestWork.
    ~SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void open(const QString& path);
    void close();

    /// Plays from a time in seconds on; `speed` is how many seconds of the file are heard in one.
    /// The pitch stays, see SoundFile::setFormat().
    void play(double seconds, double speed = 1.0);
    void pause();

    /// From 0 to 1; 0 is silence.
    void setVolume(qreal volume);

    /// The time in seconds that can be heard now; nothing while no sound comes out.
    std::optional<double> position() const;

private:
    void ensureThread();
    void endThread();
    void sendRequest();

    SoundRequest m_request;
    std::unique_ptr<QThread> m_thread; ///< started for the first file with sound
    SoundWorker* m_worker = nullptr;   ///< deletes itself when m_thread ends
};

} // namespace QtAV
