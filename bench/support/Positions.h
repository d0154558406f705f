#pragma once

#include <QtGlobal>

#include <vector>

namespace bench {

/// Positions in milliseconds that lie anywhere in the first 95 % of a video: beyond, an extraction
/// may reach the end, which closes the grabber. The same ones on every machine and in every run.
[[nodiscard]] std::vector<qint64> randomPositions(qint64 duration, int count);

} // namespace bench
