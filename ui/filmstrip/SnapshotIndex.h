#pragma once

#include "ui/filmstrip/KeptSnapshot.h"

#include <QByteArray>
#include <QVector>

#include <optional>

/// The list of stored snapshots as the text of a file. Stateless, for any thread.
namespace SnapshotIndex {

/// JSON, in the order of the snapshots.
[[nodiscard]] QByteArray toJson(const QVector<KeptSnapshot>& snapshots);

/// Nothing unless the whole text is a valid list: not truncated, of this version, and with a safe
/// name in each entry.
[[nodiscard]] std::optional<QVector<KeptSnapshot>> fromJson(const QByteArray& json);

} // namespace SnapshotIndex
