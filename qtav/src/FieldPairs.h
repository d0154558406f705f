#pragma once

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/NalUnits.h"

#include <QtGlobal>

#include <deque>

namespace QtAV {

/// Joins the two fields of an H.264 frame if each comes in a packet of its own, as FFmpeg delivers
/// those of transport and raw streams. The decoder makes one picture of both, and none of a single
/// field.
///
/// push() packets in decoding order, starting anywhere, and pop() them in the same order. A first
/// field is held until the next packet shows whether the second one follows; any other packet comes
/// out at once.
class FieldPairs
{
public:
    explicit FieldPairs(const AVCodecParameters& codec);

    /// Adds a packet.
    void push(PacketPtr packet);

    /// Ends the input: a first field that is held comes out alone.
    void finish();

    /// Drops all packets, for a new start elsewhere.
    void reset();

    /// The next packet; null if none is complete. A joined one has the times of its first field and
    /// the duration of both.
    PacketPtr pop();

private:
    /// What the bitstream tells about a packet.
    struct Picture
    {
        bool isField = false;
        bool isLikePrevious = false; ///< a field whose predecessor is of the same frame number and
                                     ///< the other parity
        bool isReference = false;
        bool isKey = false;
        int order = 0; ///< picture order count
    };

    Picture parse(const AVPacket& packet);
    bool isReference(const AVPacket& packet) const;
    bool isSecond(const Picture& picture) const;
    void join(const AVPacket& second);
    void release();

    ParserPtr m_parser;
    CodecContextPtr m_context;
    NalUnits m_units;
    PacketPtr m_first; ///< a field whose second one may follow
    Picture m_firstPicture;
    std::deque<PacketPtr> m_complete;
};

} // namespace QtAV
