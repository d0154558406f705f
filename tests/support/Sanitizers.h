#pragma once

namespace testsupport {

/// Whether a sanitizer is active, which makes every step several times slower.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

} // namespace testsupport
