#pragma once

#include <QtAV/PictureMemory.h>

#include <chrono>

class QSettings;

/// What reading a video may take, so that no file fills the memory or holds a batch up for ever.
struct ReadingLimits
{
    qint64 pictureBytes = QtAV::usualPictureBytes;
    std::chrono::milliseconds positionTimeout{60000};

    /// What the application's settings say under "limits/pictureMemoryMiB" (1 to 1048576) and
    /// "limits/positionTimeoutSeconds" (0, for any time, to 86400); the values above where they say
    /// nothing or nothing that can be used. User-interface thread only.
    [[nodiscard]] static ReadingLimits of(const QSettings& settings);
};
