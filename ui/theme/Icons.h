#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/// The line icons of the program, drawn in the colours of the palette and sharp on every screen.
///
/// A form refers to one by its file, ":/Icons/Save.icon"; a QIcon for such a file is a line icon.
/// They are drawn on each paint event, so they follow changes of the palette. User-interface thread
/// only.
namespace theme {

/// The colour of a line icon.
enum class Ink {
    Text,   ///< that of button texts; of selected text if the icon is selected
    Accent, ///< that of text on the accent
    Quiet,  ///< that of less important texts
};

/// @param name  its file name without folder and suffix, such as "Save"; an unknown one gives a
///     null icon
[[nodiscard]] QIcon icon(const QString& name, Ink ink = Ink::Text);

/// The same icon in another ink; an icon that is not a line icon stays unchanged.
[[nodiscard]] QIcon inInk(const QIcon& icon, Ink ink);

} // namespace theme
