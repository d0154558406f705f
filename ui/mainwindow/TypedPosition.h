#pragma once

#include "series/FramePositions.h"

#include <QString>

#include <optional>

/// A place in a video as a person types it, such as "1:02:03.5", "+10s", "-2s", "f1234" or "75%".
struct TypedPosition
{
    enum class Way {
        To, ///< `place` itself
        By, ///< so many milliseconds from here, which may be negative
    };

    Way way = Way::To;
    FramePosition place; ///< for By the milliseconds
};

/// What a text says. Space around it does not matter; "last" is the last frame, and a number alone
/// are seconds, as everywhere in the program. Nothing for any other text.
[[nodiscard]] std::optional<TypedPosition> typedPosition(const QString& text);
