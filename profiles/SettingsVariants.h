#pragma once

#include <QByteArray>

/// The values in settings files that are streams of bytes, such as colours and fonts.
///
/// QSettings reads them as soon as it reads the file, whatever type they declare. Pixmaps and icons
/// end a program that has no screen, and lists can be nested until the stack is exhausted.
namespace SettingsVariants {

/// Whether all such values in a file's content have types that settings can have.
[[nodiscard]] bool areHarmless(const QByteArray& content);

} // namespace SettingsVariants
