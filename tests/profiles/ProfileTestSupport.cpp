#include "tests/profiles/ProfileTestSupport.h"

#include "profiles/ProfileManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaProperty>

TestHome::TestHome()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path(QStringLiteral("config"))));
    qputenv("XDG_DATA_HOME", QFile::encodeName(path(QStringLiteral("data"))));
    QCoreApplication::setOrganizationName(QStringLiteral("Morvantile"));
    QCoreApplication::setApplicationName(QStringLiteral("Morvantile"));
}

QString TestHome::settingsFile(const QString& fileName) const
{
    return path(QStringLiteral("config/Morvantile/Morvantile/") + fileName);
}

bool TestHome::writeSettingsFile(const QString& fileName, const QByteArray& text) const
{
    QFile file(settingsFile(fileName));
    return QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size();
}

bool TestHome::copySettingsFile(const QString& from, const QString& to) const
{
    return QFile::copy(settingsFile(from), settingsFile(to));
}

ProfileKeeper::~ProfileKeeper()
{
    for (const QPointer<BaseProfile>& profile : qAsConst(m_made)) {
        delete profile.data();
    }
}

void forgetProfiles(ProfileManager& manager, const QString& fileName)
{
    const QList<BaseProfile*> profiles = manager.profiles();
    manager.setLastUsedProfile(nullptr);
    QFile::remove(ProfileManager::getSettingsPath(fileName));
    manager.loadProfilesFromFile();
    if (!manager.profiles().isEmpty()) {
        qFatal("profiles are left");
    }
    qDeleteAll(profiles);
}

QStringList persistedPropertyNames(const QMetaObject& type)
{
    QStringList names;
    for (int index = 0; index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        if (property.isStored() && property.isWritable()) {
            names.append(QString::fromLatin1(property.name()));
        }
    }
    return names;
}
