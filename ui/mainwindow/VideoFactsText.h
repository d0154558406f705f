#pragma once

#include <QtAV/MediaFacts.h>

#include <QSize>
#include <QString>

#include <optional>

/// A line about the video and the frame on screen, such as
/// "f1234 · 25 fps · 1920 × 1080 · H.264".
namespace VideoFactsText {

/// Between what is told.
inline const QString separator = QStringLiteral(" \u00b7 ");

/// A frame's number, counted from 0.
struct FrameNumber
{
    qint64 value = 0;
    bool isExact = false; ///< otherwise computed from the time and the rate
};

/// The number computed from the time in milliseconds and the rate; nothing if the rate is unknown.
[[nodiscard]] std::optional<FrameNumber> estimated(qint64 ms, const QtAV::MediaFacts& facts);

/// Omits what is unknown.
/// @param size  display size of the picture
[[nodiscard]] QString line(const std::optional<FrameNumber>& frame, const QtAV::MediaFacts& facts,
                           const QSize& size, qreal speed);

/// The common name of a codec, such as "H.264" for "h264".
[[nodiscard]] QString codecName(const QString& codec);

} // namespace VideoFactsText
