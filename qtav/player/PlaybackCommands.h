#pragma once

#include <QtAV/VideoFrame.h>

#include <QString>
#include <QtGlobal>

#include <atomic>
#include <deque>
#include <optional>

namespace QtAV {

/// The commands for a decoding thread that it has not taken yet.
///
/// At most one file, one seek and a number of steps wait at a time: a newer file replaces all, a
/// newer seek the seeks and steps before it, and steps in opposite directions cancel each other.
///
/// Not thread-safe: the owner's mutex guards it. Only the questions marked so may be asked without
/// that, by the decoding thread at work, which stops when the answer is true.
class PlaybackCommands
{
public:
    enum class Direction { Forward, Backward };

    struct File
    {
        QString path;          ///< empty to close the one that is open
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

    /// One second of a keyboard's repeat: more would go on long after the key was released.
    static constexpr int mostWaitingSteps = 30;

    /// More are asked for by mistake only, and each holds a frame.
    static constexpr size_t mostWaitingCaptures = 8;

    /// Each gives the command's serial number, which rises. Further steps than may wait in one
    /// direction are dropped.
    quint64 open(const QString& path, qint64 cacheBytes);
    quint64 close();
    quint64 seek(qint64 ms);
    quint64 step(Direction direction);
    /// Nothing replaces a capture. 0 when too many wait.
    [[nodiscard]] quint64 capture(const VideoFrame& frame);
    /// The thread is to end. All that waits is dropped.
    void quit();

    bool quits() const { return m_quits; }
    bool hasFile() const { return m_file.has_value(); }
    bool hasSeek() const { return m_seek.has_value(); }
    /// The direction of the next step that waits.
    std::optional<Direction> nextStep() const;

    bool hasCapture() const { return !m_captures.empty(); }

    /// Each takes a command that waits; to be called only where there is one.
    Capture takeCapture();
    File takeFile();
    Seek takeSeek();
    /// To be followed by endStep() once the step has been made or given up.
    Step takeStep();

    /// False when a step in the other direction or a seek has come meanwhile: then nothing is to
    /// change, and nothing to be answered.
    [[nodiscard]] bool endStep();

    /// No command has arrived since, until the next one does.
    void acknowledge() { m_hasArrived = false; }

    /// From any thread: a command has arrived since acknowledge().
    bool hasArrived() const { return m_hasArrived; }
    /// From any thread: what is being opened is not wanted any more.
    bool isFileOutdated() const { return m_isFileOutdated; }
    /// From any thread: what is sought is not wanted any more.
    bool isSeekOutdated() const { return m_isSeekOutdated; }
    /// From any thread: the step that has been taken is not wanted any more.
    bool isStepOutdated() const { return m_isStepOutdated; }

private:
    quint64 post();
    void dropMoves();

    quint64 m_serial = 0;
    std::deque<Capture> m_captures;
    std::optional<File> m_file;
    std::optional<Seek> m_seek;
    int m_steps = 0; ///< that wait; negative ones go backward
    quint64 m_stepSerial = 0;
    std::optional<Direction> m_taken; ///< of the step that is being made
    bool m_quits = false;
    std::atomic<bool> m_hasArrived{false};
    std::atomic<bool> m_isFileOutdated{false};
    std::atomic<bool> m_isSeekOutdated{false};
    std::atomic<bool> m_isStepOutdated{false};
};

} // namespace QtAV
