#include "stills/CommandLineParser.h"

#include "stills/Completions.h"
#include "stills/Help.h"
#include "stills/OptionReader.h"
#include "stills/OptionTable.h"

#include <CLI/CLI.hpp>

#include <algorithm>

namespace stills {

namespace {

using Arguments = std::vector<std::string>;

/// The option that an argument names, either completely or before an equals sign; null for none.
const OptionEntry* entryNamed(const std::string& name)
{
    const auto& table = optionTable();
    const auto found = std::find_if(table.begin(), table.end(), [&name](const OptionEntry& entry) {
        return entry.longName() == name || (!name.empty() && entry.shortName() == name);
    });
    return found != table.end() ? &*found : nullptr;
}

/// Splits the arguments so that each value is separate: "--name=value" becomes two, and a missing
/// optional value becomes an empty one. So CLI11 never has to guess.
Arguments withSeparateValues(const Arguments& arguments)
{
    Arguments result;
    bool isValue = false;
    for (const std::string& argument : arguments) {
        const std::size_t equals = argument.find('=');
        const OptionEntry* const entry = isValue ? nullptr : entryNamed(argument.substr(0, equals));
        isValue = false;
        if (entry == nullptr || !entry->takesValue() || argument.rfind("--", 0) != 0) {
            result.push_back(argument);
            isValue = entry != nullptr && entry->takesValue() && argument.size() == 2;
            continue;
        }
        result.push_back(argument.substr(0, equals));
        if (equals != std::string::npos) {
            result.push_back(argument.substr(equals + 1));
        } else if (entry->valueIsOptional()) {
            result.emplace_back();
        } else {
            isValue = true;
        }
    }
    return result;
}

/// An optional value that is announced but missing, as an empty text; nothing if there is none.
std::string emptyValue(const Arguments& arguments)
{
    for (const OptionEntry& entry : optionTable()) {
        const std::string announced = entry.longName() + "=";
        if (entry.valueIsOptional() &&
            std::find(arguments.begin(), arguments.end(), announced) != arguments.end()) {
            return announced + " lacks its value; write " + entry.usage(false) + " or " +
                   entry.longName() + " alone";
        }
    }
    return {};
}

/// Makes CLI11 store the option's values in the members that the table names.
void addOption(CLI::App& app, const OptionEntry& entry, TypedOptions& typed)
{
    if (const auto* const value = std::get_if<TypedOptions::Value TypedOptions::*>(&entry.target)) {
        auto& target = typed.*(*value);
        app.add_option(entry.names, CLI::callback_t([&target](const CLI::results_t& results) {
                           target = results.front();
                           return true;
                       }))
            ->allow_extra_args(false);
    } else if (const auto* const values =
                   std::get_if<TypedOptions::Values TypedOptions::*>(&entry.target)) {
        auto& target = typed.*(*values);
        app.add_option(entry.names, CLI::callback_t([&target](const CLI::results_t& results) {
                           target = results;
                           return true;
                       }))
            ->allow_extra_args(false)
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    } else {
        app.add_flag(entry.names, typed.*std::get<bool TypedOptions::*>(entry.target))
            ->disable_flag_override()
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    }
}

/// The number of letters to change, insert or remove to turn one word into the other.
std::size_t distance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
        }
    }
    return row.back();
}

std::string unknownOption(const std::string& argument)
{
    constexpr std::size_t farthest = 3;
    const std::string name = argument.substr(0, argument.find('='));
    std::string nearest;
    std::size_t least = farthest + 1;
    for (const OptionEntry& entry : optionTable()) {
        const std::size_t far = distance(name, entry.longName());
        if (name.rfind("--", 0) == 0 && entry.section != Section::Hidden && far < least) {
            least = far;
            nearest = entry.longName();
        }
    }
    return "there is no option " + quoted(name) + "; " +
           (nearest.empty() ? "see stills --help-all" : "did you mean " + nearest + "?");
}

/// CLI11's errors, in our own wording.
std::string misuse(const CLI::ParseError& error, const Arguments& arguments)
{
    const std::string last = arguments.empty() ? std::string() : arguments.back();
    const OptionEntry* const lastEntry = entryNamed(last);
    if (lastEntry != nullptr && lastEntry->takesValue() && !lastEntry->valueIsOptional()) {
        return last + " needs a value: " + lastEntry->usage(false);
    }
    for (const OptionEntry& entry : optionTable()) {
        const std::string name = entry.longName();
        const auto times = std::count_if(
            arguments.begin(), arguments.end(), [&entry, &name](const std::string& argument) {
                return argument == name || argument.rfind(name + "=", 0) == 0 ||
                       (!entry.shortName().empty() && argument == entry.shortName());
            });
        if (times > 1 && entry.takesValue()) {
            return name + " is there " + std::to_string(times) + " times; give it once";
        }
        if (times == 1 && !entry.takesValue() &&
            std::none_of(arguments.begin(), arguments.end(), [&](const std::string& argument) {
                return argument == name || argument == entry.shortName();
            })) {
            return name + " takes no value";
        }
    }
    std::string text = error.what();
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

/// The values of `--print`.
const char* const printables = "man, bash, zsh or fish";

CommandLine printed(const std::string& what)
{
    using Wants = CommandLine::Wants;
    if (what == "man") {
        return {Wants::Print, {}, manualPage()};
    }
    if (what == "bash") {
        return {Wants::Print, {}, bashCompletion()};
    }
    if (what == "zsh") {
        return {Wants::Print, {}, zshCompletion()};
    }
    if (what == "fish") {
        return {Wants::Print, {}, fishCompletion()};
    }
    return {Wants::Error, {}, "--print: " + quoted(what) + " is none of " + printables};
}

CommandLine understood(const TypedOptions& typed)
{
    using Wants = CommandLine::Wants;
    if (typed.help) {
        return {Wants::Print, {}, shortHelp()};
    }
    if (typed.helpAll) {
        return {Wants::Print, {}, fullHelp()};
    }
    if (typed.version) {
        return {Wants::Print, {}, versionText()};
    }
    if (typed.print) {
        return printed(*typed.print);
    }
    const Result<Options> options = readOptions(typed);
    return options.isGood() ? CommandLine{Wants::Run, *options.value, {}}
                            : CommandLine{Wants::Error, {}, options.error};
}

} // namespace

CommandLine parseCommandLine(const Arguments& arguments)
{
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    const Arguments typedBefore(arguments.begin(), end);
    if (const std::string error = emptyValue(typedBefore); !error.empty()) {
        return {CommandLine::Wants::Error, {}, error};
    }
    const Arguments before = withSeparateValues(typedBefore);
    TypedOptions typed;
    CLI::App app;
    app.set_help_flag();
    app.allow_extras();
    for (const OptionEntry& entry : optionTable()) {
        addOption(app, entry, typed);
    }
    try {
        // It processes them from the last to the first.
        app.parse(Arguments(before.rbegin(), before.rend()));
    } catch (const CLI::ParseError& error) {
        return {CommandLine::Wants::Error, {}, misuse(error, typedBefore)};
    }
    typed.videos = app.remaining();
    for (const std::string& video : typed.videos) {
        if (video.size() > 1 && video.front() == '-') {
            return {CommandLine::Wants::Error, {}, unknownOption(video)};
        }
    }
    if (end != arguments.end()) {
        typed.videos.insert(typed.videos.end(), end + 1, arguments.end());
    }
    return understood(typed);
}

} // namespace stills
