#pragma once

#include <QString>
#include <QStringList>

namespace testsupport {

/// Copies a sample to a path and adds metadata: each "key=value" applies to the file or, with the
/// prefix "s:", to its video. The path's suffix selects the container, which keeps what it
/// supports. Returns false, with ffmpeg's message in the log, on failure.
[[nodiscard]] bool tagSample(const QString& sample, const QString& path, const QStringList& tags);

} // namespace testsupport
