#pragma once

#include "stills/Options.h"

#include <string>
#include <vector>

namespace stills {

/// The videos that a run is about, and what was named and cannot be taken. Paths are bytes.
struct VideoList
{
    struct Problem
    {
        std::string path;
        std::string text; ///< for people
    };

    std::vector<std::string> videos; ///< in the order named; those of a folder by name; none twice
    std::vector<Problem> problems;
};

/// What the options name: files, folders and the list. That a file is no video, or is not there,
/// shows when it is opened. Reads standard input where that is the list. The shard is not chosen
/// yet, see inShard().
[[nodiscard]] VideoList findVideos(const Options& options);

/// Whether a file name's suffix is that of a video.
[[nodiscard]] bool hasVideoSuffix(const std::string& path);

/// Whether the video at a place of the whole list, counted from 0, is in the shard.
[[nodiscard]] bool isInShard(std::size_t place, const Shard& shard);

} // namespace stills
