#pragma once

#include "utils/CallQueue.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class QThread;

/// Maps between the numbers and the times of a video's frames.
///
/// This requires reading the whole file once, without decoding. It happens in the background, and
/// only on request.
///
/// Belongs to one thread, which needs an event loop. No function waits for the disk, except that
/// the destructor waits for the packet being read.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    explicit FrameCounter(QObject* parent = nullptr);
    ~FrameCounter() override;

    /// Sets the video; an empty path for none. Drops the counting in progress.
    void setSource(const QString& path);

    /// Counts the frames, unless that is done or in progress.
    void count();
    bool isCounted() const { return !m_times.isEmpty(); }
    bool isCounting() const { return m_thread != nullptr; }

    /// The number of frames; 0 before they are counted.
    int frames() const { return m_times.size(); }

    /// The number, from 0 on, of the frame that is on screen at a time in whole milliseconds,
    /// truncated; nothing before the frames are counted.
    [[nodiscard]] std::optional<int> numberAt(qint64 ms) const;
    /// The time of a frame in whole milliseconds, truncated; nothing if there is no such frame or
    /// the frames are not counted yet.
    [[nodiscard]] std::optional<qint64> timeOf(qint64 number) const;

Q_SIGNALS:
    /// Counting has ended; isCounted() tells whether it succeeded.
    void finished();

private:
    void drop();
    void take(int run, const QVector<qint64>& times);

    QString m_path;
    QVector<qint64> m_times; ///< in rising order
    int m_run = 0;           ///< changes when the counting in progress is no longer wanted
    CallQueue m_results{this};
    std::shared_ptr<std::atomic<bool>> m_isCancelled;
    std::unique_ptr<QThread> m_thread; ///< null when not counting
    /// Threads of earlier counts. They end soon, but run only when the machine is otherwise idle.
    std::vector<std::unique_ptr<QThread>> m_ending;
};
