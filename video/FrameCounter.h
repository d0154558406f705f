#pragma once

#include <QObject>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class QThread;

/// Knows which frame of a video comes when, by its number.
///
/// For that the whole file has to be read once, though nothing is decoded. That is done in the
/// background, and only when it is asked for.
///
/// Belongs to one thread, which needs an event loop; nothing here waits for the disk, except the
/// destructor for the packet that is being read.
class FrameCounter : public QObject
{
    Q_OBJECT

public:
    explicit FrameCounter(QObject* parent = nullptr);
    ~FrameCounter() override;

    /// The video from now on; an empty path for none. What is being counted is dropped.
    void setSource(const QString& path);

    /// Counts the frames, unless that is done or being done.
    void count();
    bool isCounted() const { return !m_times.isEmpty(); }
    bool isCounting() const { return m_thread != nullptr; }

    /// How many frames there are; 0 before they are counted.
    int frames() const { return m_times.size(); }

    /// The number, from 0 on, of the frame that is on screen at a time in whole milliseconds, cut
    /// off; nothing before they are counted.
    [[nodiscard]] std::optional<int> numberAt(qint64 ms) const;
    /// The time of a frame in whole milliseconds, cut off; nothing where there is no such frame, or
    /// nothing is counted yet.
    [[nodiscard]] std::optional<qint64> timeOf(qint64 number) const;

Q_SIGNALS:
    /// The counting has ended; isCounted() tells whether anything could be counted.
    void finished();

private:
    void drop();
    Q_INVOKABLE void take(int run, const QVector<qint64>& times);

    QString m_path;
    QVector<qint64> m_times; ///< in rising order
    int m_run = 0;           ///< changes when what is being counted is not wanted any more
    std::shared_ptr<std::atomic<bool>> m_isCancelled;
    std::unique_ptr<QThread> m_thread; ///< null while nothing is being counted
    /// What was counting before. They end soon, but run only when nothing else does.
    std::vector<std::unique_ptr<QThread>> m_ending;
};
