#pragma once

class QColor;

namespace theme {

/// The contrast ratio of two colours, 1 to 21, as defined by the Web Content Accessibility
/// Guidelines. These require 4.5 between a text and its background, and 3 between the outline of a
/// control and its surroundings. Alpha is ignored.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

} // namespace theme
