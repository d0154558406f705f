#pragma once

#include "stills/Options.h"

namespace stills {

/// Runs the options in a process without an application object and returns the exit status: 0 if
/// everything requested is there, 1 if something is missing, 2 if the name of a profile is wrong,
/// 128 plus the signal's number after an interruption. Changes the process: its signals, its codec
/// of file names, the environment of Qt's platform.
[[nodiscard]] int run(const Options& options);

} // namespace stills
