// A file of profiles, as an editor or a broken disk may leave it.

#include "imaging/ImageRecipe.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/SettingsFile.h"
#include "profiles/WatermarkProfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

const QString fileName = QStringLiteral("Fuzz.ini");

/// Gives the process a home folder of its own.
void prepareHome()
{
    static QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QCoreApplication::setApplicationName(QStringLiteral("Fuzz"));
}

template <typename Profile>
void useProfiles(const char* data, std::size_t size)
{
    QFile file(ProfileManager::getSettingsPath(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(data, static_cast<qint64>(size)) < 0) {
        std::abort();
    }
    file.close();
    // In the same way as the programs at their start.
    if (SettingsFile::isDamaged(file.fileName())) {
        return;
    }
    const auto make = [] { return new Profile(nullptr); };
    ProfileManager manager(fileName, make, true);
    const QList<BaseProfile*> profiles = manager.profiles();
    for (BaseProfile* const profile : profiles) {
        static_cast<void>(recipes::of(*static_cast<Profile*>(profile)));
    }
    manager.saveProfiles();
    qDeleteAll(profiles);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isReady = (prepareHome(), true);
    static_cast<void>(isReady);
    useProfiles<ImageProfile>(reinterpret_cast<const char*>(data), size);
    useProfiles<WatermarkProfile>(reinterpret_cast<const char*>(data), size);
    return 0;
}
