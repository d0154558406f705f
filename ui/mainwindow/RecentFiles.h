#pragma once

#include <QString>
#include <QStringList>

class QSettings;

/// The recently opened videos, stored in the settings under "recentFiles". User-interface thread
/// only.
namespace RecentFiles {

/// Maximum number of files.
constexpr int most = 10;

/// The absolute paths, the newest first, including files that no longer exist.
[[nodiscard]] QStringList in(const QSettings& settings);

/// Those of the files that are there. If the disk does not tell within a moment, they count as
/// there.
[[nodiscard]] QStringList present(const QStringList& files);

/// Puts the file at the front.
void add(QSettings& settings, const QString& path);

void clear(QSettings& settings);

} // namespace RecentFiles
