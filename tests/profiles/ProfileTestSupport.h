#pragma once

#include "profiles/BaseProfile.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class ProfileManager;

/// A user's home for one test case: from its construction on, the configuration and data folders
/// lie in a temporary folder, and the application bears its real names.
class TestHome
{
public:
    TestHome();

    bool isValid() const { return m_folder.isValid(); }

    /// Full path of `relativePath` in the temporary folder.
    QString path(const QString& relativePath) const { return m_folder.filePath(relativePath); }

    /// Full path of a settings file in the configuration folder, made without the code under test.
    QString settingsFile(const QString& fileName) const;

    /// Writes a settings file as a user's editor would. False when that fails.
    [[nodiscard]] bool writeSettingsFile(const QString& fileName, const QByteArray& text) const;

    /// Copies a settings file beside itself. QSettings remembers the typed values of a file that it
    /// wrote in this process; only under a new name is the text itself read back.
    [[nodiscard]] bool copySettingsFile(const QString& from, const QString& to) const;

private:
    QTemporaryDir m_folder;
};

/// Deletes, at the end of a case, the profiles that a manager keeps for good.
class ProfileKeeper
{
public:
    ProfileKeeper() = default;
    ~ProfileKeeper();
    Q_DISABLE_COPY(ProfileKeeper)

    /// A factory of profiles of the kind `Kind` that this keeper deletes, and that it outlives.
    template <typename Kind>
    std::function<BaseProfile*()> factory()
    {
        return [this] {
            auto* const profile = new Kind(nullptr);
            m_made.append(profile);
            return profile;
        };
    }

    int madeCount() const { return m_made.size(); }

private:
    QList<QPointer<BaseProfile>> m_made;
};

/// Starts a case with a kind's own manager, which outlives all cases, as empty as on the first day:
/// deletes its profiles and the settings file with the bare name `fileName` in the current home.
void forgetProfiles(ProfileManager& manager, const QString& fileName);

/// The names of the properties of `type` that are persisted, in the order of the walk.
QStringList persistedPropertyNames(const QMetaObject& type);
