#pragma once

#include <QtAV/PictureMemory.h>

#include <chrono>

class QSettings;

/// Limits for reading a video, so that no file fills the memory or blocks a batch forever.
struct ReadingLimits
{
    qint64 pictureBytes = QtAV::usualPictureBytes;
    std::chrono::milliseconds positionTimeout{60000};

    /// Reads the limits from "limits/pictureMemoryMiB" (1 to 1048576) and
    /// "limits/positionTimeoutSeconds" (0, for no limit, to 86400) of the application's settings.
    /// Missing and invalid values keep the defaults above. User-interface thread only.
    [[nodiscard]] static ReadingLimits of(const QSettings& settings);
};
