#pragma once

#include "imaging/ImageRecipe.h"

#include <QSize>
#include <QString>

/// A line that describes the file that will be saved, such as
/// "640 × 360 of 1920 × 1080 · JPEG 90 · watermark".
namespace SnapshotSummary {

/// What stands between the parts of the line.
inline const QString separator = QStringLiteral(" \u00b7 ");

/// @param saved  the size of the snapshot
/// @param frame  the size of its frame; omitted from the text if it is the same
/// @param type   the suffix of the file. The quality is included if the format has one.
[[nodiscard]] QString text(const QSize& saved, const QSize& frame, const QString& type,
                           const ImageRecipe& recipe);

/// The name of the format for the suffix, such as "JPEG" for "jpg".
[[nodiscard]] QString formatName(const QString& type);

} // namespace SnapshotSummary
