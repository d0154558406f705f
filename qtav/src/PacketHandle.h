#pragma once

#include <QtAV/Packet.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/Timeline.h"

namespace QtAV {

/// The FFmpeg packet behind a Packet: what the decoder receives, side data included.
class PacketHandle
{
public:
    explicit PacketHandle(PacketPtr packet)
        : m_packet(std::move(packet))
    {}

    const AVPacket* get() const { return m_packet.get(); }

    /// Wraps a packet that the demuxer read.
    static Packet wrap(PacketPtr source, const Timeline& timeline);

    /// A packet without data that makes a decoder release a frame that it holds.
    static Packet drain(double pts);

    /// The FFmpeg packet of a Packet; null for a drain packet and for a default-constructed one.
    static std::shared_ptr<const PacketHandle> of(const Packet& packet) { return packet.m_handle; }

private:
    PacketPtr m_packet;
};

/// The presentation time in ticks, otherwise the decoding time, otherwise AV_NOPTS_VALUE.
qint64 presentationTicks(const AVPacket& packet);

} // namespace QtAV
