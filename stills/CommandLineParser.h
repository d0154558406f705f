#pragma once

#include "stills/Options.h"

#include <string>
#include <vector>

namespace stills {

/// What the arguments request.
struct CommandLine
{
    enum class Wants {
        Run,   ///< run with `options`
        Print, ///< print `text` on standard output and nothing else
        Error, ///< the arguments are wrong: `text` says in one line how, and what would be right
    };

    Wants wants = Wants::Error;
    Options options = {};
    std::string text = {};
};

/// Reads the arguments, without the program's name. What follows "--" is a video whatever it looks
/// like.
[[nodiscard]] CommandLine parseCommandLine(const std::vector<std::string>& arguments);

} // namespace stills
