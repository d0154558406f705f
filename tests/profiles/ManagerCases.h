#pragma once

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/profiles/ProfileTestSupport.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

/// The names of all profiles, in the manager's order.
inline QStringList namesOf(const ProfileManager& manager)
{
    QStringList names;
    const QList<BaseProfile*> profiles = manager.profiles();
    for (const BaseProfile* const profile : profiles) {
        names.append(profile->name());
    }
    return names;
}

/// What the tests of managers share: a home with a settings file, and managers of that file.
class ManagerCases
{
protected:
    const QString fileName = QStringLiteral("Test.ini");

    /// Makes a home for the next case; false where that fails.
    [[nodiscard]] bool begin()
    {
        m_home = std::make_unique<TestHome>();
        m_keeper = std::make_unique<ProfileKeeper>();
        return m_home->isValid();
    }

    void end()
    {
        m_keeper.reset();
        m_home.reset();
    }

    const TestHome& home() const { return *m_home; }
    const ProfileKeeper& keeper() const { return *m_keeper; }

    ProfileManager::Factory factory() { return m_keeper->factory<ImageProfile>(); }

    std::unique_ptr<ProfileManager> emptyManager()
    {
        return std::make_unique<ProfileManager>(fileName, factory(), false);
    }

    std::unique_ptr<ProfileManager> managerOf(const QByteArray& text)
    {
        if (!m_home->writeSettingsFile(fileName, text)) {
            qFatal("The settings file of the case cannot be written");
        }
        return emptyManager();
    }

    static BaseProfile* addNamed(ProfileManager& manager, const QString& name)
    {
        BaseProfile* const profile = manager.createProfile();
        profile->setName(name);
        manager.addProfile(profile);
        return profile;
    }

    QString filePath() const { return m_home->settingsFile(fileName); }

    QVariant stored(const QString& key) const
    {
        return QSettings(filePath(), QSettings::IniFormat).value(key);
    }

private:
    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<ProfileKeeper> m_keeper;
};
