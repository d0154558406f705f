#pragma once

#include <QString>

#include <optional>

/// Times as people read and type them: in seconds, down to the millisecond. From any thread.

/// "5", "0.04" or "1.5", with the decimal point of the user's language and no superfluous digits.
[[nodiscard]] QString secondsText(qint64 milliseconds);

/// The milliseconds, rounded, for a text in seconds with a point or a comma. Nothing if the text is
/// no number, is negative, or is too large for any video.
[[nodiscard]] std::optional<qint64> millisecondsOf(const QString& seconds);
