#pragma once

#include <QtAV/Packet.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/Timeline.h"

namespace QtAV {

/// The FFmpeg packet behind a Packet: what the decoder is given, side data included.
class PacketHandle
{
public:
    explicit PacketHandle(PacketPtr packet)
        : m_packet(std::move(packet))
    {}

    const AVPacket* get() const { return m_packet.get(); }

    /// The Packet for what the demuxer read.
    static Packet wrap(PacketPtr source, const Timeline& timeline);

    /// A packet that carries nothing and makes a decoder hand out a held frame.
    static Packet drain(double pts);

    /// The FFmpeg packet of a Packet; null for a drain packet and for one that was never read.
    static std::shared_ptr<const PacketHandle> of(const Packet& packet) { return packet.m_handle; }

private:
    PacketPtr m_packet;
};

/// The presentation time in ticks, or the decoding time where there is none; AV_NOPTS_VALUE where
/// there is neither.
qint64 presentationTicks(const AVPacket& packet);

} // namespace QtAV
