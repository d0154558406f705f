#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace stills {

/// The arguments as typed: options and their values, not yet interpreted.
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
    Value scenes; ///< empty if given without a value
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

    Value sheet; ///< empty if given without a value
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
    Value print; ///< hidden option for the build: prints the manual page or a completion
};

/// The heading for an option in the full help and the manual page.
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

/// What shells complete for an option's value.
enum class Completes { Nothing, Files, Folders, Words };

/// One option. The table of all options is used for parsing, and for generating the help, the
/// manual page and the completions.
struct OptionEntry
{
    using Target = std::variant<bool TypedOptions::*, TypedOptions::Value TypedOptions::*,
                                TypedOptions::Values TypedOptions::*>;

    Section section;
    const char* names; ///< as "-o,--output"
    const char* value; ///< name of the value in the help; null for a switch; "[=NAME]" for an
                       ///< optional one
    Target target;
    const char* text;  ///< sentences for the full help and the manual page
    const char* brief; ///< for the short help; null if the option is not listed there
    Completes completes;
    const char* words; ///< with Completes::Words, separated by spaces

    [[nodiscard]] bool takesValue() const { return value != nullptr; }
    /// True if the value is optional, and given only with an equals sign.
    [[nodiscard]] bool valueIsOptional() const { return takesValue() && value[0] == '['; }
    /// "--output"
    [[nodiscard]] std::string longName() const;
    /// "-o", or empty.
    [[nodiscard]] std::string shortName() const;
    /// "-o, --output DIR"; `indents` leaves room for a missing short name.
    [[nodiscard]] std::string usage(bool indents) const;
};

[[nodiscard]] const std::vector<OptionEntry>& optionTable();

/// The heading of a section, such as "Which frames".
[[nodiscard]] const char* headingOf(Section section);

/// The values of --hdr, separated by spaces.
[[nodiscard]] const char* hdrNames();

/// The values of --deinterlace, separated by spaces.
[[nodiscard]] const char* deinterlacingNames();

/// The suffixes of the supported picture formats, separated by spaces.
[[nodiscard]] const char* pictureFormats();

} // namespace stills
