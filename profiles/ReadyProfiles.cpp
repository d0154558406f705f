#include "profiles/ReadyProfiles.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"

#include <QCoreApplication>
#include <QSettings>
#include <QSize>
#include <QVariantMap>

#include <algorithm>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ReadyProfiles", text);
}

bool isNameTaken(const ProfileManager& manager, const QString& name)
{
    const QList<BaseProfile*> profiles = manager.profiles();
    return std::any_of(profiles.cbegin(), profiles.cend(), [&name](const BaseProfile* profile) {
        return profile->name().compare(name, Qt::CaseInsensitive) == 0;
    });
}

/// An invalid size means the size of the video.
void addProfile(ProfileManager& manager, const QString& name, const QSize& size)
{
    auto* const profile = qobject_cast<ImageProfile*>(manager.createProfile());
    if (profile == nullptr || isNameTaken(manager, name)) {
        delete profile;
        return;
    }
    profile->setName(name);
    profile->setSameSizeAsVideo(!size.isValid());
    if (size.isValid()) {
        profile->setImageWidth(size.width());
        profile->setImageHeight(size.height());
    }
    manager.addProfile(profile);
}

/// The values of a profile without those that change nothing while it keeps the video's size.
QVariantMap valuesBesideSize(const ImageProfile& profile)
{
    QVariantMap values = profile.values();
    for (const char* const key :
         {"name", "id", "objectName", "sameSizeAsVideo", "imageWidth", "imageHeight",
          "maintainAspectRatio", "resizeFilter", "resizeInLinearLight"}) {
        values.remove(QLatin1String(key));
    }
    return values;
}

} // namespace

void ReadyProfiles::addTo(ProfileManager& manager)
{
    addProfile(manager, translated(QT_TRANSLATE_NOOP("ReadyProfiles", "Original size")), {});
    addProfile(manager, translated(QT_TRANSLATE_NOOP("ReadyProfiles", "Full HD")), {1920, 1080});
    addProfile(manager, translated(QT_TRANSLATE_NOOP("ReadyProfiles", "Web 1280")), {1280, 1280});
    addProfile(manager, translated(QT_TRANSLATE_NOOP("ReadyProfiles", "Thumbnail 320")),
               {320, 320});
    manager.saveProfiles();
}

void ReadyProfiles::addOnFirstStart()
{
    const QString key = QStringLiteral("hasReadyProfiles");
    QSettings settings;
    if (!settings.value(key).toBool()) {
        addTo(*ImageProfile::profileManager());
        settings.setValue(key, true);
    }
}

ImageProfile* ReadyProfiles::inOriginalSize(ImageProfile& profile, ProfileManager& manager)
{
    if (profile.sameSizeAsVideo()) {
        return &profile;
    }
    const QList<BaseProfile*> profiles = manager.profiles();
    for (BaseProfile* const listed : profiles) {
        auto* const candidate = qobject_cast<ImageProfile*>(listed);
        if (candidate != nullptr && candidate->sameSizeAsVideo() &&
            valuesBesideSize(*candidate) == valuesBesideSize(profile)) {
            return candidate;
        }
    }
    auto* const made = new ImageProfile;
    made->takeValuesOf(profile);
    made->setName(translated(QT_TRANSLATE_NOOP("ReadyProfiles", "%1, original size"))
                      .arg(profile.shownName()));
    made->setSameSizeAsVideo(true);
    manager.addProfile(made);
    manager.saveProfiles();
    return made;
}
