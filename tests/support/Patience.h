#pragma once

namespace testsupport {

/// Time limit for anything a test waits for, in milliseconds. Far more than needed, for busy
/// machines.
constexpr int patienceMs = 60000;

} // namespace testsupport
