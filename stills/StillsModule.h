#pragma once

#include "stills/Options.h"

namespace stills {

/// What the program calls in the module that it loads: does what the options say and returns the
/// exit status.
using ModuleEntry = int (*)(const Options&);

constexpr const char* moduleEntryName = "morvantile_run_stills";

} // namespace stills
