#pragma once

#include <string>

/// The texts generated from the table of options. All end with a line break.
namespace stills {

/// The most useful options with their defaults, and examples; fits a terminal of 80 by 24.
[[nodiscard]] std::string shortHelp();

/// All options.
[[nodiscard]] std::string fullHelp();

/// "stills" and the version, in one line.
[[nodiscard]] std::string versionText();

/// The manual page in mdoc format.
[[nodiscard]] std::string manualPage();

} // namespace stills
