#include "profiles/ProfileManager.h"

#include "profiles/ProfileNames.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <iterator>
#include <memory>
#include <vector>

namespace {

const QLatin1String profilesGroup("profiles");
const QLatin1String sortOrderKey("sortOrder");
const QLatin1String idKey("id");
// Misspelled in every existing settings file: correcting it would lose the users' choice.
const QLatin1String lastUsedProfileKey("lastUsedPofileId");

struct LoadedProfile
{
    int sortOrder = 0;
    std::unique_ptr<BaseProfile> profile;
};

bool containsId(const QStringList& ids, const QString& id)
{
    return ids.contains(id, Qt::CaseInsensitive);
}

/// The entries of `values` whose keys exist in the current group.
QVariantMap storedPart(const QSettings& settings, QVariantMap values)
{
    for (auto value = values.begin(); value != values.end();) {
        value = settings.contains(value.key()) ? std::next(value) : values.erase(value);
    }
    return values;
}

/// Whether the values differ from `known`, ignoring sortOrder.
bool isChanged(QVariantMap values, QVariantMap known)
{
    values.remove(sortOrderKey);
    known.remove(sortOrderKey);
    return values != known;
}

/// QSettings writes no file while there is nothing to store, but the file must exist. Failures are
/// ignored, like all failures to write.
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
        profile->setName(ProfileNames::storedStandard());
        addProfile(profile);
    }
    if (!m_lastUsedProfile && !m_profiles.isEmpty()) {
        m_lastUsedProfile = m_profiles.first();
    }

    saveProfiles();
}

ProfileManager::~ProfileManager() = default;

void ProfileManager::loadProfilesFromFile()
{
    QSettings settings(getSettingsPath(m_fileName), QSettings::IniFormat);

    std::vector<LoadedProfile> loaded;
    QHash<const BaseProfile*, QVariantMap> stored;
    QStringList ids;
    settings.beginGroup(profilesGroup);
    const QStringList groups = settings.childGroups();
    for (const QString& group : groups) {
        LoadedProfile entry{0, std::unique_ptr<BaseProfile>(createProfile())};
        settings.beginGroup(group);
        entry.profile->load(settings);
        entry.sortOrder = settings.value(sortOrderKey, 0).toInt();
        const QString storedId = settings.value(idKey).toString();
        // If an editor removed the id, the group's name serves as the id. Otherwise the profile
        // would get another id and another group at each start.
        entry.profile->setId(storedId.isEmpty() ? group : storedId);
        QVariantMap values = entry.profile->values();
        values.insert(sortOrderKey, entry.sortOrder);
        values = storedPart(settings, values);
        settings.endGroup();
        const QString id = entry.profile->id();
        const bool isCopy = id.compare(group, Qt::CaseInsensitive) != 0 && containsId(groups, id);
        if (isCopy || containsId(ids, id)) {
            continue;
        }
        qDebug() << "Loaded Profile" << entry.profile->name();
        ids.append(id);
        stored.insert(entry.profile.get(), values);
        loaded.push_back(std::move(entry));
    }
    settings.endGroup();

    std::sort(loaded.begin(), loaded.end(), [](const LoadedProfile& a, const LoadedProfile& b) {
        return a.sortOrder < b.sortOrder;
    });

    m_stored = stored;
    m_profiles.clear();
    for (LoadedProfile& entry : loaded) {
        addProfile(entry.profile.release());
    }

    const QString lastUsedId = settings.value(lastUsedProfileKey).toString();
    m_storedLastUsed = lastUsedId;
    if (!lastUsedId.isEmpty()) {
        m_lastUsedProfile = profileForId(lastUsedId);
    }
}

/// Writes only what has changed here: another program may have changed the rest meanwhile.
void ProfileManager::saveProfiles()
{
    QSettings settings(getSettingsPath(m_fileName), QSettings::IniFormat);

    settings.beginGroup(profilesGroup);
    int sortOrder = 0;
    for (const BaseProfile* profile : qAsConst(m_profiles)) {
        saveProfile(settings, *profile, sortOrder++);
    }
    settings.endGroup();

    if (m_lastUsedProfile && m_lastUsedProfile->id() != m_storedLastUsed) {
        m_storedLastUsed = m_lastUsedProfile->id();
        settings.setValue(lastUsedProfileKey, m_storedLastUsed);
    }
    settings.sync();
    createFileIfMissing(settings.fileName());
}

void ProfileManager::saveProfile(QSettings& settings, const BaseProfile& profile, int sortOrder)
{
    QVariantMap values = profile.values();
    values.insert(sortOrderKey, sortOrder);
    const QVariantMap known = m_stored.value(&profile);
    settings.beginGroup(profile.id());
    // A profile that another program removed is restored if it was changed here.
    const bool isGone = !known.isEmpty() && settings.childKeys().isEmpty();
    if (!isGone || isChanged(values, known)) {
        for (auto value = values.cbegin(); value != values.cend(); ++value) {
            const bool isStored = known.contains(value.key()) && known[value.key()] == *value;
            if (isGone || !isStored) {
                settings.setValue(value.key(), *value);
            }
        }
        m_stored.insert(&profile, values);
    }
    settings.endGroup();
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
    if (m_profiles.size() < 2 || !m_profiles.contains(profile)) {
        return false;
    }
    m_profiles.removeAll(profile);
    if (m_lastUsedProfile == profile) {
        m_lastUsedProfile = m_profiles.first();
    }
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
    if (id.isEmpty()) {
        return nullptr;
    }
    const auto found =
        std::find_if(m_profiles.begin(), m_profiles.end(), [&id](const BaseProfile* profile) {
            return profile->id().compare(id, Qt::CaseInsensitive) == 0;
        });
    return found != m_profiles.end() ? *found : nullptr;
}

void ProfileManager::setLastUsedProfile(BaseProfile* profile)
{
    if (profile == m_lastUsedProfile) {
        return;
    }
    m_lastUsedProfile = profile;
    saveProfiles();
}

QString ProfileManager::getSettingsPath(const QString& fileName)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    if (!folder.mkpath(folder.absolutePath())) {
        return fileName;
    }
    return folder.absolutePath() + QLatin1Char('/') + fileName;
}
