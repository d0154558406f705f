#pragma once

#include "qtav/src/VideoPackets.h"

#include <deque>

namespace QtAV {

/// Finds the last key frame at or before a position, in any container.
///
/// A container's own seek is only a first guess. Transport and program streams land on any packet,
/// often behind the target; indexes may list only some of the key frames, and list them by decoding
/// times. So the search reads on from where it landed until nothing at or before the target can
/// follow, and lands further back if it found no key frame. The packets read from the key frame on
/// are kept, so that nothing is read twice.
class KeyFrameSearch
{
public:
    /// Maximum memory for the packets kept of one group of pictures. Beyond that the first key
    /// frame found is taken, even if a later one might follow: decoding from there reaches the same
    /// frames.
    static constexpr qint64 maximumKeptBytes = qint64(256) << 20;

    /// @param firstStepBackMs  how far before the target to land first, in milliseconds: what the
    ///     last search in the same file needed.
    KeyFrameSearch(VideoPackets& video, qint64 durationMs, qint64 firstStepBackMs,
                   qint64 mostKeptBytes = maximumKeptBytes);

    /// Runs the search. Returns Packet when packets() holds the result, End for a stream without
    /// packets.
    [[nodiscard]] PacketAnswer run(qint64 targetMs);

    /// The packets read, from the key frame on, in file order. In a stream without key frames, from
    /// the first packet on.
    std::deque<PacketPtr>& packets() { return m_packets; }

    /// True if the last of packets() is the last one of the file.
    bool reachedEnd() const { return m_reachedEnd; }

    /// How far back the search had to land.
    qint64 stepBackMs() const { return m_stepBackMs; }

private:
    enum class Accept { AtOrBeforeTarget, FirstKeyFrame, AnyPacket };

    [[nodiscard]] PacketAnswer scan(Accept accept);
    [[nodiscard]] PacketAnswer scanIf(bool isThere, Accept accept);
    [[nodiscard]] PacketAnswer searchFromStart();
    [[nodiscard]] bool keep(PacketPtr packet);

    VideoPackets& m_video;
    qint64 m_durationMs;
    qint64 m_stepBackMs;
    const qint64 m_mostKeptBytes;
    qint64 m_targetMs = 0;
    std::deque<PacketPtr> m_packets;
    qint64 m_keptBytes = 0;
    bool m_reachedEnd = false;
};

} // namespace QtAV
