#pragma once

#include <QFont>
#include <QString>

#include <optional>

class QWidget;

/// The sizes of text, all relative to a base font: the application's, which people make larger.
namespace theme {

enum class TextSize {
    Caption, ///< beside pictures, and facts: 0.9 of the base
    Body,    ///< as it is
    Heading, ///< above a group of controls: as large, and bold
    Title,   ///< above a page: 1.3 of the base
};

[[nodiscard]] QFont font(TextSize size, const QFont& base);

/// By its name in forms, such as "heading": see textSizeProperty.
[[nodiscard]] std::optional<TextSize> textSizeNamed(const QString& name);

/// A form gives a widget a text size by a dynamic property of this name ("caption", "body",
/// "heading" or "title"); ThemeStyle sees to it.
constexpr char textSizeProperty[] = "textSize";
/// A form marks a label that matters less by setting this dynamic property to true.
constexpr char quietProperty[] = "quiet";

/// Makes the title of a group box a heading; what is inside keeps its weight by itself, for fonts
/// come down from parents. For each widget of a window, parents first.
void applyHeading(QWidget& widget);

/// Gives the widget the size that its property names, from the application's font for its class.
/// Without such a property, nothing happens.
void applyTextSize(QWidget& widget);

} // namespace theme
