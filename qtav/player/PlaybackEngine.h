#pragma once

#include "qtav/player/FrameSource.h"
#include "qtav/player/PlaybackCommands.h"

#include <QImage>
#include <QSize>
#include <QString>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace QtAV {

/// The decoding thread of one player.
///
/// The owner's thread posts commands and never waits, see PlaybackCommands. Each command has a
/// serial number that its answer repeats. A command that is replaced by a newer one, or cancelled
/// by a step in the other direction, is not answered. Steps are carried out one by one. During
/// playback, frames are decoded ahead into a bounded queue, from which the owner takes them when
/// they are due; otherwise, frames before the current one are decoded into the cache.
///
/// All public functions must be called from the owner's thread.
class PlaybackEngine
{
public:
    using Direction = PlaybackCommands::Direction;

    struct Answer
    {
        enum class Kind { Opened, Sought, Stepped, Refined, Captured };

        Kind kind = Kind::Sought;
        quint64 serial = 0;
        /// Opened: Frame if the file plays, otherwise Failed. Sought: Frame, or Failed if the file
        /// can no longer deliver any frame. Stepped: End if there is no frame in that direction,
        /// Failed if it cannot be read. All of these may give scaled-down frames. Refined: Frame,
        /// the one given last, in full size or with a new deinterlacing setting; the serial number
        /// is that of its command. Captured: the frame of the image.
        FrameResult result = {};
        QImage image = {};   ///< Captured: the picture, null if it is unavailable
        qint64 duration = 0; ///< as far as it is known, in milliseconds; may grow
        int frameInterval = 0;
        bool hasSound = false;
        MediaFacts facts = {}; ///< Opened: what the file says of itself
    };

    /// What the queue holds for a moment of playback.
    struct Due
    {
        VideoFrame frame = {};           ///< the frame to show now; invalid if there is none
        std::optional<double> next = {}; ///< the time of the frame after it in seconds
        int dropped = 0;                 ///< frames that came too late to be shown
        bool isEnded = false;            ///< nothing comes after `frame`
        /// Why no frame can be decoded after `frame`; nothing while more may come or there is none.
        std::optional<QString> failure = {};
        qint64 duration = 0; ///< as far as it is known, in milliseconds
    };

    enum class CatchUp { No, Yes };

    /// A longer queue would only take memory and delay seeks during playback. Fewer large frames
    /// suffice: they are decoded evenly, and each takes long.
    static constexpr size_t mostQueuedFrames = 5;
    static constexpr size_t mostQueuedLargeFrames = 3;
    static constexpr qint64 largeFrameBytes = qint64(8) << 20;

    /// @param wake  called on the decoding thread when there are answers, or when frames arrive
    ///     after takeDue() found none. Must not call the engine.
    explicit PlaybackEngine(std::function<void()> wake);

    /// Waits until the decoding thread has ended: at most for a packet or for a file being opened.
    ~PlaybackEngine();
    PlaybackEngine(const PlaybackEngine&) = delete;
    PlaybackEngine& operator=(const PlaybackEngine&) = delete;

    quint64 open(const QString& path, qint64 cacheBytes);
    quint64 close();
    quint64 seek(qint64 ms);
    quint64 step(Direction direction);

    /// Makes an image of a frame of the open file that this engine delivered: in Format_ARGB32 and
    /// full size, even if the frame is scaled down. Every call is answered.
    quint64 capture(const VideoFrame& frame);

    /// Whether the queue is kept full.
    void setPlaying(bool playing);

    /// The size in pixels of the screen on which frames are shown; ignored when empty.
    void setScreen(const QSize& size);

    /// How interlaced pictures are treated from now on. The current frame is delivered again.
    void setDeinterlacing(Deinterlacing deinterlacing);

    /// Memory limit for one picture, from the next file on.
    void setPictureMemory(qint64 bytes);

    /// The answers since the last call, in order.
    std::vector<Answer> takeAnswers();

    /// Takes all frames whose time has come out of the queue. The last of them becomes the current
    /// frame, which steps start from.
    /// @param catchUp  whether decoding drops frames when it falls behind this time.
    Due takeDue(double seconds, CatchUp catchUp);

private:
    using Lock = std::unique_lock<std::mutex>;
    using Time = std::chrono::steady_clock::time_point;

    void run();
    [[nodiscard]] bool workOnce(Lock& lock);
    void carryOutCapture(Lock& lock);
    void replaceFile(Lock& lock);
    void carryOutSeek(Lock& lock);
    void carryOutStep(Lock& lock);
    bool wantsFrames() const;
    void decodeAhead(Lock& lock);
    bool isTooSoon() const;
    void prepareForStep(Lock& lock);
    void prepare(Lock& lock);
    void refine();
    void makeAnew(Lock& lock);

    quint64 posted(quint64 serial);
    void forgetQueue();
    void becomeCurrent(const VideoFrame& frame, quint64 serial);
    [[nodiscard]] FrameResult stayingAt(const VideoFrame& frame, FrameResult failed,
                                        const IsCancelled& isCancelled);
    void answer(Answer answer);
    void wakeOwner();

    const std::function<void()> m_wake;
    std::mutex m_mutex;
    // Guarded by m_mutex, down to m_ownerWaitsForFrames; m_commands except where documented
    // otherwise.
    std::condition_variable m_changed;
    PlaybackCommands m_commands;
    std::vector<Answer> m_answers;
    VideoFrame m_current;
    std::deque<VideoFrame> m_queue;
    quint64 m_queueGeneration = 0; ///< changes when the frame being decoded no longer belongs in
                                   ///< the queue
    double m_catchUpTo = 0.0;      ///< the time of the sound in seconds; 0 if there is none to
                                   ///< follow
    QSize m_screen;
    qint64 m_pictureMemory = usualPictureBytes;
    Deinterlacing m_deinterlacing = Deinterlacing::Automatic;
    bool m_isCurrentOutdated = false; ///< m_current was deinterlaced with another setting
    quint64 m_currentSerial = 0;      ///< of the command that made the frame current
    Time m_currentSince;              ///< when it became current
    Time m_noStepBackBefore;          ///< earliest time for answering the next step back
    qint64 m_duration = 0;            ///< of the open file, in milliseconds
    bool m_playing = false;
    bool m_ended = false;             ///< the last frame is in the queue, or was
    std::optional<QString> m_failure; ///< why nothing can be decoded behind the queue
    bool m_mayPrepare = false;        ///< there may be something to decode for what comes next
    bool m_ownerIsWoken = false;
    bool m_ownerWaitsForFrames = false;

    FrameSource m_source; ///< used by the decoding thread
    std::thread m_thread; ///< last, so that all other members exist when it starts
};

} // namespace QtAV
