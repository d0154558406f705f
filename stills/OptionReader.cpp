#include "stills/OptionReader.h"

#include "stills/Times.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <sstream>

namespace stills {

namespace {

using Value = TypedOptions::Value;

constexpr std::int64_t highestCount = 1000000;
constexpr std::int64_t highestColumns = 100;
constexpr std::int64_t widestGap = 500;
constexpr std::int64_t highestJobs = 256;

/// A year: longer times are treated as unlimited anyway.
constexpr double longestMs = 365.0 * 24 * 3600 * 1000;

bool isOneOf(const std::string& word, const char* words)
{
    std::istringstream known{std::string(words)};
    return std::any_of(std::istream_iterator<std::string>(known), {},
                       [&word](const std::string& candidate) { return candidate == word; });
}

/// Parses values one after another and keeps the first error.
class Reader
{
public:
    explicit Reader(const TypedOptions& typed)
        : m_typed(typed)
    {}

    [[nodiscard]] Result<Options> read();

private:
    void readPositions();
    void readKind();
    void readSkips();
    void readLists();
    void readPictures();
    void readFilter(const std::string& text);
    void readMetadata(const std::string& text);
    void readSheet();
    void readFiles();
    void readVideos();
    void readReporting();

    void fail(const std::string& error)
    {
        if (m_error.empty()) {
            m_error = error;
        }
    }

    /// Returns the parsed value. After an error returns a default value and records the error with
    /// the option's name.
    template <typename T>
    T good(const char* option, const Result<T>& result)
    {
        if (!result.isGood()) {
            fail(std::string(option) + ": " + result.error);
            return T();
        }
        return *result.value;
    }

    int number(const char* option, const std::string& text, std::int64_t low, std::int64_t high)
    {
        return static_cast<int>(good(option, parseNumber(text, low, high)));
    }

    /// At most one of the mutually exclusive options may be given.
    void allowOne(const std::vector<std::pair<const char*, bool>>& options)
    {
        const char* first = nullptr;
        for (const auto& [name, isThere] : options) {
            if (isThere && first != nullptr) {
                fail(std::string(first) + " and " + name + " exclude each other; give one of them");
            }
            first = isThere ? name : first;
        }
    }

    void need(const char* option, bool isThere, const char* other, bool isOtherThere)
    {
        if (isThere && !isOtherThere) {
            fail(std::string(option) + " has a meaning with " + other + " only; add that");
        }
    }

    const TypedOptions& m_typed;
    Options m_options;
    std::string m_error;
};

void Reader::readPositions()
{
    allowOne({{"--count", m_typed.count.has_value()},
              {"--every", m_typed.every.has_value()},
              {"--at", !m_typed.at.empty()},
              {"--frames", !m_typed.frames.empty()},
              {"--keyframes", m_typed.keyFrames},
              {"--scenes", m_typed.scenes.has_value()},
              {"--best", m_typed.best.has_value()}});
    m_options.choosesPositions = m_typed.count || m_typed.every || !m_typed.at.empty() ||
                                 !m_typed.frames.empty() || m_typed.keyFrames || m_typed.scenes ||
                                 m_typed.best;
    readKind();
    readLists();
    readSkips();
}

void Reader::readKind()
{
    FramePositions& positions = m_options.positions;
    if (m_typed.count) {
        positions.count = number("--count", *m_typed.count, 1, highestCount);
    } else if (m_typed.every) {
        positions.kind = FramePositions::Kind::Every;
        const double ms = good("--every", parseTime(*m_typed.every));
        if (m_error.empty() && (ms < 1.0 || ms != std::floor(ms))) {
            fail("--every: " + quoted(*m_typed.every) +
                 " is not a whole number of milliseconds from 1 on; write 5s or 40ms");
        }
        positions.everyMs = static_cast<std::int64_t>(ms);
    } else if (m_typed.best) {
        positions.kind = FramePositions::Kind::Best;
        positions.count = number("--best", *m_typed.best, 1, highestCount);
    } else if (m_typed.keyFrames) {
        positions.kind = FramePositions::Kind::KeyFrames;
    } else if (m_typed.scenes) {
        positions.kind = FramePositions::Kind::Scenes;
        if (!m_typed.scenes->empty()) {
            positions.sceneThreshold = good("--scenes", parseThreshold(*m_typed.scenes));
        }
    }
}

void Reader::readLists()
{
    std::vector<FramePosition>& list = m_options.positions.list;
    for (const std::string& text : m_typed.at) {
        const auto more = good("--at", parsePositions(text));
        list.insert(list.end(), more.begin(), more.end());
    }
    for (const std::string& text : m_typed.frames) {
        const auto more = good("--frames", parseFrames(text));
        list.insert(list.end(), more.begin(), more.end());
    }
    if (!m_typed.at.empty() || !m_typed.frames.empty()) {
        m_options.positions.kind = FramePositions::Kind::List;
    }
}

void Reader::readSkips()
{
    FramePositions& positions = m_options.positions;
    if (m_typed.skipStart) {
        positions.front = good("--skip-start", parseSkip(*m_typed.skipStart));
    }
    if (m_typed.skipEnd) {
        positions.back = good("--skip-end", parseSkip(*m_typed.skipEnd));
    }
    const bool isList = positions.kind == FramePositions::Kind::List;
    if (isList && (m_typed.skipStart || m_typed.skipEnd)) {
        fail("--skip-start and --skip-end have no meaning with --at and --frames; leave them away");
    }
    if (m_typed.like && !m_options.choosesPositions && (m_typed.skipStart || m_typed.skipEnd)) {
        fail("--skip-start and --skip-end have no meaning with the position of --like; leave them "
             "away");
    }
    const auto isPart = [](const SeriesSkip& skip) {
        return skip.unit == SeriesSkip::Unit::Percent;
    };
    if (isPart(positions.front) && isPart(positions.back) &&
        positions.front.value + positions.back.value >= 100.0) {
        fail("--skip-start and --skip-end leave nothing of the video; together they must be below "
             "100%");
    }
}

void Reader::readPictures()
{
    if (m_typed.size) {
        m_options.size = good("--size", parseSize(*m_typed.size));
    }
    need("--enlarge", m_typed.enlarge, "--size", m_typed.size.has_value());
    m_options.enlarges = m_typed.enlarge;
    if (m_typed.filter) {
        readFilter(*m_typed.filter);
    }
    m_options.isInLinearLight = m_typed.linearLight;
    m_options.keepsDeepColours = m_typed.deepColours;
    if (m_typed.format) {
        std::string format = *m_typed.format;
        std::transform(format.begin(), format.end(), format.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        });
        if (!isOneOf(format, pictureFormats())) {
            fail("--format: " + quoted(*m_typed.format) + " is none of " + pictureFormats());
        }
        m_options.format = format;
    }
    if (m_typed.quality) {
        m_options.quality = number("--quality", *m_typed.quality, 0, 100);
    }
    if (m_typed.deinterlace && !isOneOf(*m_typed.deinterlace, deinterlacingNames())) {
        fail("--deinterlace: " + quoted(*m_typed.deinterlace) + " is none of " +
             deinterlacingNames());
    }
    m_options.deinterlacing = m_typed.deinterlace;
    if (m_typed.hdr && !isOneOf(*m_typed.hdr, hdrNames())) {
        fail("--hdr: " + quoted(*m_typed.hdr) + " is none of " + hdrNames());
    }
    m_options.keepsHdr = m_typed.hdr ? std::make_optional(*m_typed.hdr == "stored") : std::nullopt;
    m_options.profile = m_typed.profile;
    m_options.watermark = m_typed.watermark;
    allowOne({{"--like", m_typed.like.has_value()}, {"--profile", m_typed.profile.has_value()}});
    m_options.like = m_typed.like;
    if (m_typed.metadata) {
        readMetadata(*m_typed.metadata);
    }
}

void Reader::readFilter(const std::string& text)
{
    if (text == "area") {
        m_options.filter = Filter::Area;
    } else if (text == "lanczos") {
        m_options.filter = Filter::Lanczos;
    } else if (text == "bicubic") {
        m_options.filter = Filter::Bicubic;
    } else if (text == "nearest") {
        m_options.filter = Filter::Nearest;
    } else {
        fail("--filter: " + quoted(text) + " is none of area, lanczos, bicubic and nearest");
    }
}

void Reader::readMetadata(const std::string& text)
{
    if (text == "all") {
        m_options.metadata = Metadata::All;
    } else if (text == "without-place") {
        m_options.metadata = Metadata::WithoutPlace;
    } else if (text == "none") {
        m_options.metadata = Metadata::None;
    } else {
        fail("--metadata: " + quoted(text) + " is none of all, without-place and none");
    }
}

void Reader::readSheet()
{
    const bool isThere = m_typed.sheet.has_value();
    need("--with-pictures", m_typed.withPictures, "--sheet", isThere);
    need("--columns", m_typed.columns.has_value(), "--sheet", isThere);
    need("--sheet-gap", m_typed.sheetGap.has_value(), "--sheet", isThere);
    need("--sheet-title", m_typed.sheetTitle.has_value(), "--sheet", isThere);
    need("--sheet-times", m_typed.sheetTimes, "--sheet", isThere);
    need("--no-sheet-times", m_typed.noSheetTimes, "--sheet", isThere);
    allowOne({{"--sheet-times", m_typed.sheetTimes}, {"--no-sheet-times", m_typed.noSheetTimes}});
    if (!isThere) {
        return;
    }
    Sheet sheet;
    const std::string name = m_typed.sheet->empty() ? "{stem}-sheet" : *m_typed.sheet;
    sheet.name = good("--sheet", NameTemplate::parse(name));
    for (const auto field :
         {NameTemplate::Field::Number, NameTemplate::Field::Frame, NameTemplate::Field::Time,
          NameTemplate::Field::Width, NameTemplate::Field::Height}) {
        if (sheet.name.uses(field)) {
            fail("--sheet: the name of a sheet has the field {stem} alone");
        }
    }
    if (m_typed.columns) {
        sheet.columns = number("--columns", *m_typed.columns, 1, highestColumns);
    }
    if (m_typed.sheetGap) {
        sheet.gap = number("--sheet-gap", *m_typed.sheetGap, 0, widestGap);
    }
    sheet.hasTimes = !m_typed.noSheetTimes;
    sheet.title = m_typed.sheetTitle;
    m_options.sheet = sheet;
    m_options.makesPictures = m_typed.withPictures;
}

void Reader::readFiles()
{
    allowOne({{"--skip-existing", m_typed.skipExisting}, {"--overwrite", m_typed.overwrite}});
    allowOne({{"--names", m_typed.names.has_value()},
              {"--name-profile", m_typed.nameProfile.has_value()}});
    m_options.existing = m_typed.skipExisting ? Existing::Skip
                         : m_typed.overwrite  ? Existing::Overwrite
                                              : Existing::NextName;
    m_options.names = good("--names", NameTemplate::parse(m_typed.names.value_or("{stem}-{time}")));
    m_options.nameProfile = m_typed.nameProfile;
    if (m_typed.output && m_typed.output->empty()) {
        fail("--output: an empty name is no folder; write . for the one where you are");
    }
    m_options.writesToStandardOutput = m_typed.output == Value("-");
    if (!m_options.writesToStandardOutput) {
        m_options.folder = m_typed.output;
        return;
    }
    allowOne({{"--output -", true}, {"--json", m_typed.json}});
    allowOne({{"--output -", true}, {"--skip-existing", m_typed.skipExisting}});
    allowOne({{"--output -", true}, {"--with-pictures", m_typed.withPictures}});
}

void Reader::readVideos()
{
    m_options.videos = m_typed.videos;
    m_options.listFile = m_typed.filesFrom;
    m_options.isRecursive = m_typed.recursive;
    if (m_typed.shard) {
        m_options.shard = good("--shard", parseShard(*m_typed.shard));
    }
    const auto& videos = m_options.videos;
    if (std::find(videos.begin(), videos.end(), std::string()) != videos.end()) {
        fail("an empty name is no video");
    }
    if (std::find(videos.begin(), videos.end(), std::string("-")) != videos.end()) {
        fail("videos are not read from standard input; for a list of names there is "
             "--files-from -");
    }
    if (videos.empty() && !m_typed.filesFrom && !m_typed.like) {
        fail("no video is named; write stills VIDEO, or see stills --help");
    }
}

void Reader::readReporting()
{
    allowOne({{"--quiet", m_typed.quiet}, {"--verbose", m_typed.verbose}});
    allowOne({{"--quiet", m_typed.quiet}, {"--progress", m_typed.progress}});
    allowOne({{"--keep-going", m_typed.keepGoing}, {"--fail-fast", m_typed.failFast}});
    m_options.isJson = m_typed.json;
    m_options.showsProgress = m_typed.progress;
    m_options.isQuiet = m_typed.quiet;
    m_options.isVerbose = m_typed.verbose;
    m_options.failsFast = m_typed.failFast;
    if (m_typed.jobs) {
        m_options.jobs = number("--jobs", *m_typed.jobs, 1, highestJobs);
    }
    if (m_typed.memory) {
        m_options.memoryBytes = good("--memory", parseMemory(*m_typed.memory));
    }
    if (m_typed.pictureMemory) {
        m_options.pictureBytes = good("--picture-memory", parseMemory(*m_typed.pictureMemory));
    }
    if (m_typed.positionTimeout) {
        const double ms = good("--position-timeout", parseTime(*m_typed.positionTimeout));
        m_options.positionTimeoutMs = static_cast<std::int64_t>(std::min(std::ceil(ms), longestMs));
    }
}

Result<Options> Reader::read()
{
    readPositions();
    readPictures();
    readSheet();
    readFiles();
    readVideos();
    readReporting();
    return m_error.empty() ? Result<Options>::of(m_options) : Result<Options>::failure(m_error);
}

} // namespace

Result<Options> readOptions(const TypedOptions& typed)
{
    return Reader(typed).read();
}

} // namespace stills
