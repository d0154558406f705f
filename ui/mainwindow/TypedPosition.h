#pragma once

#include "series/FramePositions.h"

#include <QString>

#include <optional>

/// A position typed by the user, such as "1:02:03.5", "+10s", "-2s", "f1234" or "75%".
struct TypedPosition
{
    enum class Way {
        To, ///< `place` itself
        By, ///< relative to the current position, may be negative
    };

    Way way = Way::To;
    FramePosition place; ///< for By, the milliseconds
};

/// Parses a text. Surrounding space is ignored; "last" is the last frame, and a number alone is in
/// seconds, as everywhere in the program. Nothing for any other text.
[[nodiscard]] std::optional<TypedPosition> typedPosition(const QString& text);
