#pragma once

#include "tests/ui/support/TestSettings.h"

#include <QString>

class BaseProfile;
class ProfileManager;

namespace testsupport {

/// A user's profiles for one test case: at first none of any kind, kept in a temporary folder with
/// settings and watermark pictures. Create it on the case's stack, before what uses profiles.
///
/// The managers live as long as the program, and would keep one case's profiles for the next.
class TestProfiles
{
public:
    TestProfiles();
    /// Deletes all listed profiles.
    ~TestProfiles();
    TestProfiles(const TestProfiles&) = delete;
    TestProfiles& operator=(const TestProfiles&) = delete;

    /// A new profile with this name, the last of its manager's list.
    template <typename Kind>
    Kind& add(const QString& name) const
    {
        auto* const profile = new Kind(nullptr);
        list(*Kind::profileManager(), *profile, name);
        return *profile;
    }

    [[nodiscard]] const TestDir& dir() const { return m_settings.dir(); }

    /// The names of the files in the watermark folder.
    [[nodiscard]] QStringList watermarkFiles() const;

private:
    static void list(ProfileManager& manager, BaseProfile& profile, const QString& name);

    TestSettings m_settings;
};

} // namespace testsupport
