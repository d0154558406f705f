#pragma once

#include "qtav/player/SoundDevice.h"
#include "qtav/player/SoundFile.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

namespace QtAV {

/// What a SoundPlayer requests of its SoundWorker.
struct SoundRequest
{
    QString path;       ///< empty for no file
    quint64 serial = 0; ///< changes with every play and every pause
    bool plays = false;
    double from = 0.0;  ///< seconds in the file
    double speed = 1.0; ///< seconds of the file in one second of sound
    qreal volume = 1.0; ///< from 0 to 1
};

/// Plays the sound of one file, in the thread that it was moved to, which has an event loop.
///
/// Opening, starting, stopping or querying a device can block for ever: the plug-ins of Qt
/// Multimedia wait for a sound server that may not answer. So only this thread calls such
/// functions, and what it shares with the player is guarded by a mutex that is never held
/// meanwhile.
///
/// It is deleted in its thread. Once the thread's interruption is requested, it starts nothing
/// more.
class SoundWorker : public QObject
{
    Q_OBJECT

public:
    /// A worker that is busy with one thing for so long is blocked. Where devices work, a small
    /// part of it is enough.
    static constexpr std::chrono::milliseconds longestWork{2000};

    explicit SoundWorker(SoundDevice::Factory makeDevice);
    ~SoundWorker() override;

    // From any thread; none of these blocks.

    /// Replaces the request; the worker carries out the latest one only.
    void setRequest(const SoundRequest& request);
    /// The time in the file, in seconds, that is heard now as the latest request asked for; nothing
    /// while no sound comes out.
    std::optional<double> heardSeconds() const;
    /// How long a request has been waiting, or a function of the device or the file running; 0 when
    /// idle.
    std::chrono::milliseconds busyFor() const;

    /// How many workers the process has, blocked ones included.
    static int count();

private Q_SLOTS:
    void carryOutRequest();

private:
    class Source;
    using Time = std::chrono::steady_clock::time_point;

    void carryOut(const SoundRequest& request);
    void openFile(const QString& path);
    void start(const SoundRequest& request);
    void stopDevice();
    void reportTime();
    [[nodiscard]] bool standsStill(double heardSeconds);

    [[nodiscard]] SoundRequest takeRequest();
    void beginWork();
    void endWork();
    void report(std::optional<double> seconds);
    std::chrono::milliseconds busyForLocked() const;

    mutable std::mutex m_mutex;
    // Guarded by m_mutex.
    SoundRequest m_request;
    bool m_isTaken = true; ///< m_request is what was taken last
    std::optional<Time> m_busySince;
    std::optional<double> m_reported; ///< seconds in the file
    quint64 m_reportedSerial = 0;     ///< of the request that it belongs to
    Time m_reportedAt;

    // Of the worker's thread.
    const SoundDevice::Factory m_makeDevice;
    SoundRequest m_done; ///< what was carried out last
    std::unique_ptr<SoundFile> m_file;
    std::unique_ptr<Source> m_source;
    std::unique_ptr<SoundDevice> m_device;
    double m_lastHeard = 0.0; ///< seconds since the device's start
    Time m_movedAt;           ///< when that last grew
    QTimer m_clock;
};

} // namespace QtAV
