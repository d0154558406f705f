#pragma once

#include "tests/support/Samples.h"

/// The entries behind the lists of Samples.h. Tests include Samples.h.
namespace testsupport {

[[nodiscard]] QList<Sample> videoSampleTable();
[[nodiscard]] QList<Sample> noVideoSampleTable();
[[nodiscard]] QList<Sample> brokenSampleTable();

} // namespace testsupport
