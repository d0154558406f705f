#pragma once

#include <QList>

class BatchWorkerConfig;
class QObject;

/// The list of batch mode, kept in "batchList.ini" in the application's configuration folder.
/// User-interface thread only.
namespace BatchListFile {

/// Replaces the stored list by these jobs: their videos, folders and settings. Failures are
/// ignored, like all failures to write settings.
void save(const QList<BatchWorkerConfig*>& jobs);

/// Creates jobs for the stored list, in its order; the parent owns them. Nothing is known about
/// their videos yet. A profile that no longer exists is replaced by the last used one.
[[nodiscard]] QList<BatchWorkerConfig*> load(QObject* parent);

} // namespace BatchListFile
