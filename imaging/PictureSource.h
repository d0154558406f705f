#pragma once

#include "imaging/Recording.h"

#include <QMap>
#include <QSize>
#include <QString>

#include <optional>

/// Where a picture comes from: one frame of one video. A plain value, for any thread.
struct PictureSource
{
    QString video;                       ///< the file's absolute path; empty where nothing is known
    Recording recording;                 ///< of the video
    int tickNumerator = 0;               ///< how long a tick of the video's times is, in seconds:
    int tickDenominator = 1;             ///< a fraction, 0/1 where that is not known
    double seconds = 0.0;                ///< the frame's time from the start of the file
    std::optional<qint64> frameNumber{}; ///< from 0, where it is known
    QSize frameSize;                     ///< as the frame is shown, before it is made a picture

    [[nodiscard]] bool isKnown() const { return !video.isEmpty(); }

    /// What is the same for all frames of a video.
    /// @param path  of its file, absolute or from the current folder on
    /// @param tags  by FFmpeg's keys in small letters
    [[nodiscard]] static PictureSource of(const QString& path, const QMap<QString, QString>& tags,
                                          int tickNumerator, int tickDenominator);

    /// The same video's frame of that time in seconds.
    [[nodiscard]] PictureSource at(double frameSeconds, const QSize& size,
                                   std::optional<qint64> number = {}) const;

    /// The frame's time in whole milliseconds, cut off as they are everywhere.
    [[nodiscard]] qint64 positionMs() const { return static_cast<qint64>(seconds * 1000.0); }
};
