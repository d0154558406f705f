#pragma once

#include "qtav/src/Container.h"
#include "qtav/src/KeyPictures.h"
#include "qtav/src/PresentationOrder.h"
#include "qtav/src/RawStreamIndex.h"
#include "qtav/src/StreamParameters.h"

#include <deque>
#include <memory>
#include <optional>

namespace QtAV {

/// The packets of one video stream in file order, each with a presentation time and a true key
/// flag, and beside them those of one audio stream as they are.
///
/// Packets of raw streams are numbered, those of AVI files and program streams put in order of
/// presentation, packed B-frames taken apart, gaps bridged. What the seeks of containers lack in
/// exactness KeyFrameSearch makes up for.
///
/// Not thread-safe, but tied to no thread. The container must outlive it.
class VideoPackets
{
public:
    VideoPackets(Container& container, int stream);
    ~VideoPackets();
    VideoPackets(const VideoPackets&) = delete;
    VideoPackets& operator=(const VideoPackets&) = delete;

    /// Finds the key frames of a raw stream, for which it is read through; does nothing for others.
    /// False when that failed or was interrupted: no seek will work.
    [[nodiscard]] bool index();

    int stream() const { return m_stream; }
    const std::shared_ptr<const StreamParameters>& parameters() const { return m_parameters; }
    const Timeline& timeline() const { return m_parameters->timeline; }

    /// Whose packets are given beside those of the video; -1, as at first, for none.
    void setAudioStream(int stream) { m_audioStream = stream; }

    /// The next packet. After Cancelled and a failure for good, only a seek helps.
    [[nodiscard]] PacketAnswer read(PacketPtr& packet);

    /// False when reading fails for good: until the next seek.
    bool canGoOn() const { return m_container.canGoOn(); }

    /// What was done last ended because the container's interrupt asked for it.
    bool wasInterrupted() const { return m_container.wasInterrupted(); }

    /// Goes to some packet near a position, before it if the container can. False when refused.
    [[nodiscard]] bool seekNear(qint64 ms);

    /// Goes to the first packet of the file. False when the file cannot be read any more.
    [[nodiscard]] bool rewind();

    /// Opens the file anew, see Container::reopen().
    [[nodiscard]] bool reopen();

    /// The container leaves some packets without a time, also at the end of the file.
    bool hasMissingTimes() const { return m_fillsGaps; }

    /// How long the picture of a packet is shown, in ticks, as far as the stream says.
    qint64 frameTicks(const AVPacket& packet) const;

    bool isRawStream() const { return m_isRaw; }
    /// The length of a raw stream in milliseconds; 0 for others.
    qint64 rawLengthMs() const { return timeline().milliseconds(m_rawIndex.lengthTicks()); }

private:
    void describeStream();
    void unpackBFrames(CodecParametersPtr& codec);
    void chooseOrder();
    void accept(PacketPtr packet);
    void order(PacketPtr packet);
    [[nodiscard]] bool joinsBehindTail(AVPacket& packet);
    void takeOrdered();
    void flagKey(AVPacket& packet) const;
    void setMissingTime(AVPacket& packet);
    [[nodiscard]] bool seekInRawStream(qint64 ms);
    void forgetPosition();

    Container& m_container;
    const int m_stream;
    int m_audioStream = -1;
    const bool m_isRaw;
    std::shared_ptr<const StreamParameters> m_parameters;
    BitstreamFilterPtr m_unpackBFrames;
    std::unique_ptr<PresentationOrder> m_order; ///< null where the container times all packets
    bool m_fillsGaps = false;
    std::optional<KeyPictures> m_keyPictures;
    RawStreamIndex m_rawIndex;

    std::deque<PacketPtr> m_ready; ///< read, but not yet given
    qint64 m_nextTicks = 0;        ///< where the next packet without any time belongs
    bool m_ended = false;
    bool m_joins = false;                ///< nothing was read since the last seek
    qint64 m_tailTicks = AV_NOPTS_VALUE; ///< what a tail before the first picture was given
};

} // namespace QtAV
