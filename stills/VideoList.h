#pragma once

#include "stills/Options.h"

#include <string>
#include <vector>

namespace stills {

/// The videos of a run, and the named files that cannot be used. Paths are bytes.
struct VideoList
{
    struct Problem
    {
        std::string path;
        std::string text; ///< a text for people
        bool hidesVideos; ///< the list may lack videos because of it
    };

    std::vector<std::string> videos; ///< in the order named; those of a folder by name; without
                                     ///< duplicates
    std::vector<Problem> problems;
};

/// Collects the videos that the options name: files, folders and the list. Whether a file is a
/// video, or exists, is checked only when it is opened. Reads standard input if that is the list.
/// The shard is applied later, see isInShard().
[[nodiscard]] VideoList findVideos(const Options& options);

/// Whether a file name's suffix is that of a video.
[[nodiscard]] bool hasVideoSuffix(const std::string& path);

/// Whether the video at an index of the whole list, counted from 0, is in the shard.
[[nodiscard]] bool isInShard(std::size_t place, const Shard& shard);

} // namespace stills
