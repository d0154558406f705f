#pragma once

/// Distances in device-independent pixels, on a grid of four. ThemeStyle applies `wide` and
/// `normal` to layouts whose forms set neither margins nor spacing.
namespace theme::spacing {

constexpr int tight = 4;    ///< between parts of one control
constexpr int normal = 8;   ///< between controls
constexpr int wide = 12;    ///< between groups, and around the content of a window
constexpr int section = 20; ///< between sections that have headings

} // namespace theme::spacing
