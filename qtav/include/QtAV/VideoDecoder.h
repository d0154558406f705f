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
    /// Which pictures the decoder skips, with FFmpeg's AVDiscard values as used in options.
    enum Discard { DiscardDefault = 0, DiscardNonReference = 8 };

    /// Creates the decoder of that name, owned by the caller. The only name is "FFmpeg"; any other
    /// gives null.
    static VideoDecoder* create(const char* name);

    ~VideoDecoder();
    VideoDecoder(const VideoDecoder&) = delete;
    VideoDecoder& operator=(const VideoDecoder&) = delete;

    /// Sets the stream for open(). The decoder copies what it needs, so the context need not
    /// outlive it.
    void setCodecContext(const VideoCodecContext* context);

    /// Memory limit for one picture in bytes (see usualPictureBytes), from the next open() on.
    /// Larger pictures are refused, where the stream declares them by open() itself; and so is a
    /// picture when those that the decoder keeps for others, and those that wait for decode() to be
    /// called again, would take more than twice as much, beside one for each of its threads.
    void setPictureMemory(qint64 bytes);

    /// What one picture of the stream takes in memory, decoded and as an image, by what the stream
    /// declares; 0 before setCodecContext().
    [[nodiscard]] qint64 pictureBytes() const;

    /// No picture is begun after the deadline: decode() then fails. Null for none. From the next
    /// open() on.
    void setDeadline(std::shared_ptr<const Deadline> deadline);

    /// Returns false if there is no decoder for the codec or the stream's parameters are refused.
    [[nodiscard]] bool open();
    void close();
    bool isOpen() const;

    /// Options by section and key, effective from the next packet on. Section "avcodec" has the
    /// integers "skip_frame" and "skip_loop_filter" (each a Discard) and, only before open(),
    /// "threads" (0 = one per core). Section "start" has the bool "key_frame_at_once", true by
    /// default. All others are ignored.
    void setOptions(const QVariantHash& options);
    QVariantHash options() const;

    /// Forgets all packets and frames; the next packet should be a key frame.
    void flush();

    /// Decodes one packet. Returns true also if no frame is available yet; frame() is then invalid.
    /// The first key packet after open() or flush() gives its frame at once; if only later frames
    /// matter, disable "key_frame_at_once" to save that cost. Returns false for a damaged packet;
    /// the decoder stays usable.
    [[nodiscard]] bool decode(const Packet& packet);

    /// Why a picture was refused since the last open() or flush(), or by open() itself, as a text
    /// for people; empty if none was.
    [[nodiscard]] QString errorString() const;

    /// Takes the frame of the last decode(): at most one per packet, in presentation order, each
    /// only once.
    [[nodiscard]] VideoFrame frame();

private:
    VideoDecoder();

    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV
