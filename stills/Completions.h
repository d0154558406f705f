#pragma once

#include <string>

/// What shells complete, made of the table of options.
namespace stills {

[[nodiscard]] std::string bashCompletion();
[[nodiscard]] std::string zshCompletion();
[[nodiscard]] std::string fishCompletion();

} // namespace stills
