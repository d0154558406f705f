#include "stills/VideoTask.h"

#include <filesystem>
#include <map>
#include <set>
#include <utility>

namespace stills {

namespace {

namespace fs = std::filesystem;

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

std::string tailOf(int number)
{
    return "-" + std::to_string(number);
}

/// The folders of pictures, and how many videos have each.
class Folders
{
public:
    struct Folder
    {
        std::string spelling;
        int videos = 0;
    };

    Folder& operator[](const std::string& spelling)
    {
        const auto [known, isNew] = m_bySpelling.emplace(spelling, nullptr);
        if (isNew) {
            known->second = &m_folders.emplace(canonical(spelling), Folder{spelling}).first->second;
        }
        return *known->second;
    }

private:
    /// The same for all spellings of a folder, which need not exist.
    static std::string canonical(const std::string& spelling)
    {
        std::error_code error;
        const fs::path path = fs::weakly_canonical(fs::absolute(spelling, error), error);
        return error ? spelling : path.string();
    }

    std::map<std::string, Folder> m_folders;
    std::map<std::string, Folder*> m_bySpelling; // so that each is looked up on the disk once
};

} // namespace

std::vector<VideoTask> planTasks(const std::vector<std::string>& videos,
                                 const std::optional<std::string>& folder)
{
    using Name = std::pair<std::string, std::string>;
    std::vector<VideoTask> tasks;
    std::set<Name> stems;
    const auto key = [](const VideoTask& task) {
        return Name{task.folder, cutBetweenCharacters(task.stem, distinctStem)};
    };
    Folders folders;
    for (const std::string& video : videos) {
        Folders::Folder& place = folders[folder.value_or(folderOf(video))];
        const std::string folderTail = ++place.videos > 1 ? tailOf(place.videos) : std::string();
        tasks.push_back({video, place.spelling, stemOf(video), {}, folderTail});
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
            task.tail = tailOf(++number);
            name = {task.folder, stem.second + task.tail};
        }
        seen.insert(name);
    }
    return tasks;
}

} // namespace stills
