#pragma once

#include <QPalette>

/// The colours of the program. All of them are roles of the application's palette, so that a
/// widget, a delegate or a rule of the style sheet takes them from there and follows when they
/// change.
namespace theme {

enum class Scheme { Dark, Light };

// What the roles are used for that Qt gives no exact meaning.

/// The ground of pictures: a neutral grey, beside which colours are judged rightly.
constexpr QPalette::ColorRole canvasRole = QPalette::Shadow;
/// The outlines of controls.
constexpr QPalette::ColorRole outlineRole = QPalette::Mid;
/// Lines between parts of a window, which carry no meaning.
constexpr QPalette::ColorRole separatorRole = QPalette::Dark;
/// A control that is pointed at.
constexpr QPalette::ColorRole hoverRole = QPalette::Light;
/// A control that is pressed, and grooves.
constexpr QPalette::ColorRole pressedRole = QPalette::Midlight;
/// The ground of what is selected, and of the button that a window is there for.
constexpr QPalette::ColorRole accentRole = QPalette::Highlight;
/// The accent where it is a line or a text on a window's ground: the focus ring, links.
constexpr QPalette::ColorRole accentLineRole = QPalette::Link;
/// What is wrong: the outline of a refused text, and what is said of it.
constexpr QPalette::ColorRole errorRole = QPalette::BrightText;
/// Texts that matter less.
constexpr QPalette::ColorRole quietTextRole = QPalette::PlaceholderText;

/// All roles, for enabled, inactive and disabled widgets.
[[nodiscard]] QPalette palette(Scheme scheme);

/// What another palette is nearer to.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

} // namespace theme
