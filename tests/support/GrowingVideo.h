#pragma once

#include <QString>

namespace testsupport {

/// Writes a copy of mjpeg.avi in which all pictures from a number on declare 1000 by 1000 pixels,
/// which is more than 1 MiB may hold; returns false if that fails. The pictures before them are
/// whole.
[[nodiscard]] bool writeGrowingVideo(int number, const QString& path);

} // namespace testsupport
