#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/// The line icons of the program, drawn in the colours of the palette and sharp on every screen.
///
/// A form names one by its file, ":/Icons/Save.icon"; a QIcon of such a file is one of these. They
/// are drawn anew whenever they are painted, so that they follow a change of the palette.
/// User-interface thread only.
namespace theme {

/// What a line icon is drawn with.
enum class Ink {
    Text,   ///< the text of buttons; that of the selection where the icon is selected
    Accent, ///< the text on the accent's ground
    Quiet,  ///< texts that matter less
};

/// @param name  of its file without folder and suffix, such as "Save"; an unknown one gives a null
///              icon
[[nodiscard]] QIcon icon(const QString& name, Ink ink = Ink::Text);

/// The same picture in another ink; an icon that is no line icon stays as it is.
[[nodiscard]] QIcon inInk(const QIcon& icon, Ink ink);

} // namespace theme
