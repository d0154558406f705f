#pragma once

namespace QtAV {

/// Statistics of a player's display.
struct Statistics
{
    struct VideoOnly
    {
        /// Display size of the picture on screen, upright and with square pixels; 0 if there is
        /// none.
        int width = 0;
        int height = 0;
    };

    VideoOnly video_only;
    /// Number of frames, since the file was opened, that were decoded too late to be shown.
    int droppedFrames = 0;
};

} // namespace QtAV
