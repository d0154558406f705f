#pragma once

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

class QObject;

namespace QtAV {

/// What a SoundPlayer wants, and what its SoundWorker has made of it. Of both threads, which share
/// it: a worker that a device holds up may outlive its player.
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

    /// Replaces the wish and wakes the worker.
    void setWish(const Wish& wish);
    /// Nothing is wished any more; wakes the worker.
    void end();

    /// Who is woken, in its own thread, by a call of its slot heed(): now, and after each change.
    /// Null for nobody from now on.
    void setWorker(QObject* worker);
    /// What the worker is to carry out now; nothing when it is to end.
    [[nodiscard]] std::optional<Wish> takeWish();
    /// It has carried out what it took.
    void setCarriedOut();
    /// For how long the worker has not got on with what is wished; 0 when there is nothing to do.
    std::chrono::milliseconds behindFor() const;

    void setHeard(quint64 playSerial, std::optional<double> seconds);
    /// The time in seconds that is heard now of what was wished last.
    std::optional<double> heard() const;

private:
    using Time = std::chrono::steady_clock::time_point;

    // With the mutex held.
    void noteChange();
    void wake();

    mutable std::mutex m_mutex;
    // Guarded by m_mutex.
    Wish m_wish;
    bool m_isOver = false;
    QObject* m_worker = nullptr;
    bool m_isTaken = false; ///< the wish is what the worker took last
    std::optional<Time> m_behindSince;
    quint64 m_heardSerial = 0;
    std::optional<double> m_heard;
    Time m_heardAt;
};

} // namespace QtAV
