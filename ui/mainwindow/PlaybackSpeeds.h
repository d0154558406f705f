#pragma once

#include <QString>
#include <QtGlobal>

/// The speeds that the player offers, from 0.1 to 8.
namespace PlaybackSpeeds {

/// The next lower or higher speed; the limit at the ends.
[[nodiscard]] qreal slower(qreal speed);
[[nodiscard]] qreal faster(qreal speed);

/// A text such as "1.5×", which looks the same in a line from right to left.
[[nodiscard]] QString text(qreal speed);

} // namespace PlaybackSpeeds
