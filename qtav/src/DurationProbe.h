#pragma once

#include <QtGlobal>

#include <optional>

namespace QtAV {

class Container;
class VideoPackets;

/// Determines the length of a video: the stated one if the packets confirm it in both directions,
/// otherwise the one of the last packets. Changes the position in the file.
class DurationProbe
{
public:
    struct Length
    {
        qint64 ms = 0;
        bool isMeasured = false; ///< taken from the packets, not from the file's header
    };

    /// @param video  null for a file without video: its stated length is accepted then.
    DurationProbe(Container& container, VideoPackets* video);

    /// 0 for a file without packets, and if reading failed.
    [[nodiscard]] Length run();

private:
    /// What is known about the end of the file.
    struct End
    {
        qint64 ms = 0;        ///< end of the last picture or sound
        qint64 pictureMs = 0; ///< start of the last picture
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
