#pragma once

#include "ui/filmstrip/KeptSnapshot.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// The list of the snapshots that are kept, as the text of a file. Without state, for any thread.
namespace SnapshotIndex {

/// JSON, in the order of the snapshots.
[[nodiscard]] QByteArray toJson(const QVector<KeptSnapshot>& snapshots);

/// Nothing where the text is not such a list as a whole: cut off, of another version, with an entry
/// that lacks its name or has one that could lead out of the folder.
[[nodiscard]] std::optional<QVector<KeptSnapshot>> fromJson(const QByteArray& json);

} // namespace SnapshotIndex
