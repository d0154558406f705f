#pragma once

#include "stills/Result.h"

#include <chrono>
#include <string>

namespace stills {

/// Maximum size of a list in bytes: a device delivers bytes without end.
constexpr std::size_t longestList = std::size_t(256) << 20;

/// How long to wait for a writer of a named pipe.
constexpr std::chrono::seconds writerPatience{5};

/// The content of a list of videos; "-" is standard input. A pipe is read until its writers are
/// gone; one that is never opened for writing is given up after `writerPatience`. A signal ends the
/// waiting, see Interruption.
[[nodiscard]] Result<std::string> readList(const std::string& path,
                                           std::chrono::milliseconds patience = writerPatience,
                                           std::size_t longest = longestList);

} // namespace stills
