#pragma once

#include "qtav/src/VideoPackets.h"

#include <deque>

namespace QtAV {

/// Finds the last key frame at or before a position, in any container.
///
/// A container's own jump is only a first guess: transport and program streams land on any packet,
/// often behind the target; indexes may list some of the key frames only, and by decoding times.
/// So the search reads on from where it landed until nothing at or before the target can come any
/// more, and lands further back when that showed no key frame. What was read from the key frame on
/// is kept, so that nothing is read twice.
class KeyFrameSearch
{
public:
    /// No more is kept of one group of pictures and what lies between its packets. Beyond that the
    /// first key frame found is taken even if a later one might follow: decoding from there reaches
    /// the same frames.
    static constexpr qint64 maximumKeptBytes = qint64(256) << 20;

    /// @param firstStepBack  how far before the target to land at first, in milliseconds: what the
    ///                       last search in the same file needed.
    KeyFrameSearch(VideoPackets& video, qint64 durationMs, qint64 firstStepBackMs,
                   qint64 mostKeptBytes = maximumKeptBytes);

    /// Searches. Packet when packets() holds what was found, End for a stream without any packet.
    [[nodiscard]] PacketAnswer run(qint64 targetMs);

    /// What was read, from the key frame on, in file order. In a stream without any key frame it
    /// starts with the first packet.
    std::deque<PacketPtr>& packets() { return m_packets; }

    /// The last of packets() is the last of the file.
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
