#pragma once

#include "qtav/player/SoundWorker.h"

#include <QString>
#include <QThread>

#include <memory>
#include <optional>

namespace QtAV {

/// Plays the sound of one file on its own thread and provides its time.
///
/// If there is no device, or it fails, there is silence and no time, and nothing else happens. A
/// worker that is blocked by a device is abandoned with its thread, which ends by itself if the
/// device ever returns; the next open() or play() starts another one. All functions must be called
/// from the thread that created the player, and only the destructor waits.
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

    /// The time in seconds that is heard now; nothing while no sound is played.
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
