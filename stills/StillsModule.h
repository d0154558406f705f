#pragma once

#include "stills/Options.h"

namespace stills {

/// The entry point of the module that the program loads: runs the options and returns the exit
/// status.
using ModuleEntry = int (*)(const Options&);

constexpr const char* moduleEntryName = "morvantile_run_stills";

} // namespace stills
