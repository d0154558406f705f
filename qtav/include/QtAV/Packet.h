#pragma once

#include <QByteArray>

#include <memory>

namespace QtAV {

class PacketHandle;

/// One piece of compressed data as the demuxer read it: for video, what one picture is made of.
///
/// A value: cheap to copy, free to hand to another thread. The times are in seconds on the
/// library's timeline, which starts at 0 where the file starts.
class Packet
{
public:
    Packet();
    ~Packet();
    Packet(const Packet&);
    Packet(Packet&&) noexcept;
    Packet& operator=(const Packet&);
    Packet& operator=(Packet&&) noexcept;

    /// True for a packet that a decoder can be given: not corrupt, with data, and with neither a
    /// negative time nor a negative duration. A packet that was never read is not valid; the
    /// drain packets at the end of a file are.
    bool isValid() const;

    /// True for the packets at the end of a file that carry no data of their own and make the
    /// decoder hand out one held picture each.
    bool isDrain() const { return m_drain; }

    /// The presentation time in seconds, 0 or more; -1 in a packet that was never read.
    double pts = -1.0;
    /// How long the picture is shown, in seconds; 0 where the file does not say.
    double duration = 0.0;
    /// Decoding can start here.
    bool hasKeyFrame = false;
    /// The container says that the data is damaged.
    bool isCorrupt = false;
    /// The compressed data; empty in a drain packet.
    QByteArray data;

private:
    friend class PacketHandle;
    std::shared_ptr<const PacketHandle> m_handle;
    bool m_drain = false;
};

} // namespace QtAV
