#pragma once

namespace QtAV {

/// Figures of what a player shows.
struct Statistics
{
    struct VideoOnly
    {
        /// Size of the picture on screen as it is meant to be seen, upright and with square
        /// pixels; 0 when there is none.
        int width = 0;
        int height = 0;
    };

    VideoOnly video_only;
    /// Since the file was opened: frames that came too late to be shown in playback.
    int droppedFrames = 0;
};

} // namespace QtAV
