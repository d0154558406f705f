#include "stills/VideoList.h"

#include "stills/ListFile.h"
#include "stills/Result.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <string_view>
#include <unordered_set>

namespace stills {

namespace {

namespace fs = std::filesystem;

/// Sorted, for a binary search.
constexpr std::array<std::string_view, 45> videoSuffixes{
    "264",  "265",  "3g2",  "3gp",  "asf", "av1",  "avi",  "divx", "dv",  "evo",   "f4v",  "flv",
    "h264", "h265", "hevc", "ivf",  "m1v", "m2p",  "m2ts", "m2v",  "m4v", "mjpeg", "mjpg", "mk3d",
    "mkv",  "mod",  "mov",  "mp4",  "mpe", "mpeg", "mpg",  "mpv",  "mts", "mxf",   "nut",  "ogm",
    "ogv",  "qt",   "rm",   "rmvb", "ts",  "vob",  "webm", "wmv",  "y4m"};

/// Collects paths, each once.
class Collector
{
public:
    explicit Collector(bool isRecursive)
        : m_isRecursive(isRecursive)
    {}

    void add(const std::string& path)
    {
        std::error_code error;
        if (!fs::is_directory(path, error)) {
            addVideo(path);
        } else if (m_isRecursive) {
            addFolder(path);
        } else {
            m_list.problems.push_back(
                {path, "is a folder; --recursive takes the videos in it", false});
        }
    }

    /// Adds a list or a folder whose videos are unknown.
    void addUnreadable(const std::string& path, const std::string& text)
    {
        m_list.problems.push_back({path, text, true});
    }

    [[nodiscard]] VideoList taken() { return std::move(m_list); }

private:
    void addVideo(const std::string& path)
    {
        if (m_known.insert(path).second) {
            m_list.videos.push_back(path);
        }
    }

    /// Adds the videos in a folder and then those in its subfolders, all sorted by name. Hidden
    /// files and folders are skipped, and so are links to folders, which may form cycles.
    void addFolder(const std::string& path)
    {
        std::error_code error;
        std::vector<std::string> files;
        std::vector<std::string> folders;
        fs::directory_iterator entry(path, error);
        while (!error && entry != fs::directory_iterator()) {
            const std::string name = entry->path().filename().string();
            std::error_code unknown;
            if (name.front() != '.' && entry->is_directory(unknown)) {
                if (!entry->is_symlink(unknown)) {
                    folders.push_back(entry->path().string());
                }
            } else if (name.front() != '.' && hasVideoSuffix(name)) {
                files.push_back(entry->path().string());
            }
            entry.increment(error);
        }
        if (error) {
            addUnreadable(path, "cannot be read: " + error.message());
        }
        std::sort(files.begin(), files.end());
        std::sort(folders.begin(), folders.end());
        std::for_each(files.begin(), files.end(), [this](const auto& file) { addVideo(file); });
        std::for_each(folders.begin(), folders.end(),
                      [this](const auto& folder) { addFolder(folder); });
    }

    bool m_isRecursive = false;
    VideoList m_list;
    std::unordered_set<std::string> m_known;
};

/// The lines, or the parts separated by NUL characters if there are any, without empty ones.
std::vector<std::string> namesIn(const std::string& content)
{
    const char separator = content.find('\0') == std::string::npos ? '\n' : '\0';
    std::vector<std::string> names;
    for (std::size_t start = 0; start < content.size();) {
        const std::size_t end = std::min(content.find(separator, start), content.size());
        std::string name = content.substr(start, end - start);
        std::error_code error;
        // The list may have been written on Windows, but a file may really have such a name.
        if (separator == '\n' && !name.empty() && name.back() == '\r' && !fs::exists(name, error)) {
            name.pop_back();
        }
        if (!name.empty()) {
            names.push_back(name);
        }
        start = end + 1;
    }
    return names;
}

} // namespace

bool hasVideoSuffix(const std::string& path)
{
    const std::size_t point = path.find_last_of("./");
    if (point == std::string::npos || path[point] != '.') {
        return false;
    }
    std::string suffix = path.substr(point + 1);
    std::transform(suffix.begin(), suffix.end(), suffix.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return std::binary_search(videoSuffixes.begin(), videoSuffixes.end(), suffix);
}

bool isInShard(std::size_t place, const Shard& shard)
{
    return place % static_cast<std::size_t>(shard.count) ==
           static_cast<std::size_t>(shard.number - 1);
}

VideoList findVideos(const Options& options)
{
    Collector collector(options.isRecursive);
    for (const std::string& video : options.videos) {
        collector.add(video);
    }
    if (options.listFile) {
        const Result<std::string> content = readList(*options.listFile);
        if (content.isGood()) {
            for (const std::string& name : namesIn(*content.value)) {
                collector.add(name);
            }
        } else {
            collector.addUnreadable(*options.listFile, content.error);
        }
    }
    return collector.taken();
}

} // namespace stills
