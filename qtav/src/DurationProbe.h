#pragma once

#include <QtGlobal>

#include <optional>

namespace QtAV {

class Container;
class VideoPackets;

/// Finds out how long a video is: what the file states, where its packets bear that out in either
/// direction, else what its last packets say. Moves the position.
class DurationProbe
{
public:
    struct Length
    {
        qint64 ms = 0;
        bool isMeasured = false; ///< taken from the packets, not from the file's head
    };

    /// @param video  null for a file without video: a stated length is believed then.
    DurationProbe(Container& container, VideoPackets* video);

    /// 0 for a file without packets, and where reading failed.
    [[nodiscard]] Length run();

private:
    /// What is known of the end of the file.
    struct End
    {
        qint64 ms = 0;        ///< when the last picture or sound is over
        qint64 pictureMs = 0; ///< when the last picture begins
    };

    [[nodiscard]] std::optional<Length> checkedStatement();
    [[nodiscard]] bool isWorthReadingOn();
    [[nodiscard]] qint64 endOfPictures(qint64 statedMs);
    [[nodiscard]] qint64 measure();
    [[nodiscard]] bool goTo(qint64 ms);
    [[nodiscard]] std::optional<qint64> firstTimeAt(qint64 ms);
    [[nodiscard]] End readToEnd();

    Container& m_container;
    VideoPackets* m_video;
};

} // namespace QtAV
