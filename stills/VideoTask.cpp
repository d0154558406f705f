#include "stills/VideoTask.h"

#include <filesystem>
#include <map>
#include <set>
#include <utility>

namespace stills {

namespace {

namespace fs = std::filesystem;

/// Names that are equal up to here may become equal when truncated.
constexpr std::size_t comparedBytes = 100;

std::string stemOf(const std::string& path)
{
    const std::string name = fs::path(path).filename().string();
    const std::size_t point = name.rfind('.');
    return point == std::string::npos || point == 0 ? name : name.substr(0, point);
}

std::string folderOf(const std::string& path)
{
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// Gives each folder one spelling, the first.
class Folders
{
public:
    const std::string& spellingOf(const std::string& folder)
    {
        const auto [known, isNew] = m_known.emplace(folder, folder);
        if (isNew) {
            known->second = m_spellings.emplace(canonical(folder), folder).first->second;
        }
        return known->second;
    }

private:
    /// The same for all spellings of a folder, which need not exist.
    static std::string canonical(const std::string& folder)
    {
        std::error_code error;
        const fs::path path = fs::weakly_canonical(fs::absolute(folder, error), error);
        return error ? folder : path.string();
    }

    std::map<std::string, std::string> m_spellings; // by canonical paths
    std::map<std::string, std::string> m_known;     // so that each is looked up on the disk once
};

} // namespace

std::vector<VideoTask> planTasks(const std::vector<std::string>& videos,
                                 const std::optional<std::string>& folder)
{
    using Name = std::pair<std::string, std::string>;
    std::vector<VideoTask> tasks;
    std::set<Name> stems;
    const auto key = [](const VideoTask& task) {
        return Name{task.folder, cutBetweenCharacters(task.stem, comparedBytes)};
    };
    Folders folders;
    for (const std::string& video : videos) {
        tasks.push_back(
            {video, folders.spellingOf(folder.value_or(folderOf(video))), stemOf(video), {}});
        stems.insert(key(tasks.back()));
    }
    std::set<Name> seen;
    std::map<Name, int> lastNumbers; // so that many videos with one stem do not take quadratic time
    for (VideoTask& task : tasks) {
        const Name stem = key(task);
        Name name = stem;
        int& number = lastNumbers.emplace(stem, 1).first->second;
        // No other video may have this combined name as its own.
        while (seen.count(name) > 0 || (!task.tail.empty() && stems.count(name) > 0)) {
            task.tail = "-" + std::to_string(++number);
            name = {task.folder, stem.second + task.tail};
        }
        seen.insert(name);
    }
    return tasks;
}

} // namespace stills
