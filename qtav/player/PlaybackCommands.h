#pragma once

#include <QtAV/VideoFrame.h>

#include <QString>
#include <QtGlobal>

#include <atomic>
#include <deque>
#include <optional>

namespace QtAV {

/// The wait queue of commands for a decoding thread.
///
/// It holds at most one file, one seek and a number of steps: a newer file replaces everything, a
/// newer seek replaces the seeks and steps before it, and steps in opposite directions cancel each
/// other.
///
/// Not thread-safe: the owner's mutex guards it. Only the functions marked "from any thread" may be
/// called without it. The decoding thread polls them while it works and stops when they return
/// true.
class PlaybackCommands
{
public:
    enum class Direction { Forward, Backward };

    struct File
    {
        QString path;          ///< empty to close the open file
        qint64 cacheBytes = 0; ///< see FrameSource::open()
        quint64 serial = 0;
    };
    struct Seek
    {
        qint64 ms;
        quint64 serial;
    };
    struct Step
    {
        Direction direction;
        quint64 serial;
    };
    struct Capture
    {
        VideoFrame frame;
        quint64 serial;
    };

    /// One second of keyboard repeat: more steps would continue long after the key was released.
    static constexpr int mostWaitingSteps = 30;

    /// More are requested only by mistake, and each holds a frame.
    static constexpr size_t mostWaitingCaptures = 8;

    /// Each returns the command's serial number, which rises. Steps beyond the maximum in one
    /// direction are dropped.
    quint64 open(const QString& path, qint64 cacheBytes);
    quint64 close();
    quint64 seek(qint64 ms);
    quint64 step(Direction direction);
    /// Nothing replaces a capture. Returns 0 if too many wait.
    [[nodiscard]] quint64 capture(const VideoFrame& frame);
    /// Ends the thread and drops all waiting commands.
    void quit();

    bool quits() const { return m_quits; }
    bool hasFile() const { return m_file.has_value(); }
    bool hasSeek() const { return m_seek.has_value(); }
    /// Direction of the next waiting step.
    std::optional<Direction> nextStep() const;

    bool hasCapture() const { return !m_captures.empty(); }

    /// Each takes a waiting command; call it only if there is one.
    Capture takeCapture();
    File takeFile();
    Seek takeSeek();
    /// Call endStep() after the step has been carried out or abandoned.
    Step takeStep();

    /// False if a step in the other direction or a seek has arrived meanwhile: the step then must
    /// have no effect and no answer.
    [[nodiscard]] bool endStep();

    /// Clears hasArrived() until the next command arrives.
    void acknowledge() { m_hasArrived = false; }

    /// From any thread: a command has arrived since acknowledge().
    bool hasArrived() const { return m_hasArrived; }
    /// From any thread: the file being opened is no longer wanted.
    bool isFileOutdated() const { return m_isFileOutdated; }
    /// From any thread: the current seek is no longer wanted.
    bool isSeekOutdated() const { return m_isSeekOutdated; }
    /// From any thread: the step taken is no longer wanted.
    bool isStepOutdated() const { return m_isStepOutdated; }

private:
    quint64 post();
    void dropMoves();

    quint64 m_serial = 0;
    std::deque<Capture> m_captures;
    std::optional<File> m_file;
    std::optional<Seek> m_seek;
    int m_steps = 0; ///< waiting steps; negative means backward
    quint64 m_stepSerial = 0;
    std::optional<Direction> m_taken; ///< of the step in progress
    bool m_quits = false;
    std::atomic<bool> m_hasArrived{false};
    std::atomic<bool> m_isFileOutdated{false};
    std::atomic<bool> m_isSeekOutdated{false};
    std::atomic<bool> m_isStepOutdated{false};
};

} // namespace QtAV
