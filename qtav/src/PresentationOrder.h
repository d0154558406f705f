#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <deque>
#include <set>
#include <vector>

namespace QtAV {

/// Gives the packets of a stream presentation times if the container has none.
///
/// AVI and raw streams store pictures in decoding order and number them in that order, although
/// codecs with B-frames show them in another. The n-th picture shown gets the n-th of those times.
/// Program streams give a time only to the first picture that begins in each of their own packets:
/// a picture without a time is shown when its predecessor ends. If such a packet begins between the
/// headers of a key picture and the picture itself, programs disagree about which picture the time
/// belongs to: a key picture's own time must fit those of its neighbours.
///
/// The presentation order follows from the bitstream: from the picture order count if the codec has
/// one, otherwise from the picture types (a B-picture is shown at once, any other after the
/// B-pictures that follow it).
///
/// push() packets in decoding order, starting at a key frame, and pop() them in the same order. A
/// packet comes out as soon as its time is certain, a few packets later. Everything before a key
/// frame is shown before the pictures that follow it, so the times do not depend on where decoding
/// starts.
class PresentationOrder
{
public:
    enum class Times {
        OfDecoding, ///< no packet has a presentation time, all have a decoding time
        WithGaps,   ///< some packets have a presentation time
    };

    /// @param reorderDelay how many pictures the codec may hold back, as measured by FFmpeg.
    /// @param timeBase     the length of a tick, in seconds.
    PresentationOrder(const AVCodecParameters& codec, int reorderDelay, Times times,
                      AVRational timeBase);

    /// Adds a packet.
    /// @param frameTicks  duration of its picture in ticks, unless the packet states it.
    void push(PacketPtr packet, qint64 frameTicks);

    /// Ends the input: all packets held are certain now.
    void finish();

    /// Drops all packets held, for a new start at another key frame.
    void reset();

    /// The next packet, with its presentation time set; null if none is certain yet.
    PacketPtr pop();

private:
    struct Held
    {
        PacketPtr packet;
        bool certain = false;
    };

    /// A picture waiting for its turn, sorted by order count, then by position in decoding order.
    struct Waiting
    {
        qint64 order;
        quint64 place;
        qint64 ticks;      ///< its own presentation time; AV_NOPTS_VALUE if it has none
        qint64 frameTicks; ///< its duration
        bool isKey;
        bool operator<(const Waiting& other) const
        {
            return order != other.order ? order < other.order : place < other.place;
        }
    };

    void parse(const AVPacket& packet);
    qint64 shownTicks(const AVPacket& packet, qint64 frameTicks) const;
    void placeByOrderCount(Waiting picture);
    void placeByPictureType(Waiting picture);
    void showNext();
    void showAll();
    void time(const Waiting& picture);
    void timeUnplaced(const Waiting& known);
    void giveUpUnplaced();
    void settle(quint64 place, qint64 ticks);

    ParserPtr m_parser;
    CodecContextPtr m_context;
    AVCodecID m_codec;
    AVRational m_timeBase;
    Times m_mode;
    bool m_hasOrderCount;
    size_t m_reorderDelay;

    std::deque<Held> m_held;
    quint64 m_firstPlace = 0;   ///< position of m_held's front in decoding order
    std::deque<qint64> m_times; ///< decoding times not assigned yet, in order
    std::set<Waiting> m_waiting;
    qint64 m_highestOrder = 0;
    qint64 m_nextTicks = AV_NOPTS_VALUE; ///< end of the picture shown last
    std::vector<Waiting> m_unplaced;     ///< already shown, in order, before a time is certain
};

} // namespace QtAV
