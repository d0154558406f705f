#include <QtAV/Packet.h>

#include "qtav/src/PacketHandle.h"

namespace QtAV {

Packet::Packet() = default;
Packet::~Packet() = default;
Packet::Packet(const Packet&) = default;
Packet::Packet(Packet&&) noexcept = default;
Packet& Packet::operator=(const Packet&) = default;
Packet& Packet::operator=(Packet&&) noexcept = default;

bool Packet::isValid() const
{
    return !isCorrupt && (m_drain || !data.isEmpty()) && pts >= 0.0 && duration >= 0.0;
}

Packet PacketHandle::wrap(PacketPtr source, const Timeline& timeline)
{
    Packet packet;
    packet.pts = timeline.seconds(presentationTicks(*source));
    packet.duration = timeline.lengthSeconds(std::max<qint64>(0, source->duration));
    packet.hasKeyFrame = source->flags & AV_PKT_FLAG_KEY;
    packet.isCorrupt = source->flags & AV_PKT_FLAG_CORRUPT;
    packet.isHidden = source->flags & AV_PKT_FLAG_DISCARD;
    packet.data = QByteArray(reinterpret_cast<const char*>(source->data), source->size);
    packet.m_handle = std::make_shared<const PacketHandle>(std::move(source));
    return packet;
}

Packet PacketHandle::drain(double pts)
{
    Packet packet;
    packet.pts = pts;
    packet.m_drain = true;
    return packet;
}

qint64 presentationTicks(const AVPacket& packet)
{
    return packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
}

} // namespace QtAV
