#pragma once

#include <QtAV/FrameReader.h>

#include "qtav/player/FrameCache.h"

#include <chrono>
#include <functional>
#include <optional>

namespace QtAV {

/// Decodes what lies before the focus, so that steps back find it in the cache.
///
/// Video can only be decoded forward from a key frame. So this works in passes: each starts at the
/// key frame before a frame, the target, and ends when it has come to that. What lies directly
/// before the target comes last. Frames that the cache has no room for are skipped where no other
/// needs them. When the target is a key frame the pass leads through the group of pictures before
/// it.
///
/// Where a codec gives no whole picture at a place that the container calls a key frame, a pass
/// starts again further back, until nothing can be missing before its target.
///
/// Works with a reader that others use as well: who moves it must call leave(). Not thread-safe,
/// but tied to no thread.
class BackwardFill
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// @param onFrame  called for each frame that the reader has come to.
    /// @param clock    what the estimates are made with.
    BackwardFill(FrameReader& reader, std::function<void()> onFrame,
                 Clock clock = std::chrono::steady_clock::now);

    /// Begins the pass that is needed next, if one is. Touches no file yet.
    /// @param run    the cached frames around the focus.
    /// @param room   how many frames the cache has room for before the focus.
    /// @param gapMs  the longest time between two frames, in milliseconds.
    /// @return whether a pass is under way then. None begins while half of the room is filled, at
    ///         the start of the video, nor for a target that one has led to already.
    [[nodiscard]] bool startIfNeeded(const FrameCache::Run& run, qint64 room, qint64 gapMs);

    /// Begins a pass to a target in seconds. Frames before a position in milliseconds may be
    /// skipped.
    void start(double target, qint64 completeFrom);

    bool isUnderWay() const { return m_pass.has_value(); }

    /// The time in seconds of the frame that the pass leads to; only while one is under way.
    double target() const { return m_pass->target; }

    /// True when the pass under way comes to a time in seconds sooner than starting at the key
    /// frame before it would.
    bool isOnTheWayTo(double seconds) const;

    /// Decodes one frame. Nothing while the pass goes on, else what it has come to: the frame
    /// directly before the target; End where none is; Failed where the file cannot be read there.
    /// Cancelled leaves the pass under way.
    [[nodiscard]] std::optional<FrameResult> advance(const IsCancelled& isCancelled);

    /// Goes to the end of the pass.
    [[nodiscard]] FrameResult finish(const IsCancelled& isCancelled);

    /// Gives the pass up: the reader goes elsewhere. Its target may be wanted again.
    void leave();

    /// Forgets the file.
    void reset();

    /// Tells of decoding that others have done: from a key frame to a time, both in seconds of the
    /// video, in so many seconds.
    void noteDecoded(double keyFrame, double upTo, double took);

    /// For how many seconds the pass under way is going to decode on; nothing when none is, or
    /// nothing was measured yet.
    std::optional<double> remainingSeconds() const;

private:
    struct Pass
    {
        double target;
        /// The key frame from which the reader had come to where it stood.
        std::optional<double> cameFrom = {};
        qint64 completeFrom = 0;
        qint64 stepBackMs = 0;
        VideoFrame previous = {};      ///< the last frame before the target
        bool isPreviousAsEver = false; ///< see FrameReader
    };

    void land();
    [[nodiscard]] std::optional<FrameResult> walkOn(const IsCancelled& isCancelled);
    void measure(std::optional<double> from);
    [[nodiscard]] FrameResult end(FrameResult result);

    FrameReader& m_reader;
    const std::function<void()> m_onFrame;
    const Clock m_clock;
    std::optional<Pass> m_pass;
    std::chrono::steady_clock::time_point m_measuredUntil;
    std::optional<double> m_filledUpTo; ///< the target of the last pass that was needed
    double m_speed = 0.0;               ///< seconds of video decoded in a second; 0 when unknown
    double m_longestGroup = 0.0;        ///< that has been seen, in seconds
};

} // namespace QtAV
