#pragma once

#include <QString>
#include <QStringList>

namespace testsupport {

/// Copies a sample to a path and writes metadata into it, each "key=value" of the file or, behind
/// "s:", of its video. The path's suffix decides the container, which keeps what it can hold.
/// False, with ffmpeg's message in the log, where that cannot be done.
[[nodiscard]] bool tagSample(const QString& sample, const QString& path, const QStringList& tags);

} // namespace testsupport
