#pragma once

namespace testsupport {

/// How long a test waits for what takes far less, in milliseconds: machines may be busy.
constexpr int patienceMs = 60000;

} // namespace testsupport
