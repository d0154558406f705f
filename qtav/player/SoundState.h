#pragma once

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

class QObject;

namespace QtAV {

/// What a SoundPlayer requests, and how far its SoundWorker has carried it out. Shared by both
/// threads: a worker blocked by a device may outlive its player. Thread-safe.
class SoundState
{
public:
    struct Wish
    {
        QString path;           ///< empty for no file
        quint64 playSerial = 0; ///< changes with every play() and pause()
        bool plays = false;
        double from = 0.0;  ///< in seconds
        double speed = 1.0; ///< how many seconds of the file are heard in one
        qreal volume = 1.0;
    };

    explicit SoundState(Wish wish);

    /// Replaces the request and wakes the worker.
    void setWish(const Wish& wish);
    /// Ends the requests and wakes the worker.
    void end();

    /// Object whose slot heed() is invoked in its own thread, now and on each change; null
    /// unregisters.
    void setWorker(QObject* worker);
    /// The request to carry out now; nothing when the worker must end.
    [[nodiscard]] std::optional<Wish> takeWish();
    /// Marks the taken request as carried out.
    void setCarriedOut();
    /// How long the worker has not made progress on the request; 0 if there is nothing to do.
    std::chrono::milliseconds behindFor() const;

    void setHeard(quint64 playSerial, std::optional<double> seconds);
    /// The time in seconds that is heard now for the latest request.
    std::optional<double> heard() const;

private:
    using Time = std::chrono::steady_clock::time_point;

    // Call with the mutex held.
    void noteChange();
    void wake();

    mutable std::mutex m_mutex;
    // Guarded by m_mutex.
    Wish m_wish;
    bool m_isOver = false;
    QObject* m_worker = nullptr;
    bool m_isTaken = false; ///< the worker has taken the current request
    std::optional<Time> m_behindSince;
    quint64 m_heardSerial = 0;
    std::optional<double> m_heard;
    Time m_heardAt;
};

} // namespace QtAV
