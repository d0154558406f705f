#pragma once

#include <QPalette>

/// The colours of the program. All are roles of the application's palette, so that widgets,
/// delegates and rules of the style sheet follow when it changes.
namespace theme {

enum class Scheme { Dark, Light };

// Uses of the roles to which Qt gives no exact meaning.

/// The background of pictures: a neutral grey, so that colours are judged correctly.
constexpr QPalette::ColorRole canvasRole = QPalette::Shadow;
/// The outlines of controls.
constexpr QPalette::ColorRole outlineRole = QPalette::Mid;
/// Lines between parts of a window, which carry no meaning.
constexpr QPalette::ColorRole separatorRole = QPalette::Dark;
/// A control that is pointed at.
constexpr QPalette::ColorRole hoverRole = QPalette::Light;
/// A pressed control, and grooves.
constexpr QPalette::ColorRole pressedRole = QPalette::Midlight;
/// The background of a selection, and of a window's primary button.
constexpr QPalette::ColorRole accentRole = QPalette::Highlight;
/// The accent as a line or text on a window's background: the focus ring, links.
constexpr QPalette::ColorRole accentLineRole = QPalette::Link;
/// Errors: the outline of a rejected text, and error messages.
constexpr QPalette::ColorRole errorRole = QPalette::BrightText;
/// Less important texts.
constexpr QPalette::ColorRole quietTextRole = QPalette::PlaceholderText;

/// All roles, for enabled, inactive and disabled widgets.
[[nodiscard]] QPalette palette(Scheme scheme);

/// The scheme that is closest to another palette.
[[nodiscard]] Scheme schemeOf(const QPalette& palette);

} // namespace theme
