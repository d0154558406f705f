#pragma once

#include <QtGlobal>

#include <optional>

/// The marked stretch of a video, in milliseconds. An unmarked end is that of the video. A plain
/// value.
struct MarkedStretch
{
    std::optional<qint64> fromMs;
    std::optional<qint64> toMs;

    [[nodiscard]] bool isEmpty() const { return !fromMs && !toMs; }

    /// Each clears the other end if the stretch would become empty or reversed.
    void markStart(qint64 ms)
    {
        fromMs = ms;
        if (toMs && *toMs <= ms) {
            toMs.reset();
        }
    }
    void markEnd(qint64 ms)
    {
        toMs = ms;
        if (fromMs && *fromMs >= ms) {
            fromMs.reset();
        }
    }
};
