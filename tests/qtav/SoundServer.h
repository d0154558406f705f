#pragma once

#include "tests/support/TestDir.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QProcess>

#include <chrono>
#include <vector>

/// A sound server for a test, and what is heard there.
namespace playing {

/// PulseAudio with one device that discards its sound at the speed of a real one. It uses no
/// configuration, and only a temporary folder.
///
/// Qt Multimedia connects to one server during the life of a process, when it first searches for
/// devices: start the server before any sound is played, and do not start a second one.
class SoundServer
{
public:
    /// Makes this process and its children use the server.
    SoundServer();
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// Starts the server; false, with a message, if that fails.
    [[nodiscard]] bool start();
    /// Ends it like a crash.
    void kill();

    /// Stops it from answering, or lets it continue.
    void freeze();
    void thaw();

    /// Removes the device during playback, or restores it.
    [[nodiscard]] bool removeDevice();
    [[nodiscard]] bool addDevice();

    /// Number of programs whose sound is being played.
    [[nodiscard]] int streamCount() const;

private:
    [[nodiscard]] bool control(const QStringList& arguments) const;

    testsupport::TestDir m_dir;
    QProcess m_process;
};

/// Records the server's device.
class SoundRecording : public QObject
{
    Q_OBJECT

public:
    using Time = std::chrono::steady_clock::time_point;

    /// @param latencyMs  the latency that the recorder requests, to which the device adapts the
    ///     size of its blocks; 0 leaves it to the player.
    [[nodiscard]] bool start(int latencyMs);
    void stop();

    /// When the recorded tones began, with an error of a block or more if the device plays large
    /// ones; the intervals between them are exact. Only the first tone of a playback can be
    /// measured, because the server discards what a player stops.
    [[nodiscard]] QList<Time> toneStarts() const;

private:
    void take();
    [[nodiscard]] Time begin() const;

    QProcess m_process;
    QByteArray m_samples;
    Time m_lastArrival;
    std::vector<Time> m_begins; ///< when the first sample was heard, as computed from each block
};

} // namespace playing
