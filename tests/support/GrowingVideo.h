#pragma once

#include <QString>

namespace testsupport {

/// Writes a copy of mjpeg.avi in which all pictures from a number on declare 1000 by 1000 pixels,
/// which exceeds a limit of 1 MiB. The pictures before them are intact. Returns false on failure.
[[nodiscard]] bool writeGrowingVideo(int number, const QString& path);

} // namespace testsupport
