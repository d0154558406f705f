#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace stills {

/// The arguments as they were typed: which options there are and their values, not yet understood.
struct TypedOptions
{
    using Value = std::optional<std::string>;
    using Values = std::vector<std::string>;

    Values videos;

    Value count;
    Value every;
    Values at;
    Values frames;
    bool keyFrames = false;
    Value scenes; ///< empty where it came without a value
    Value best;
    Value skipStart;
    Value skipEnd;

    Value size;
    bool enlarge = false;
    Value filter;
    bool linearLight = false;
    Value format;
    bool deepColours = false;
    Value quality;
    Value deinterlace;
    Value hdr;
    Value profile;
    Value watermark;
    Value like;
    Value metadata;

    Value sheet; ///< empty where it came without a value
    bool withPictures = false;
    Value columns;
    Value sheetGap;
    bool sheetTimes = false;
    bool noSheetTimes = false;
    Value sheetTitle;

    Value output;
    Value names;
    Value nameProfile;
    bool skipExisting = false;
    bool overwrite = false;

    Value filesFrom;
    bool recursive = false;
    Value shard;
    bool keepGoing = false;
    bool failFast = false;

    bool json = false;
    bool progress = false;
    bool quiet = false;
    bool verbose = false;

    Value jobs;
    Value memory;
    Value pictureMemory;
    Value positionTimeout;

    bool help = false;
    bool helpAll = false;
    bool version = false;
    Value print; ///< hidden: the manual page or a completion, for the build
};

/// Under which heading the full help and the manual page list an option.
enum class Section {
    Frames,
    Pictures,
    Sheet,
    Files,
    Videos,
    Reporting,
    Running,
    Information,
    Hidden
};

/// What a shell offers for an option's value.
enum class Completes { Nothing, Files, Folders, Words };

/// One option. The table of all of them is what the arguments are parsed by, and what the help, the
/// manual page and the completions are made of.
struct OptionEntry
{
    using Target = std::variant<bool TypedOptions::*, TypedOptions::Value TypedOptions::*,
                                TypedOptions::Values TypedOptions::*>;

    Section section;
    const char* names; ///< as "-o,--output"
    const char* value; ///< what the help calls it; null for a switch; "[=NAME]" for an optional one
    Target target;
    const char* text;  ///< for the full help and the manual page: sentences
    const char* brief; ///< for the help of one screen; null where that is without it
    Completes completes;
    const char* words; ///< with Completes::Words, separated by spaces

    [[nodiscard]] bool takesValue() const { return value != nullptr; }
    /// The value may be missing, and is written with an equals sign only.
    [[nodiscard]] bool valueIsOptional() const { return takesValue() && value[0] == '['; }
    /// "--output"
    [[nodiscard]] std::string longName() const;
    /// "-o", or empty.
    [[nodiscard]] std::string shortName() const;
    /// "-o, --output DIR"; without a short name there is room for one if `indents`.
    [[nodiscard]] std::string usage(bool indents) const;
};

[[nodiscard]] const std::vector<OptionEntry>& optionTable();

/// The heading of a section, such as "Which frames".
[[nodiscard]] const char* headingOf(Section section);

/// The words that --hdr takes, separated by spaces.
[[nodiscard]] const char* hdrNames();

/// The words that --deinterlace takes, separated by spaces.
[[nodiscard]] const char* deinterlacingNames();

/// The suffixes of the pictures that can be asked for, separated by spaces.
[[nodiscard]] const char* pictureFormats();

} // namespace stills
