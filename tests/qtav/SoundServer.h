#pragma once

#include "tests/support/TestDir.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QProcess>

#include <chrono>
#include <vector>

/// A sound server of a test's own, and what can be heard there.
namespace playing {

/// PulseAudio with one device, which plays into nothing, as fast as a real one would. It uses no
/// configuration and no folder but a temporary one.
///
/// Qt Multimedia connects to one server in the life of a process, when it first looks for devices:
/// make the server before any sound is played, and not a second one.
class SoundServer
{
public:
    /// Makes this process, and what it starts, use the server.
    SoundServer();
    ~SoundServer();
    SoundServer(const SoundServer&) = delete;
    SoundServer& operator=(const SoundServer&) = delete;

    /// Runs the server; false, with a message, when it does not come up.
    [[nodiscard]] bool start();
    /// Ends it as a crash would.
    void kill();

    /// Lets it answer nobody any more, or go on.
    void freeze();
    void thaw();

    /// Takes the device away from under who plays on it, or brings it back.
    [[nodiscard]] bool removeDevice();
    [[nodiscard]] bool addDevice();

    /// How many programs' sounds are being played.
    [[nodiscard]] int streamCount() const;

private:
    [[nodiscard]] bool control(const QStringList& arguments) const;

    testsupport::TestDir m_dir;
    QProcess m_process;
};

/// Listens to the server's device.
class SoundRecording : public QObject
{
    Q_OBJECT

public:
    using Time = std::chrono::steady_clock::time_point;

    /// @param latencyMs  what the recorder asks for, to which the device adapts the size of the
    ///                   blocks that it plays; 0 leaves it as the player wishes.
    [[nodiscard]] bool start(int latencyMs);
    void stop();

    /// When the tones that were heard began, off by a block and more where the device plays large
    /// ones; what lies between two of them is exact. Only the first of one playing can be told:
    /// what a player stops, the server takes back.
    [[nodiscard]] QList<Time> toneStarts() const;

private:
    void take();
    [[nodiscard]] Time begin() const;

    QProcess m_process;
    QByteArray m_samples;
    Time m_lastArrival;
    std::vector<Time> m_begins; ///< when the first sample was heard, told by each block
};

} // namespace playing
