#include "tests/ui/dialogs/support/TestProfiles.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using testsupport::TestProfiles;

namespace {

/// Reads the profiles of an empty configuration folder. The previous case has deleted its own.
void startEmpty(ProfileManager& manager)
{
    manager.loadProfilesFromFile();
}

void deleteAll(ProfileManager& manager)
{
    manager.setLastUsedProfile(nullptr);
    qDeleteAll(manager.profiles());
}

} // namespace

TestProfiles::TestProfiles()
{
    // The managers list the profiles that existed when they were created, which are not the case's.
    const QList<ProfileManager*> managers{ImageProfile::profileManager(),
                                          WatermarkProfile::profileManager()};
    static const bool first = [&managers] {
        for (ProfileManager* const manager : managers) {
            deleteAll(*manager);
        }
        return true;
    }();
    Q_UNUSED(first)
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir().filePath(QStringLiteral("config"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(dir().filePath(QStringLiteral("data"))));
    for (ProfileManager* const manager : managers) {
        startEmpty(*manager);
    }
}

TestProfiles::~TestProfiles()
{
    deleteAll(*ImageProfile::profileManager());
    deleteAll(*WatermarkProfile::profileManager());
}

QStringList TestProfiles::watermarkFiles() const
{
    const QString folder = QFileInfo(WatermarkProfile::pathForImage(QStringLiteral("any"))).path();
    return QDir(folder).entryList(QDir::Files);
}

void TestProfiles::list(ProfileManager& manager, BaseProfile& profile, const QString& name)
{
    profile.setName(name);
    manager.addProfile(&profile);
}
