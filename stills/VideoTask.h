#pragma once

#include "stills/Options.h"

#include <QString>

#include <string>
#include <vector>

namespace stills {

/// In bytes. Stems that are equal up to here count as equal, since names may truncate them.
constexpr std::size_t distinctStem = 100;

/// One video of a run, and the folder for its pictures.
struct VideoTask
{
    std::string path;       ///< as given by the user
    std::string folder;     ///< of its pictures; spelled alike in all tasks with that folder
    std::string stem;       ///< its name without the last suffix
    std::string tail;       ///< distinguishes it from other videos with that stem and folder: "-2",
                            ///< "-3" …
    std::string folderTail; ///< distinguishes it from all other videos with that folder, for names
                            ///< without the stem
};

/// The tasks of all videos, in order. Tails depend on the whole list, so that they are the same in
/// each shard and in each run.
///
/// A folder that the videos spell differently, also by links, is spelled as the first of them does.
/// Otherwise names that are taken would seem free.
///
/// @param folder  for all pictures; without one, the folder of each video
[[nodiscard]] std::vector<VideoTask> planTasks(const std::vector<std::string>& videos,
                                               const std::optional<std::string>& folder);

} // namespace stills
