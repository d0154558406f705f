#pragma once

#include "profiles/BaseProfile.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

class ProfileManager;

/// A user's home for one test case: during its lifetime, the configuration and data folders are in
/// a temporary folder, and the application has its real names.
class TestHome
{
public:
    TestHome();

    bool isValid() const { return m_folder.isValid(); }

    /// Full path of `relativePath` in the temporary folder.
    QString path(const QString& relativePath) const { return m_folder.filePath(relativePath); }

    /// Full path of a settings file in the configuration folder, determined without the code under
    /// test.
    QString settingsFile(const QString& fileName) const;

    /// Writes a settings file as a user's editor would. Returns false on failure.
    [[nodiscard]] bool writeSettingsFile(const QString& fileName, const QByteArray& text) const;

    /// Copies a settings file to another name in the same folder. QSettings caches the typed values
    /// of a file that it wrote in this process; only under a new name does it read the text back.
    [[nodiscard]] bool copySettingsFile(const QString& from, const QString& to) const;

private:
    QTemporaryDir m_folder;
};

/// Deletes, at the end of a case, the profiles that a manager would keep until the program ends.
class ProfileKeeper
{
public:
    ProfileKeeper() = default;
    ~ProfileKeeper();
    Q_DISABLE_COPY(ProfileKeeper)

    /// A factory of profiles of the kind `Kind`, which this keeper deletes and must outlive.
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

/// Resets a kind's own manager, which outlives all cases, to its initial state: deletes its
/// profiles and the settings file with the bare name `fileName` in the current home.
void forgetProfiles(ProfileManager& manager, const QString& fileName);

/// The names of the properties of `type` that are persisted, in the order of iteration.
QStringList persistedPropertyNames(const QMetaObject& type);
