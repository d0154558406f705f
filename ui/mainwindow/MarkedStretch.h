#pragma once

#include <QtGlobal>

#include <optional>

/// The stretch of a video that is marked, in milliseconds. Where one of its ends is not marked, it
/// goes to that end of the video. A plain value.
struct MarkedStretch
{
    std::optional<qint64> fromMs;
    std::optional<qint64> toMs;

    [[nodiscard]] bool isEmpty() const { return !fromMs && !toMs; }

    /// Each gives the other end up where the stretch would not go forward any more.
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
