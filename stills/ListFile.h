#pragma once

#include "stills/Result.h"

#include <chrono>
#include <string>

namespace stills {

/// A list that is longer than this, in bytes, is none: a device gives bytes without end.
constexpr std::size_t longestList = std::size_t(256) << 20;

/// How long a named pipe may be without anybody who writes into it.
constexpr std::chrono::seconds writerPatience{5};

/// The content of a list of videos; "-" is standard input. A pipe is read until its writers are
/// gone, but not waited for when nobody opens it for writing.
[[nodiscard]] Result<std::string> readList(const std::string& path,
                                           std::chrono::milliseconds patience = writerPatience,
                                           std::size_t longest = longestList);

} // namespace stills
