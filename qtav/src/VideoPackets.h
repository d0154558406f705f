#pragma once

#include "qtav/src/Container.h"
#include "qtav/src/FieldPairs.h"
#include "qtav/src/KeyPictures.h"
#include "qtav/src/PresentationOrder.h"
#include "qtav/src/RawStreamIndex.h"
#include "qtav/src/StreamParameters.h"

#include <deque>
#include <memory>
#include <optional>

namespace QtAV {

/// The packets of one video stream in file order, each with a presentation time and a correct key
/// flag, together with the unmodified packets of one audio stream.
///
/// Packets of raw streams are numbered, those of AVI files, program streams and Matroska files made
/// of AVIs get times in presentation order, packed B-frames are split, single fields are joined to
/// frames, and gaps are bridged. Key pictures that an edit list hides at the end are skipped:
/// decoding must not start there. KeyFrameSearch makes up for inexact seeks of containers.
///
/// Not thread-safe, but tied to no thread. The container must outlive it.
class VideoPackets
{
public:
    VideoPackets(Container& container, int stream);
    ~VideoPackets();
    VideoPackets(const VideoPackets&) = delete;
    VideoPackets& operator=(const VideoPackets&) = delete;

    /// Finds the key frames of a raw stream by reading it through; does nothing for others. Returns
    /// false if that failed or was interrupted: seeks then do not work.
    [[nodiscard]] bool index();

    int stream() const { return m_stream; }
    const std::shared_ptr<const StreamParameters>& parameters() const { return m_parameters; }
    const Timeline& timeline() const { return m_parameters->timeline; }

    /// The audio stream whose packets are delivered besides those of the video; -1, the initial
    /// value, for none.
    void setAudioStream(int stream) { m_audioStream = stream; }

    /// Reads the next packet. After Cancelled, and after a failure for good, only a seek helps.
    [[nodiscard]] PacketAnswer read(PacketPtr& packet);

    /// False if reading failed for good, until the next seek.
    bool canGoOn() const { return m_container.canGoOn(); }

    /// True if the last operation was interrupted.
    bool wasInterrupted() const { return m_container.wasInterrupted(); }

    /// Seeks to some packet near a position, before it if the container supports that. Returns
    /// false on failure.
    [[nodiscard]] bool seekNear(qint64 ms);

    /// Seeks to the first packet of the file. Returns false if the file can no longer be read.
    [[nodiscard]] bool rewind();

    /// Opens the file again, see Container::reopen().
    [[nodiscard]] bool reopen();

    /// True if the container has packets without a time, also at the end of the file.
    bool hasMissingTimes() const { return m_fillsGaps; }

    /// Duration of a packet's picture in ticks, as far as the stream states it.
    qint64 frameTicks(const AVPacket& packet) const;

    bool isRawStream() const { return m_isRaw; }
    /// The length of a raw stream in milliseconds; 0 for others.
    qint64 rawLengthMs() const { return timeline().milliseconds(m_rawIndex.lengthTicks()); }

private:
    [[nodiscard]] bool hasDecodingTimesOnly();
    void describeStream();
    void unpackBFrames(CodecParametersPtr& codec);
    void chooseOrder();
    void choosePairing();
    void accept(PacketPtr packet);
    void unpack(PacketPtr packet);
    void acceptEnd();
    void takePairs();
    void order(PacketPtr packet);
    [[nodiscard]] bool joinsBehindTail(AVPacket& packet);
    void takeOrdered();
    void keepOrDeliver(PacketPtr packet);
    void dropHiddenGroup();
    void deliverHidden();
    void flagKey(AVPacket& packet) const;
    void setMissingTime(AVPacket& packet);
    [[nodiscard]] bool seekInRawStream(qint64 ms);
    void forgetPosition();

    Container& m_container;
    const int m_stream;
    int m_audioStream = -1;
    const bool m_isRaw;
    bool m_isLikeAvi =
        false; ///< the container has only decoding times, and may have packed B-frames
    std::shared_ptr<const StreamParameters> m_parameters;
    BitstreamFilterPtr m_unpackBFrames;
    std::unique_ptr<FieldPairs> m_pairs;        ///< null if no packet can hold a single field
    std::unique_ptr<PresentationOrder> m_order; ///< null if the container gives a time to all
                                                ///< packets
    bool m_fillsGaps = false;
    std::optional<KeyPictures> m_keyPictures;
    RawStreamIndex m_rawIndex;

    std::deque<PacketPtr> m_ready; ///< read and not delivered yet
    /// Packets of pictures that an edit list hides, until one follows that is shown.
    std::deque<PacketPtr> m_hidden;
    qint64 m_hiddenBytes = 0;
    qint64 m_nextTicks = 0; ///< time of the next packet without any time
    bool m_ended = false;
    bool m_joins = false;                ///< nothing has been read since the last seek
    qint64 m_tailTicks = AV_NOPTS_VALUE; ///< time assigned to a tail before the first picture
};

} // namespace QtAV
