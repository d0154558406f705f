#pragma once

#include <QString>

/// The desktop's file manager. User-interface thread only.
namespace FileManager {

/// Shows the file in its folder and selects it, where the file manager can do that; otherwise opens
/// the folder. Returns at once; a desktop without any file manager shows nothing.
void show(const QString& file);

} // namespace FileManager
