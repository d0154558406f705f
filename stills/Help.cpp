#include "stills/Help.h"

#include "stills/OptionTable.h"

#include <array>
#include <sstream>

namespace stills {

namespace {

constexpr std::size_t columns = 80;
constexpr std::size_t briefColumn = 28; // where the short help's texts begin
constexpr std::size_t indentation = 6;  // of the full help's texts

constexpr const char* usage = "Usage: stills [OPTION]... VIDEO...\n";

struct Example
{
    const char* command;
    const char* text;
};

constexpr std::array<Example, 5> examples{{
    {"stills film.mkv", "ten pictures, beside the film"},
    {"stills *.mp4 -o out --every 5s", "many videos, into one folder"},
    {"stills film.mkv --at 1:02.5,75%,last", "these three frames"},
    {"stills film.mkv --count 12 --sheet", "one contact sheet"},
    {"stills -r Videos -o out --skip-existing", "a folder; run again to go on"},
}};

constexpr std::array<Section, 8> sections{Section::Frames,  Section::Pictures,   Section::Sheet,
                                          Section::Files,   Section::Videos,     Section::Reporting,
                                          Section::Running, Section::Information};

std::string padded(std::string text, std::size_t width)
{
    text.resize(text.size() < width ? width : text.size() + 1, ' ');
    return text;
}

/// The text in lines that fit the terminal, each indented by this many spaces.
std::string wrapped(const std::string& text, std::size_t indent)
{
    std::istringstream words(text);
    std::string lines;
    std::string line;
    for (std::string word; words >> word;) {
        if (!line.empty() && indent + line.size() + 1 + word.size() >= columns) {
            lines += std::string(indent, ' ') + line + '\n';
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    return lines + std::string(indent, ' ') + line + '\n';
}

/// Text for a manual page: special characters are escaped, and hyphens are ASCII.
std::string roff(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if (c == '\\') {
            result += "\\e";
        } else if (c == '-') {
            result += "\\-";
        } else if (c == '\'') {
            result += "\\(aq";
        } else {
            result += c;
        }
    }
    return result;
}

/// A paragraph for a manual page, in short lines that each end with a line break.
std::string roffParagraph(const std::string& text)
{
    // A word that begins with a full stop would turn its line into a command.
    std::string lines = wrapped(roff(text), 0);
    for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
        if (lines[at] == '.') {
            lines.insert(at, "\\&");
        }
    }
    return lines;
}

std::string roffUsage(const OptionEntry& entry)
{
    std::string text;
    if (!entry.shortName().empty()) {
        text += "\\fB" + roff(entry.shortName()) + "\\fR, ";
    }
    text += "\\fB" + roff(entry.longName()) + "\\fR";
    if (entry.takesValue()) {
        const std::string value = roff(entry.value);
        text += entry.valueIsOptional() ? "\\fI" + value + "\\fR" : " \\fI" + value + "\\fR";
    }
    return text;
}

std::string roffOptions()
{
    std::string text;
    for (const Section section : sections) {
        text += std::string(".SS ") + headingOf(section) + "\n";
        for (const OptionEntry& entry : optionTable()) {
            if (entry.section == section) {
                text += ".TP\n" + roffUsage(entry) + "\n" + roffParagraph(entry.text);
            }
        }
    }
    return text;
}

std::string roffExamples()
{
    std::string text;
    for (const Example& example : examples) {
        text += ".TP\n.B " + roff(example.command) + "\n" + roff(example.text) + "\n";
    }
    return text;
}

} // namespace

std::string shortHelp()
{
    std::string text = "Takes still pictures out of videos.\n";
    text += usage;
    text += '\n';
    for (const OptionEntry& entry : optionTable()) {
        if (entry.brief != nullptr) {
            text += padded("  " + entry.usage(true), briefColumn) + entry.brief + '\n';
        }
    }
    text += "\nExamples:\n";
    for (const Example& example : examples) {
        text += padded(std::string("  ") + example.command, 44) + example.text + '\n';
    }
    return text;
}

std::string fullHelp()
{
    std::string text = "Takes still pictures out of videos: the very frames, in full quality.\n";
    text += usage;
    for (const Section section : sections) {
        text += std::string("\n") + headingOf(section) + ":\n";
        for (const OptionEntry& entry : optionTable()) {
            if (entry.section == section) {
                text += "  " + entry.usage(false) + '\n' + wrapped(entry.text, indentation);
            }
        }
    }
    text += "\nExit status:\n";
    text += wrapped("0: all that was asked for is there. 1: some of it is not. 2: the arguments "
                    "are wrong. 130: interrupted by Ctrl+C.",
                    2);
    return text;
}

std::string versionText()
{
    return "stills " MORVANTILE_VERSION "\n";
}

std::string manualPage()
{
    std::string text = ".TH STILLS 1 \"" MORVANTILE_RELEASE_DATE
                       "\" \"Morvantile " MORVANTILE_VERSION "\" \"User Commands\"\n"
                       ".SH NAME\nstills \\- take still pictures out of videos\n"
                       ".SH SYNOPSIS\n.B stills\n[\\fIOPTION\\fR]... \\fIVIDEO\\fR...\n"
                       ".SH DESCRIPTION\n";
    text += roffParagraph(
        "Takes pictures out of videos: the first frame at or after each position, in its "
        "full size and true colours, upright and with square pixels. Ten, evenly spread, "
        "go beside each video unless options say otherwise. No existing file is replaced "
        "without --overwrite, and no half file is ever seen.");
    text += ".SH OPTIONS\n" + roffOptions();
    text +=
        ".SH EXIT STATUS\n.TP\n.B 0\nAll that was asked for is there.\n.TP\n.B 1\nSome of it is "
        "not; standard error says why.\n.TP\n.B 2\nThe arguments are wrong.\n.TP\n.B 130, "
        "143\nInterrupted by Ctrl+C or ended by SIGTERM.\nWhat was written is whole.\n";
    text += ".SH EXAMPLES\n" + roffExamples();
    return text;
}

} // namespace stills
