#pragma once

#include <QByteArray>

#include <memory>

namespace QtAV {

class PacketHandle;

/// One piece of compressed data as the demuxer read it; for video, the data of one picture.
///
/// A value: cheap to copy, and may be passed to another thread. The times are in seconds on the
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

    /// True for a packet that can be passed to a decoder: not corrupt, with data, and with no
    /// negative time or duration. Drain packets at the end of a file are valid; a
    /// default-constructed packet is not.
    bool isValid() const;

    /// True for the packets at the end of a file that carry no data and each make the decoder
    /// release one picture that it holds.
    bool isDrain() const { return m_drain; }

    /// Presentation time in seconds, 0 or more; -1 in a default-constructed packet.
    double pts = -1.0;
    /// How long the picture is shown, in seconds; 0 if the file does not state it.
    double duration = 0.0;
    /// Decoding can start here.
    bool hasKeyFrame = false;
    /// The container says that the data is damaged.
    bool isCorrupt = false;
    /// The picture must be decoded, because others refer to it, but an edit list hides it.
    bool isHidden = false;
    /// The compressed data; empty in a drain packet.
    QByteArray data;

private:
    friend class PacketHandle;
    std::shared_ptr<const PacketHandle> m_handle;
    bool m_drain = false;
};

} // namespace QtAV
