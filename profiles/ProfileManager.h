#pragma once

#include "profiles/BaseProfile.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

class QSettings;

/// All profiles of one kind, in display order, and the one used last, kept in one INI file.
///
/// Each kind has one manager, returned by the static `profileManager()` of its class. It is created
/// on first use and lives until the program ends. So do all profiles that are or were in its list,
/// so that pointers to them stay valid. The manager deletes no profile, not even in its destructor.
///
/// A profile's values reach the file only through saveProfiles(). Failures to read count as an
/// empty file and failures to write are ignored, both without a message; groups and keys in the
/// file that the manager does not know stay there.
///
/// User-interface thread only.
class ProfileManager : public QObject
{
    Q_OBJECT

public:
    /// Creates a new profile of the managed kind with default values; never returns null.
    using Factory = std::function<BaseProfile*()>;

    /// Loads the profiles from the file, makes the first one the last used one unless another is
    /// stored, and writes the file, so that it is complete from the first start on.
    ///
    /// `fileName` is the bare name of the INI file. With `createDefaultIfEmpty`, a manager that
    /// finds no profile makes one named "[Unnamed Settings]". Throws std::bad_function_call when a
    /// profile has to be made and `factory` is empty.
    ProfileManager(const QString& fileName, const Factory& factory, bool createDefaultIfEmpty);
    ~ProfileManager() override;

    /// Replaces the list with what the file holds, ordered by "sortOrder" (those that share one
    /// come in no particular order), and restores the last used profile: null if the stored id
    /// belongs to no profile, unchanged if none is stored. The profiles listed before are not
    /// deleted. Throws std::bad_function_call, changing nothing, when the file has profiles and
    /// there is no factory.
    void loadProfilesFromFile();

    /// Writes what has changed in the profiles and of the last used one to the file, which exists
    /// afterwards even if there is nothing to write. Without a last used profile the stored id
    /// stays as it is.
    ///
    /// What has not changed here since it was read or written stays as it is in the file, so that
    /// programs that run at once keep each other's changes: another program's values, new profiles
    /// and removals. Of two that change one value the later one counts; a profile that was removed
    /// there and changed here is there again.
    void saveProfiles();

    /// A new profile from the factory, neither listed nor saved; the caller owns it until it is
    /// added. Throws std::bad_function_call without a factory.
    [[nodiscard]] BaseProfile* createProfile() const;

    /// Appends `profile`, which must not be null and must live until the program ends. Does not
    /// save.
    void addProfile(BaseProfile* profile);

    /// Removes a profile from the list and from the file, and saves. If it was the last used one,
    /// the first profile becomes that. Returns false, with nothing changed, for the only profile
    /// and for one that is not listed.
    [[nodiscard]] bool removeProfile(BaseProfile* profile);

    /// The profiles in display order.
    QList<BaseProfile*> profiles() const { return m_profiles; }

    /// The first profile whose id is `id` ignoring letter case; null if there is none, and for an
    /// empty `id`.
    BaseProfile* profileForId(const QString& id) const;

    /// The profile that the user chose last; null if there is none.
    BaseProfile* lastUsedProfile() const { return m_lastUsedProfile; }

    /// Stores the user's choice, a profile of the list or null, and saves at once, so that it
    /// survives a crash. Does nothing if it already is the last used one.
    void setLastUsedProfile(BaseProfile* profile);

    /// The full path of the settings file with the bare name `fileName` in the application's
    /// configuration folder, which is made if it is missing. If it cannot be made, `fileName`
    /// itself, which is then relative to the working directory.
    static QString getSettingsPath(const QString& fileName);

private:
    void saveProfile(QSettings& settings, const BaseProfile& profile, int sortOrder);

    QList<BaseProfile*> m_profiles;
    /// Known content of the file per profile, by key.
    QHash<const BaseProfile*, QVariantMap> m_stored;
    QString m_storedLastUsed;
    BaseProfile* m_lastUsedProfile = nullptr;
    Factory m_factory;
    QString m_fileName;
};
