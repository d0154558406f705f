#pragma once

#include <QString>

namespace bench {

/// The path of one of the videos that bench/media/make_bench_media.sh makes.
///
/// The folder is given by the environment variable MORVANTILE_BENCH_MEDIA, otherwise it is
/// build/bench-media of the project. Does not check whether the video exists.
[[nodiscard]] QString mediaPath(const QString& name);

} // namespace bench
