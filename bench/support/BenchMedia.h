#pragma once

#include <QString>

namespace bench {

/// The path of one of the videos that bench/media/make_bench_media.sh makes.
///
/// They are looked for in the folder that the environment variable MORVANTILE_BENCH_MEDIA names, or
/// else in build/bench-media of the project. Whether the video is there is not looked at.
[[nodiscard]] QString mediaPath(const QString& name);

} // namespace bench
