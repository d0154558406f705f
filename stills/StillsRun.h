#pragma once

#include "stills/Options.h"

namespace stills {

/// Does what the options say, in a process without an application object yet, and returns the exit
/// status: 0 when all that was asked for is there, 1 when some is not, 2 when a name of a profile
/// is wrong, 128 and the signal's number after an interruption. Changes the process: its signals,
/// its codec of file names, the environment of Qt's platform.
[[nodiscard]] int run(const Options& options);

} // namespace stills
