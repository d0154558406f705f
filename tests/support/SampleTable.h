#pragma once

#include "tests/support/Samples.h"

/// The entries behind the lists of Samples.h, which is what tests include.
namespace testsupport {

[[nodiscard]] QList<Sample> videoSampleTable();
[[nodiscard]] QList<Sample> noVideoSampleTable();
[[nodiscard]] QList<Sample> brokenSampleTable();

} // namespace testsupport
