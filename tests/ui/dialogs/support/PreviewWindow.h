#pragma once

#include "profiles/ImageProfile.h"
#include "ui/dialogs/ImageProfilePreview.h"

#include <QPointer>
#include <QWidget>

namespace testsupport {

/// Remembers what it was asked to preview.
class PreviewWindow : public QWidget, public ImageProfilePreview
{
public:
    void imageProfileUpdated(ImageProfile* profile) override
    {
        ++updates;
        brightness = profile->imageBrightness();
        contrast = profile->imageContrast();
        size = {profile->imageWidth(), profile->imageHeight()};
        quality = profile->imageQuality();
        last = profile;
    }

    int updates = 0;
    int brightness = 0;
    int contrast = 0;
    QSize size;
    int quality = 0;
    /// Null once the profile is gone.
    QPointer<ImageProfile> last;
};

} // namespace testsupport
