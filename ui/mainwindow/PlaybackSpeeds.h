#pragma once

#include <QString>
#include <QtGlobal>

/// The speeds that the player offers, from 0.1 to 8.
namespace PlaybackSpeeds {

/// The next one below or above a speed; at the ends the last one.
[[nodiscard]] qreal slower(qreal speed);
[[nodiscard]] qreal faster(qreal speed);

/// Such as "1.5×".
[[nodiscard]] QString text(qreal speed);

} // namespace PlaybackSpeeds
