#pragma once

class QColor;

namespace theme {

/// How well one colour can be told from another, 1 to 21, as the Web Content Accessibility
/// Guidelines count it: they ask for 4.5 between a text and its ground, and for 3 between the
/// outline of a control and what is around it. Alpha is not looked at.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

} // namespace theme
