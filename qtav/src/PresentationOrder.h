#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <deque>
#include <set>
#include <vector>

namespace QtAV {

/// Gives the packets of a stream presentation times where the container has none.
///
/// AVI and raw streams store pictures in decoding order and number them in that order, although
/// codecs with B-frames show them in another. The n-th picture shown belongs at the n-th of those
/// times. Program streams time only the first picture that begins in each of their own packets: a
/// picture without a time is shown as long after the one shown before it as that lasts. Where such
/// a packet begins between the headers of a key picture and the picture itself, programs do not
/// agree whose time it bears: a key picture's own time must fit those of its neighbours.
///
/// What is shown when follows from the bitstream: from the picture order count where the codec has
/// one, else from the picture types (a B-picture is shown at once, any other after the B-pictures
/// that follow it).
///
/// push() packets in decoding order, starting at a key frame, and pop() them in the same order;
/// a packet comes out as soon as its time is certain, a few packets later. Since everything
/// before a key frame is shown before the pictures that follow it, the times are the same
/// wherever one starts.
class PresentationOrder
{
public:
    enum class Times {
        OfDecoding, ///< no packet has a presentation time, all have a decoding time
        WithGaps,   ///< some packets have a presentation time
    };

    /// @param reorderDelay how many pictures the codec may hold back, as FFmpeg measured it.
    /// @param timeBase     the length of a tick, in seconds.
    PresentationOrder(const AVCodecParameters& codec, int reorderDelay, Times times,
                      AVRational timeBase);

    /// Takes a packet.
    /// @param frameTicks  how long its picture is shown, in ticks, unless it says so itself.
    void push(PacketPtr packet, qint64 frameTicks);

    /// No more packets will come: all that are held are certain now.
    void finish();

    /// Forgets everything that is held, for a new start at another key frame.
    void reset();

    /// The next packet, its presentation time set; null when none is certain yet.
    PacketPtr pop();

private:
    struct Held
    {
        PacketPtr packet;
        bool certain = false;
    };

    /// A picture that waits for its turn: by order count, then by the place in decoding order.
    struct Waiting
    {
        qint64 order;
        quint64 place;
        qint64 ticks;      ///< its own presentation time; AV_NOPTS_VALUE without one
        qint64 frameTicks; ///< how long it is shown
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
    quint64 m_firstPlace = 0;   ///< the place of m_held's front in decoding order
    std::deque<qint64> m_times; ///< the decoding times not yet given away, in order
    std::set<Waiting> m_waiting;
    qint64 m_highestOrder = 0;
    qint64 m_nextTicks = AV_NOPTS_VALUE; ///< when the picture shown last is over
    std::vector<Waiting> m_unplaced;     ///< shown already, in order, before a time is certain
};

} // namespace QtAV
