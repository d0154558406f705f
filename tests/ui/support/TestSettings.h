#pragma once

#include "tests/support/TestDir.h"

namespace testsupport {

/// Empty application settings for one test case: every default QSettings made while it lives keeps
/// its values in a temporary folder. Create it on the case's stack, before what uses settings.
class TestSettings
{
public:
    TestSettings();

    /// A folder of the case's own, for other files too.
    [[nodiscard]] const TestDir& dir() const { return m_dir; }

private:
    TestDir m_dir;
};

} // namespace testsupport
