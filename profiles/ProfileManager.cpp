#include "profiles/ProfileManager.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

const QLatin1String profilesGroup("profiles");
const QLatin1String sortOrderKey("sortOrder");
// Misspelled in every settings file there is: correcting it would forget the users' choice.
const QLatin1String lastUsedProfileKey("lastUsedPofileId");

struct LoadedProfile
{
    int sortOrder = 0;
    std::unique_ptr<BaseProfile> profile;
};

LoadedProfile loadProfile(QSettings& settings, const QString& group,
                          std::unique_ptr<BaseProfile> profile)
{
    settings.beginGroup(group);
    profile->load(settings);
    const int sortOrder = settings.value(sortOrderKey, 0).toInt();
    settings.endGroup();

    qDebug() << "Loaded Profile" << profile->name();
    return {sortOrder, std::move(profile)};
}

/// QSettings writes no file while there is nothing to store, but the file has to exist. That this
/// fails is ignored like every other failure to write.
void createFileIfMissing(const QString& path)
{
    QFile(path).open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

} // namespace

ProfileManager::ProfileManager(const QString& fileName, const Factory& factory,
                               bool createDefaultIfEmpty)
    : m_factory(factory)
    , m_fileName(fileName)
{
    loadProfilesFromFile();

    if (createDefaultIfEmpty && m_profiles.isEmpty()) {
        BaseProfile* const profile = createProfile();
        profile->setName(QLatin1Char('[') + tr("Unnamed Settings") + QLatin1Char(']'));
        addProfile(profile);
    }
    if (!m_lastUsedProfile && !m_profiles.isEmpty())
        m_lastUsedProfile = m_profiles.first();

    saveProfiles();
}

ProfileManager::~ProfileManager() = default;

void ProfileManager::loadProfilesFromFile()
{
    QSettings settings(getSettingsPath(m_fileName), QSettings::IniFormat);

    std::vector<LoadedProfile> loaded;
    settings.beginGroup(profilesGroup);
    const QStringList groups = settings.childGroups();
    for (const QString& group : groups) {
        std::unique_ptr<BaseProfile> profile(createProfile());
        loaded.push_back(loadProfile(settings, group, std::move(profile)));
    }
    settings.endGroup();

    std::sort(loaded.begin(), loaded.end(), [](const LoadedProfile& a, const LoadedProfile& b) {
        return a.sortOrder < b.sortOrder;
    });

    m_profiles.clear();
    for (LoadedProfile& entry : loaded)
        addProfile(entry.profile.release());

    const QString lastUsedId = settings.value(lastUsedProfileKey).toString();
    if (!lastUsedId.isEmpty())
        m_lastUsedProfile = profileForId(lastUsedId);
}

void ProfileManager::saveProfiles()
{
    QSettings settings(getSettingsPath(m_fileName), QSettings::IniFormat);

    settings.beginGroup(profilesGroup);
    int sortOrder = 0;
    for (const BaseProfile* profile : qAsConst(m_profiles)) {
        settings.beginGroup(profile->id());
        profile->save(settings);
        settings.setValue(sortOrderKey, sortOrder);
        settings.endGroup();
        ++sortOrder;
    }
    settings.endGroup();

    if (m_lastUsedProfile)
        settings.setValue(lastUsedProfileKey, m_lastUsedProfile->id());
    settings.sync();
    createFileIfMissing(settings.fileName());
}

BaseProfile* ProfileManager::createProfile() const
{
    return m_factory();
}

void ProfileManager::addProfile(BaseProfile* profile)
{
    Q_ASSERT(profile);
    m_profiles.append(profile);
}

bool ProfileManager::removeProfile(BaseProfile* profile)
{
    if (m_profiles.size() < 2 || !m_profiles.contains(profile))
        return false;
    m_profiles.removeAll(profile);
    if (m_lastUsedProfile == profile)
        m_lastUsedProfile = m_profiles.first();
    {
        QSettings settings(getSettingsPath(m_fileName), QSettings::IniFormat);
        settings.beginGroup(profilesGroup);
        settings.remove(profile->id());
    }
    saveProfiles();
    return true;
}

BaseProfile* ProfileManager::profileForId(const QString& id) const
{
    if (id.isEmpty())
        return nullptr;
    const auto found =
        std::find_if(m_profiles.begin(), m_profiles.end(), [&id](const BaseProfile* profile) {
            return profile->id().compare(id, Qt::CaseInsensitive) == 0;
        });
    return found != m_profiles.end() ? *found : nullptr;
}

void ProfileManager::setLastUsedProfile(BaseProfile* profile)
{
    if (profile == m_lastUsedProfile)
        return;
    m_lastUsedProfile = profile;
    saveProfiles();
}

QString ProfileManager::getSettingsPath(const QString& fileName)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    if (!folder.mkpath(folder.absolutePath()))
        return fileName;
    return folder.absolutePath() + QLatin1Char('/') + fileName;
}
