#include "stills/OptionTable.h"

namespace stills {

namespace {

using T = TypedOptions;

constexpr const char* hdrs = "tone-mapped stored";
constexpr const char* deinterlacings = "auto on off";
constexpr const char* formats = "jpg jpeg png bmp tif tiff webp avif jxl";

std::vector<OptionEntry> framesOptions()
{
    constexpr auto section = Section::Frames;
    return {
        {section, "-c,--count", "N", &T::count,
         "N pictures, evenly spread: one from the middle of each of N equal parts. The default, "
         "with 10.",
         "N pictures, evenly spread (default: 10)", Completes::Nothing, nullptr},
        {section, "-e,--every", "TIME", &T::every,
         "A picture each time so much of the video has passed, from the end of --skip-start on. "
         "Positions between which no new frame is shown give one picture.",
         "one each time so much has passed: 5s, 500ms, 1:30", Completes::Nothing, nullptr},
        {section, "-a,--at", "TIME", &T::at,
         "The first frame at or after a time. Times are written 90, 90s, 1:30, 1:30.250, "
         "1:02:03.5, 500ms, 2m or 1h; 75% is a part of the video's length, last the last frame. "
         "Several have commas between them, or the option comes several times.",
         "at these times: --at 1:02.5,75%,last", Completes::Nothing, nullptr},
        {section, "--frames", "LIST", &T::frames,
         "The frames of these numbers, counted from 0 in the order shown: 0,100,200-300.", nullptr,
         Completes::Nothing, nullptr},
        {section, "--keyframes", nullptr, &T::keyFrames,
         "All key frames: the quickest way through a video.", "all key frames", Completes::Nothing,
         nullptr},
        {section, "--scenes", "[=THRESHOLD]", &T::scenes,
         "The first frame of each scene. The threshold, above 0 and up to 1, says how much "
         "it must differ from the previous frame; 0.3 by default.",
         "the first frame of each scene", Completes::Nothing, nullptr},
        {section, "--best", "N", &T::best,
         "The N best frames, well spread: in each of N equal parts the sharpest one that is not "
         "black, not blurred by motion and not next to a cut. All frames are decoded to find "
         "them. There may be fewer.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--skip-start", "TIME", &T::skipStart,
         "Leave out the start of each video: a time or a part of its length, such as 30s or 5%. "
         "Not together with --at and --frames.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--skip-end", "TIME", &T::skipEnd, "The same at the end.", nullptr,
         Completes::Nothing, nullptr},
    };
}

std::vector<OptionEntry> pictureOptions()
{
    constexpr auto section = Section::Pictures;
    return {
        {section, "-s,--size", "WxH", &T::size,
         "The largest width and height in pixels. Proportions are kept, and smaller pictures stay "
         "as they are. Without it pictures have the size of the video. For --sheet alone, the "
         "size of its pictures.",
         "at most this large: 1920x1080 (default: as it is)", Completes::Nothing, nullptr},
        {section, "--enlarge", nullptr, &T::enlarge,
         "Let --size enlarge smaller pictures until they fill the width or the height.", nullptr,
         Completes::Nothing, nullptr},
        {section, "--filter", "NAME", &T::filter,
         "How pictures come to another size: area, made for shrinking; lanczos, the sharpest; "
         "bicubic, softer; or nearest, which leaves pixels as they are. The default is area, or "
         "what --profile says.",
         nullptr, Completes::Words, "area lanczos bicubic nearest"},
        {section, "--linear-light", nullptr, &T::linearLight,
         "Where the size changes, mix light as eyes and lenses do: fine bright details keep their "
         "brightness.",
         nullptr, Completes::Nothing, nullptr},
        {section, "-f,--format", "TYPE", &T::format,
         "The type of the pictures, which is their suffix too: jpg, jpeg, png, bmp, tif or tiff; "
         "webp, avif and jxl where this machine can write them. The default is jpg, or what "
         "--name-profile says.",
         "jpg (default), png, webp, tiff or bmp", Completes::Words, formats},
        {section, "--16-bit", nullptr, &T::deepColours,
         "PNG and TIFF pictures with 16 bits a channel, where the video has more than 8.", nullptr,
         Completes::Nothing, nullptr},
        {section, "-q,--quality", "N", &T::quality,
         "The quality of JPEG, WebP, AVIF and JPEG XL pictures, 0 to 100. The default is 90, or "
         "what --profile says.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--deinterlace", "WHEN", &T::deinterlace,
         "How to treat interlaced video: auto repairs the pictures that comb, on treats every "
         "picture as one that does, off leaves all as they are stored. The default is auto, or "
         "what --profile says.",
         nullptr, Completes::Words, deinterlacings},
        {section, "--hdr", "HOW", &T::hdr,
         "How to treat high dynamic range: tone-mapped converts it to sRGB, as the screen shows "
         "it; stored keeps the video's own values in PNG and TIFF pictures of 16 bits a channel, "
         "for grading. The default is tone-mapped, or what --profile says.",
         nullptr, Completes::Words, hdrs},
        {section, "-p,--profile", "NAME", &T::profile,
         "Size, brightness, contrast, quality and watermark of an image profile that was made in "
         "the window. Other options change what they name.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--watermark", "NAME", &T::watermark,
         "Draw this watermark, which was made in the window, on each picture.", nullptr,
         Completes::Nothing, nullptr},
        {section, "--like", "PICTURE", &T::like,
         "Make a still again by what its file tells: the same frame, size, corrections, text "
         "watermark, type and quality. Other options change what they name. Without a video, that "
         "of the picture is looked for beside the picture, a folder above it and where you are.",
         nullptr, Completes::Files, nullptr},
        {section, "--metadata", "WHAT", &T::metadata,
         "What JPEG, PNG, TIFF and WebP files tell of where their pictures come from: all; "
         "without-place, which leaves out where the video was recorded and its path on the disk; "
         "or none. The default is without-place, or what --profile says.",
         nullptr, Completes::Words, "all without-place none"},
    };
}

std::vector<OptionEntry> sheetOptions()
{
    constexpr auto section = Section::Sheet;
    return {
        {section, "--sheet", "[=NAME]", &T::sheet,
         "One contact sheet a video in place of single pictures: small pictures side by side. "
         "The name may have the field {stem}; it is {stem}-sheet by default.",
         "one contact sheet a video", Completes::Nothing, nullptr},
        {section, "--with-pictures", nullptr, &T::withPictures,
         "Beside the sheet, the single pictures too.", nullptr, Completes::Nothing, nullptr},
        {section, "--columns", "N", &T::columns,
         "How many pictures stand side by side, 1 to 100; by default, about as many as there are "
         "rows.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--sheet-gap", "PIXELS", &T::sheetGap,
         "The space between the pictures, 0 to 500; 12 by default.", nullptr, Completes::Nothing,
         nullptr},
        {section, "--sheet-times", nullptr, &T::sheetTimes,
         "Write the time under each picture, as it is done anyway.", nullptr, Completes::Nothing,
         nullptr},
        {section, "--no-sheet-times", nullptr, &T::noSheetTimes, "Write no times.", nullptr,
         Completes::Nothing, nullptr},
        {section, "--sheet-title", "TEXT", &T::sheetTitle,
         "This title in place of the video's name, length and size; '' for none.", nullptr,
         Completes::Nothing, nullptr},
    };
}

std::vector<OptionEntry> fileOptions()
{
    constexpr auto section = Section::Files;
    return {
        {section, "-o,--output", "DIR", &T::output,
         "The folder for the pictures, which is made if it is missing. Without it they go beside "
         "each video. A hyphen writes the pictures themselves to standard output, one after "
         "another.",
         "into this folder (default: beside each video)", Completes::Folders, nullptr},
        {section, "-n,--names", "TEMPLATE", &T::names,
         "How pictures are named, without their suffix. Fields: {stem} is the video's name "
         "without its suffix, {number} that of the position, from 1, {frame} the frame's, from 0, "
         "{time} the time that was asked for, or the frame's own where none was, as 00.01.02.500; "
         "{width} and {height} are the picture's. {number:4} fills up with zeros; {{ and }} stand "
         "for braces. The default is '{stem}-{time}'. Without {stem}, the names of the second "
         "video in a folder get -2, and so on.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--name-profile", "NAME", &T::nameProfile,
         "Name the pictures, and choose their type, by a file-name profile that was made in the "
         "window. Its fixed base name, if it has one, gets -2 for the second video in a folder, "
         "and so on.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--skip-existing", nullptr, &T::skipExisting,
         "Do not make pictures again that are there: a second run goes on where the first one was "
         "stopped. Needs no decoding for those whose names are known before.",
         "leave out pictures that exist already", Completes::Nothing, nullptr},
        {section, "--overwrite", nullptr, &T::overwrite,
         "Replace files of the same name. Without this and --skip-existing, pictures whose names "
         "are taken get the next free one: -2, -3 and so on.",
         nullptr, Completes::Nothing, nullptr},
    };
}

std::vector<OptionEntry> videoOptions()
{
    constexpr auto section = Section::Videos;
    return {
        {section, "--files-from", "FILE", &T::filesFrom,
         "Take the videos in this list as well, one a line, or with NUL characters between them "
         "as find -print0 writes them. A hyphen is standard input.",
         nullptr, Completes::Files, nullptr},
        {section, "-r,--recursive", nullptr, &T::recursive,
         "Take the videos in folders, and in the folders within, sorted by name. What has no "
         "suffix of a video is passed over.",
         "take the videos in folders", Completes::Nothing, nullptr},
        {section, "--shard", "K/N", &T::shard,
         "Of the videos take each N-th, from the K-th on, K counting from 1: so N calls share the "
         "work, on several machines.",
         nullptr, Completes::Nothing, nullptr},
        {section, "--keep-going", nullptr, &T::keepGoing,
         "Go on with the next video when one fails, as it is done anyway.", nullptr,
         Completes::Nothing, nullptr},
        {section, "--fail-fast", nullptr, &T::failFast, "Stop at the first error.", nullptr,
         Completes::Nothing, nullptr},
    };
}

std::vector<OptionEntry> reportingOptions()
{
    constexpr auto section = Section::Reporting;
    return {
        {section, "--json", nullptr, &T::json,
         "Write what happens to standard output, one JSON object a line.",
         "one JSON object a line on standard output", Completes::Nothing, nullptr},
        {section, "--progress", nullptr, &T::progress,
         "Show progress even where standard error is no terminal.", nullptr, Completes::Nothing,
         nullptr},
        {section, "--quiet", nullptr, &T::quiet, "Write errors only.", nullptr, Completes::Nothing,
         nullptr},
        {section, "-v,--verbose", nullptr, &T::verbose, "Write the path of each picture as well.",
         nullptr, Completes::Nothing, nullptr},
    };
}

std::vector<OptionEntry> otherOptions()
{
    return {
        {Section::Running, "-j,--jobs", "N", &T::jobs,
         "How many decoders work at once, 1 to 256; one for each core by default.", nullptr,
         Completes::Nothing, nullptr},
        {Section::Running, "--memory", "SIZE", &T::memory,
         "How much memory pictures may take while they are made or wait for their turn, such as "
         "800M or 2G; by default a quarter of the machine's, but at most 2G. Pictures wait in "
         "hidden files beside the others, except with --overwrite and -o -: then they wait in "
         "memory, and the decoders pause when it is used up.",
         nullptr, Completes::Nothing, nullptr},
        {Section::Running, "--picture-memory", "SIZE", &T::pictureMemory,
         "How much memory one picture of a video may take, decoded and converted, such as 500M; 1G "
         "by default. A video that declares larger ones is an error.",
         nullptr, Completes::Nothing, nullptr},
        {Section::Running, "--position-timeout", "TIME", &T::positionTimeout,
         "How long one position may take, or the opening of a video, such as 10s or 5m; 0 for no "
         "limit, 60s by default. A position that takes longer is an error, and the run goes on; "
         "after three of them the rest of the video is given up.",
         nullptr, Completes::Nothing, nullptr},
        {Section::Information, "-h,--help", nullptr, &T::help, "Show the most useful options.",
         nullptr, Completes::Nothing, nullptr},
        {Section::Information, "--help-all", nullptr, &T::helpAll, "Show all options.",
         "all options", Completes::Nothing, nullptr},
        {Section::Information, "-V,--version", nullptr, &T::version, "Show the version.", nullptr,
         Completes::Nothing, nullptr},
        {Section::Hidden, "--print", "WHAT", &T::print, "For the build.", nullptr, Completes::Words,
         "man bash zsh fish"},
    };
}

std::vector<OptionEntry> wholeTable()
{
    std::vector<OptionEntry> table;
    for (const auto& part : {framesOptions(), pictureOptions(), sheetOptions(), fileOptions(),
                             videoOptions(), reportingOptions(), otherOptions()}) {
        table.insert(table.end(), part.begin(), part.end());
    }
    return table;
}

} // namespace

std::string OptionEntry::longName() const
{
    const std::string all = names;
    return all.substr(all.find("--"));
}

std::string OptionEntry::shortName() const
{
    const std::string all = names;
    const std::size_t comma = all.find(',');
    return comma == std::string::npos ? std::string() : all.substr(0, comma);
}

std::string OptionEntry::usage(bool indents) const
{
    const std::string letter = shortName();
    std::string line = letter.empty() ? std::string(indents ? "    " : "") : letter + ", ";
    line += longName();
    if (takesValue()) {
        line += valueIsOptional() ? std::string(value) : std::string(" ") + value;
    }
    return line;
}

const std::vector<OptionEntry>& optionTable()
{
    static const std::vector<OptionEntry> table = wholeTable();
    return table;
}

const char* headingOf(Section section)
{
    switch (section) {
    case Section::Frames:
        return "Which frames";
    case Section::Pictures:
        return "How pictures look";
    case Section::Sheet:
        return "Contact sheet";
    case Section::Files:
        return "Where pictures go";
    case Section::Videos:
        return "Which videos";
    case Section::Reporting:
        return "What is reported";
    case Section::Running:
        return "How much of the machine is used";
    case Section::Information:
        return "Help";
    case Section::Hidden:
        break;
    }
    return "";
}

const char* hdrNames()
{
    return hdrs;
}

const char* deinterlacingNames()
{
    return deinterlacings;
}

const char* pictureFormats()
{
    return formats;
}

} // namespace stills
