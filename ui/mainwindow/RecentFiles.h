#pragma once

#include <QString>
#include <QStringList>

class QSettings;

/// The videos that were opened last, kept in the settings under "recentFiles". User-interface
/// thread only.
namespace RecentFiles {

/// So many are remembered.
constexpr int most = 10;

/// The absolute paths, the newest first; also of files that are gone.
[[nodiscard]] QStringList in(const QSettings& settings);

/// Puts the file at the front.
void add(QSettings& settings, const QString& path);

void clear(QSettings& settings);

} // namespace RecentFiles
