#pragma once

#include <QtAV/AVDemuxer.h>
#include <QtAV/VideoDecoder.h>
#include <QtAV/VideoFrame.h>

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace QtAV {

/// Says that what is being done is not wanted any more; asked between two packets.
using IsCancelled = std::function<bool()>;

/// Walks through the frames of one video in the order in which they are shown, with a file and a
/// decoder of its own. The times of the frames that it gives rise strictly.
///
/// Not thread-safe, but tied to no thread.
class VideoCursor
{
public:
    struct Step
    {
        enum class Kind {
            Frame,
            End,
            Cancelled, ///< the next call goes on where this one stopped
        };

        Kind kind = Kind::End;
        VideoFrame frame = {};
        /// The time of the frame directly before this one; nothing where it was not seen.
        std::optional<double> predecessor = {};
        bool isFirstOfVideo = false;
    };

    /// Opens the file's first video stream. False, with a text for people, when it has none or
    /// none that can be decoded.
    [[nodiscard]] bool open(const QString& path, QString& error);
    void close();
    [[nodiscard]] bool isOpen() const { return m_decoder != nullptr; }

    const AVDemuxer& demuxer() const { return m_demuxer; }

    /// Goes to the last key frame at or before a position in milliseconds, from where next() goes
    /// on. Leaves nothing out.
    void seek(qint64 ms);

    /// From here on, frames before this position in milliseconds may be left out where no other
    /// frame needs them, which saves time.
    void setCompleteFrom(qint64 ms) { m_completeFrom = ms; }
    qint64 completeFrom() const { return m_completeFrom; }

    [[nodiscard]] Step next(const IsCancelled& isCancelled);

    /// The time of the frame that next() gave last; nothing since seek().
    std::optional<double> last() const { return m_last; }

    /// The time of the packet where the last seek landed; nothing until next() was called.
    std::optional<double> landing() const { return m_landing; }

    /// No frame at or after a time in seconds has been left out.
    bool isCompleteFrom(double seconds) const { return m_leftOutUpTo < seconds; }

    /// Frames behind last() were left out.
    bool leftOutSinceLast() const { return m_last && *m_last < m_leftOutUpTo; }

private:
    void chooseSkipping(const Packet& packet);
    [[nodiscard]] Step stepTo(const VideoFrame& frame);

    AVDemuxer m_demuxer;
    std::unique_ptr<VideoDecoder> m_decoder;
    qint64 m_completeFrom = 0;
    double m_leftOutUpTo = -1.0; ///< frames up to this time may be missing
    bool m_skips = false;
    bool m_startedAtZero = true;
    std::optional<double> m_landing;
    std::optional<double> m_last;
};

} // namespace QtAV
