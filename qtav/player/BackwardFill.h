#pragma once

#include <QtAV/FrameReader.h>

#include "qtav/player/FrameCache.h"

#include <chrono>
#include <functional>
#include <optional>

namespace QtAV {

/// Decodes frames before the focus ahead of time, so that steps back find them in the cache.
///
/// Video can only be decoded forward from a key frame, so this works in passes. Each pass starts at
/// the key frame before a target frame and ends when it reaches the target, so the target's direct
/// predecessor comes last. Disposable frames for which the cache has no room are skipped. If the
/// target is a key frame, the pass decodes the group of pictures before it.
///
/// If a codec gives no whole picture at what the container calls a key frame, the pass starts again
/// further back until nothing can be missing before its target.
///
/// Shares its reader with others: call leave() before moving the reader. Not thread-safe, but tied
/// to no thread.
class BackwardFill
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// @param onFrame  called for each frame that the reader reaches.
    /// @param clock    clock for the estimates.
    BackwardFill(FrameReader& reader, std::function<void()> onFrame,
                 Clock clock = std::chrono::steady_clock::now);

    /// Begins the next pass if one is needed. Does not access the file yet.
    /// @param run    the cached frames around the focus.
    /// @param room   how many frames the cache has room for before the focus.
    /// @param gapMs  the longest time between two frames, in milliseconds.
    /// @return whether a pass is in progress then. None begins while half of the room is filled, at
    ///     the start of the video, or for a target that an earlier pass has already reached.
    [[nodiscard]] bool startIfNeeded(const FrameCache::Run& run, qint64 room, qint64 gapMs);

    /// Begins a pass to a target in seconds. Frames before a position in milliseconds may be
    /// skipped.
    void start(double target, qint64 completeFrom);

    bool isUnderWay() const { return m_pass.has_value(); }

    /// The target of the pass in seconds; only while a pass is in progress.
    double target() const { return m_pass->target; }

    /// True if the pass in progress reaches a time in seconds sooner than decoding from the key
    /// frame before that time would.
    bool isOnTheWayTo(double seconds) const;

    /// Decodes one frame. Nothing while the pass continues, otherwise its result: the direct
    /// predecessor of the target, End if there is none, or Failed if the file cannot be read there.
    /// Cancelled leaves the pass in progress.
    [[nodiscard]] std::optional<FrameResult> advance(const IsCancelled& isCancelled);

    /// Runs the pass to its end.
    [[nodiscard]] FrameResult finish(const IsCancelled& isCancelled);

    /// Abandons the pass because the reader is used elsewhere. Its target may be requested again.
    void leave();

    /// Forgets the file.
    void reset();

    /// Records decoding done by others, for the estimates: from a key frame up to a time, both in
    /// seconds of the video, which took that many seconds.
    void noteDecoded(double keyFrame, double upTo, double took);

    /// Estimated remaining time of the pass in progress in seconds; nothing if no pass is in
    /// progress or no speed was measured yet.
    std::optional<double> remainingSeconds() const;

private:
    struct Pass
    {
        double target;
        /// The key frame from which the reader had reached its previous place.
        std::optional<double> cameFrom = {};
        qint64 completeFrom = 0;
        qint64 stepBackMs = 0;
        VideoFrame previous = {};      ///< the last frame before the target
        bool isPreviousAsEver = false; ///< see FrameReader::looksAsEver()
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
    double m_longestGroup = 0.0;        ///< the longest group of pictures seen so far, in seconds
};

} // namespace QtAV
