#pragma once

#include "stills/OptionTable.h"
#include "stills/Options.h"
#include "stills/Result.h"

namespace stills {

/// What the typed arguments mean; or what is wrong with them, in one line.
[[nodiscard]] Result<Options> readOptions(const TypedOptions& typed);

} // namespace stills
