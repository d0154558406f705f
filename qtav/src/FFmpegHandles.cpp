#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

namespace QtAV {

PacketPtr makePacket()
{
    PacketPtr packet(av_packet_alloc());
    Q_CHECK_PTR(packet.get());
    return packet;
}

FramePtr makeFrame()
{
    FramePtr frame(av_frame_alloc());
    Q_CHECK_PTR(frame.get());
    return frame;
}

} // namespace QtAV
