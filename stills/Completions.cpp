#include "stills/Completions.h"

#include "stills/OptionTable.h"

namespace stills {

namespace {

/// The first sentence of an option's text, without its full stop and without characters that shells
/// interpret.
std::string firstSentence(const OptionEntry& entry)
{
    std::string text = entry.text;
    text = text.substr(0, text.find_first_of(".:;"));
    std::string plain;
    for (const char c : text) {
        if (c != '\'' && c != '[' && c != ']' && c != '"' && c != '`' && c != '$' && c != '\\') {
            plain += c;
        }
    }
    return plain;
}

std::string namesBetween(const OptionEntry& entry, const char* separator)
{
    const std::string brief = entry.shortName();
    return brief.empty() ? entry.longName() : brief + separator + entry.longName();
}

std::string bashValues(const OptionEntry& entry)
{
    switch (entry.completes) {
    case Completes::Files:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- \"$cur\")";
    case Completes::Folders:
        return "compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- \"$cur\")";
    case Completes::Words:
        return std::string("mapfile -t COMPREPLY < <(compgen -W '") + entry.words +
               "' -- \"$cur\")";
    case Completes::Nothing:
        break;
    }
    return ":";
}

std::string zshAction(const OptionEntry& entry)
{
    switch (entry.completes) {
    case Completes::Files:
        return "_files";
    case Completes::Folders:
        return "_files -/";
    case Completes::Words:
        return std::string("(") + entry.words + ")";
    case Completes::Nothing:
        break;
    }
    return " ";
}

std::string zshSpecs(const OptionEntry& entry)
{
    std::string rest = "[" + firstSentence(entry) + "]";
    std::string equals;
    if (entry.valueIsOptional()) {
        rest += "::value: ";
        equals = "=-";
    } else if (entry.takesValue()) {
        rest += std::string(":") + entry.value + ":" + zshAction(entry);
        equals = "=";
    }
    const std::string repeats =
        std::holds_alternative<TypedOptions::Values TypedOptions::*>(entry.target) ? "*" : "";
    std::string lines = "  '" + repeats + entry.longName() + equals + rest + "' \\\n";
    if (!entry.shortName().empty()) {
        lines +=
            "  '" + repeats + entry.shortName() + (equals.empty() ? "" : "+") + rest + "' \\\n";
    }
    return lines;
}

} // namespace

std::string bashCompletion()
{
    std::string cases;
    std::string all;
    for (const OptionEntry& entry : optionTable()) {
        if (entry.section == Section::Hidden) {
            continue;
        }
        all += " " + entry.longName();
        if (entry.takesValue() && !entry.valueIsOptional()) {
            cases +=
                "        " + namesBetween(entry, "|") + ") " + bashValues(entry) + "; return ;;\n";
        }
    }
    // It needs only bash itself, which splits "--name=value" at the equals sign.
    return "# bash completion for stills\n"
           "_stills() {\n"
           "    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}\n"
           "    COMPREPLY=()\n"
           "    if [[ $cur == = ]]; then\n"
           "        cur=\n"
           "    elif [[ $prev == = ]]; then\n"
           "        prev=${COMP_WORDS[COMP_CWORD - 2]}\n"
           "    fi\n"
           "    case $prev in\n" +
           cases +
           "    esac\n"
           "    if [[ $cur == -* ]]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W '" +
           all.substr(1) +
           "' -- \"$cur\")\n"
           "        return\n"
           "    fi\n"
           "    compopt -o filenames\n"
           "    mapfile -t COMPREPLY < <(compgen -f -- \"$cur\")\n"
           "}\n"
           "complete -F _stills stills\n";
}

std::string zshCompletion()
{
    std::string text = "#compdef stills\n\n_arguments -s -S \\\n";
    for (const OptionEntry& entry : optionTable()) {
        if (entry.section != Section::Hidden) {
            text += zshSpecs(entry);
        }
    }
    return text + "  '*:video:_files'\n";
}

std::string fishCompletion()
{
    std::string text = "# fish completion for stills\n";
    for (const OptionEntry& entry : optionTable()) {
        if (entry.section == Section::Hidden) {
            continue;
        }
        text += "complete -c stills";
        if (!entry.shortName().empty()) {
            text += " -s " + entry.shortName().substr(1);
        }
        text += " -l " + entry.longName().substr(2);
        if (entry.takesValue() && !entry.valueIsOptional()) {
            switch (entry.completes) {
            case Completes::Files:
                text += " -r -F";
                break;
            case Completes::Folders:
                text += " -x -a '(__fish_complete_directories)'";
                break;
            case Completes::Words:
                text += std::string(" -x -a '") + entry.words + "'";
                break;
            case Completes::Nothing:
                text += " -x";
                break;
            }
        }
        text += " -d '" + firstSentence(entry) + "'\n";
    }
    return text;
}

} // namespace stills
