#pragma once

#include "profiles/ImageProfile.h"
#include "ui/dialogs/ImageProfileDialog.h"

#include <QPointer>
#include <QWidget>

namespace testsupport {

/// Remembers what it was asked to preview.
class PreviewWindow : public QWidget
{
public:
    /// For a dialog that does not outlive this window.
    [[nodiscard]] ImageProfileDialog::Preview preview()
    {
        return [this](ImageProfile* profile) { remember(profile); };
    }

    int updates = 0;
    int brightness = 0;
    int contrast = 0;
    QSize size;
    int quality = 0;
    /// Null once the profile is gone.
    QPointer<ImageProfile> last;

private:
    void remember(ImageProfile* profile)
    {
        ++updates;
        brightness = profile->imageBrightness();
        contrast = profile->imageContrast();
        size = {profile->imageWidth(), profile->imageHeight()};
        quality = profile->imageQuality();
        last = profile;
    }
};

} // namespace testsupport
