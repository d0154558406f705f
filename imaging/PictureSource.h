#pragma once

#include "imaging/Recording.h"

#include <QMap>
#include <QSize>
#include <QString>

#include <optional>

/// The origin of a picture: one frame of one video. A plain value, for any thread.
struct PictureSource
{
    QString video;                       ///< the file's absolute path; empty if unknown
    Recording recording;                 ///< of the video
    int tickNumerator = 0;               ///< duration of a tick of the video's times, in seconds:
    int tickDenominator = 1;             ///< a fraction, 0/1 if unknown
    double seconds = 0.0;                ///< the frame's time in seconds from the start of the file
    std::optional<qint64> frameNumber{}; ///< from 0; nothing if unknown
    QSize frameSize;                     ///< display size of the frame, before it is made a picture

    [[nodiscard]] bool isKnown() const { return !video.isEmpty(); }

    /// The properties common to all frames of a video.
    /// @param path  of its file, absolute or relative to the current folder
    /// @param tags  by FFmpeg's keys in lower case
    [[nodiscard]] static PictureSource of(const QString& path, const QMap<QString, QString>& tags,
                                          int tickNumerator, int tickDenominator);

    /// The frame of the same video at that time in seconds.
    [[nodiscard]] PictureSource at(double frameSeconds, const QSize& size,
                                   std::optional<qint64> number = {}) const;

    /// The frame's time in whole milliseconds, truncated.
    [[nodiscard]] qint64 positionMs() const { return static_cast<qint64>(seconds * 1000.0); }
};
