#pragma once

#include <QtAV/Deadline.h>
#include <QtAV/Packet.h>
#include <QtAV/PictureMemory.h>
#include <QtAV/VideoCodecContext.h>
#include <QtAV/VideoFrame.h>

#include <QString>
#include <QVariantHash>

#include <memory>

namespace QtAV {

/// Turns the packets of one video stream into frames.
///
/// Decodes on all cores. Not thread-safe, but tied to no thread: one thread at a time may use it.
class VideoDecoder
{
public:
    /// Which pictures the decoder skips, as the options have it: FFmpeg's AVDiscard values.
    enum Discard { DiscardDefault = 0, DiscardNonReference = 8 };

    /// The decoder of that name, owned by the caller. There is one, "FFmpeg"; any other name
    /// gives null.
    static VideoDecoder* create(const char* name);

    ~VideoDecoder();
    VideoDecoder(const VideoDecoder&) = delete;
    VideoDecoder& operator=(const VideoDecoder&) = delete;

    /// Says which stream open() is for. The decoder keeps what it needs: the context may go.
    void setCodecContext(const VideoCodecContext* context);

    /// What one picture may take in memory, in bytes (see usualPictureBytes), from the next open()
    /// on. Larger pictures are refused, where the stream declares them by open() itself; and so is
    /// a picture when those that the decoder keeps for others would take more than twice as much,
    /// beside one for each of its threads.
    void setPictureMemory(qint64 bytes);

    /// What one picture of the stream takes in memory, decoded and as an image, by what the stream
    /// declares; 0 before setCodecContext().
    [[nodiscard]] qint64 pictureBytes() const;

    /// No picture is begun after it: decode() fails then. Null for none; from the next open() on.
    void setDeadline(std::shared_ptr<const Deadline> deadline);

    /// False where no decoder exists for the codec or the stream's parameters are refused.
    [[nodiscard]] bool open();
    void close();
    bool isOpen() const;

    /// Options by section and key. Understood, from the next packet on: section "avcodec" with
    /// the integers "skip_frame" and "skip_loop_filter" (each a Discard), and, before
    /// open(), "threads" (0 = as many as there are cores); section "start" with the bool
    /// "key_frame_at_once", true unless said. All others are ignored.
    void setOptions(const QVariantHash& options);
    QVariantHash options() const;

    /// Forgets all packets and frames; the next packet should be a key frame.
    void flush();

    /// Decodes one packet. True also when no frame came out yet, which frame() then shows by
    /// being invalid. The first key packet after open() or flush() gives its frame at once; where
    /// only later frames matter, the option "key_frame_at_once" saves what that costs. False for a
    /// packet that is damaged; the decoder stays usable.
    [[nodiscard]] bool decode(const Packet& packet);

    /// Why a picture was refused since the last open() or flush(), or by open() itself, for people;
    /// empty where none was.
    [[nodiscard]] QString errorString() const;

    /// The frame of the last decode(), taken away by this call: at most one a packet, in the
    /// order of presentation, each once.
    [[nodiscard]] VideoFrame frame();

private:
    VideoDecoder();

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
