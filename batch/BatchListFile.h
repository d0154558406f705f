#pragma once

#include <QList>

class BatchWorkerConfig;
class QObject;

/// The list of batch mode, kept in "batchList.ini" in the application's configuration folder.
/// User-interface thread only.
namespace BatchListFile {

/// Replaces what is kept by these jobs: their videos, folders and settings. That this fails is
/// ignored like every other failure to write settings.
void save(const QList<BatchWorkerConfig*>& jobs);

/// New jobs for what is kept, in its order; the parent owns them. Nothing is known about their
/// videos yet. A profile that there is no more is the one used last.
[[nodiscard]] QList<BatchWorkerConfig*> load(QObject* parent);

} // namespace BatchListFile
