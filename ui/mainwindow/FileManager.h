#pragma once

#include <QString>

/// The desktop's file manager. User-interface thread only.
namespace FileManager {

/// Shows the file selected in its folder if the file manager supports that; otherwise opens the
/// folder. Returns at once. Without a file manager nothing happens.
void show(const QString& file);

} // namespace FileManager
