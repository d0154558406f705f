#pragma once

#include <QtAV/MediaFacts.h>

#include <QSize>
#include <QString>

#include <optional>

/// One line on the video and the frame on screen, such as
/// "f1234 · 25 fps · 1920 × 1080 · H.264".
namespace VideoFactsText {

/// Between what is told.
inline const QString separator = QStringLiteral(" \u00b7 ");

/// A frame's number, counted from 0.
struct FrameNumber
{
    qint64 value = 0;
    bool isExact = false; ///< else it follows from the time and the rate
};

/// The number by the time in milliseconds and the rate; nothing where the rate is unknown.
[[nodiscard]] std::optional<FrameNumber> estimated(qint64 ms, const QtAV::MediaFacts& facts);

/// What is unknown is not told.
/// @param size  of the picture as it is seen
[[nodiscard]] QString line(const std::optional<FrameNumber>& frame, const QtAV::MediaFacts& facts,
                           const QSize& size, qreal speed);

/// The name of a codec as people know it, such as "H.264" for "h264".
[[nodiscard]] QString codecName(const QString& codec);

} // namespace VideoFactsText
