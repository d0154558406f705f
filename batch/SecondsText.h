#pragma once

#include <QString>

#include <optional>

/// Times as people read and type them: in seconds, down to the millisecond.

/// "5", "0.04" or "1.5", with the decimal point of the user's language and no more digits than
/// there are.
[[nodiscard]] QString secondsText(qint64 milliseconds);

/// The milliseconds, rounded, that a text of seconds stands for; it may have a point or a comma.
/// Nothing for what is no number from 0 on, or too large for any video.
[[nodiscard]] std::optional<qint64> millisecondsOf(const QString& seconds);
