#pragma once

namespace testsupport {

/// Whether a sanitizer watches, which makes every step several times as long.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

} // namespace testsupport
