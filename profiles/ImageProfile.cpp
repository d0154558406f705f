#include "profiles/ImageProfile.h"

#include "profiles/ProfileManager.h"

ImageProfile::ImageProfile(ImageProfile* ignored)
    : BaseProfile(ignored)
{
    setName(tr("Image Profile"));
}

ImageProfile::~ImageProfile() = default;

ProfileManager* ImageProfile::profileManager()
{
    if (!s_profileManager) {
        constexpr bool createDefaultIfEmpty = true;
        s_profileManager = new ProfileManager(
            QStringLiteral("ImageProfiles.ini"), [] { return new ImageProfile(nullptr); },
            createDefaultIfEmpty);
    }
    return s_profileManager;
}
