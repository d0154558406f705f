#pragma once

#include <string>

/// Completions for shells, generated from the table of options.
namespace stills {

[[nodiscard]] std::string bashCompletion();
[[nodiscard]] std::string zshCompletion();
[[nodiscard]] std::string fishCompletion();

} // namespace stills
