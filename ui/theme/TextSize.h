#pragma once

#include <QFont>
#include <QString>

#include <optional>

class QWidget;

/// Text sizes relative to a base font: the application's, which users can enlarge.
namespace theme {

enum class TextSize {
    Caption, ///< for facts and texts beside pictures: 0.9 of the base
    Body,    ///< the base itself
    Heading, ///< above a group of controls: the base in bold
    Title,   ///< above a page: 1.3 of the base
};

[[nodiscard]] QFont font(TextSize size, const QFont& base);

/// The size for a name used in forms, such as "heading": see textSizeProperty.
[[nodiscard]] std::optional<TextSize> textSizeNamed(const QString& name);

/// Name of the dynamic property by which forms set the text size of a widget ("caption", "body",
/// "heading" or "title"); ThemeStyle applies it.
constexpr char textSizeProperty[] = "textSize";
/// Name of the dynamic property that marks a label as less important.
constexpr char quietProperty[] = "quiet";

/// Makes the title of a group box a heading. Its children get explicit weights, because they would
/// inherit the font. Call it for each widget of a window, parents first.
void applyHeading(QWidget& widget);

/// Applies the size named by the widget's property, based on the application's font for its class.
/// Does nothing without such a property.
void applyTextSize(QWidget& widget);

} // namespace theme
