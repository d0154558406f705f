#pragma once

#include "imaging/ImageRecipe.h"

#include <QSize>
#include <QString>

/// One line on what a file of the snapshot will hold, such as
/// "640 × 360 of 1920 × 1080 · JPEG 90 · watermark".
namespace SnapshotSummary {

/// @param saved  the size of the snapshot
/// @param frame  the size of the frame that it was made of; not told where it is the same
/// @param type   the suffix of the file. Its quality is told where the format has one.
[[nodiscard]] QString text(const QSize& saved, const QSize& frame, const QString& type,
                           const ImageRecipe& recipe);

/// The name of the format that the suffix stands for, such as "JPEG" for "jpg".
[[nodiscard]] QString formatName(const QString& type);

} // namespace SnapshotSummary
