#pragma once

#include "stills/OptionTable.h"
#include "stills/Options.h"
#include "stills/Result.h"

namespace stills {

/// Interprets the typed arguments; the error is a text of one line.
[[nodiscard]] Result<Options> readOptions(const TypedOptions& typed);

} // namespace stills
