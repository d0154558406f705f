#pragma once

#include "qtav/player/FrameSource.h"

#include "tests/qtav/Decoding.h"

#include <QString>

/// A source for a video whose key frames are 250 frames apart, and the frame on screen.
struct LongGroups
{
    explicit LongGroups(qint64 ms, qint64 cacheBytes = QtAV::FrameCache::defaultBytes)
    {
        QString error;
        source.setScreen({80, 60});
        if (!source.open(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")), cacheBytes,
                         decoding::never, error)) {
            qFatal("%s", qPrintable(error));
        }
        show(source.frameAt(ms, decoding::never));
    }

    void show(const QtAV::FrameResult& found)
    {
        frame = found.frame;
        source.setFocus(frame.timestamp());
    }

    /// Steps once and counts the packets that are read for it.
    QtAV::FrameResult
    step(QtAV::FrameResult (QtAV::FrameSource::*direction)(double, const QtAV::IsCancelled&))
    {
        packets = 0;
        const QtAV::FrameResult found = (source.*direction)(frame.timestamp(), [this] {
            ++packets;
            return false;
        });
        if (found.answer == QtAV::FrameAnswer::Frame) {
            show(found);
        }
        return found;
    }

    /// Fills the cache until it is complete or `mostPackets` packets have been read.
    void fill(int mostPackets = 1000000,
              QtAV::FrameSource::Rest rest = QtAV::FrameSource::longestRest)
    {
        packets = 0;
        const auto enough = [this, mostPackets] { return packets == mostPackets || ++packets < 0; };
        while (packets < mostPackets && source.prepare(rest, enough)) {
        }
    }

    /// Fills as much as the pause between two steps allows.
    void fillShortly() { fill(1000000, QtAV::FrameSource::Rest(100)); }

    QtAV::FrameSource source;
    QtAV::VideoFrame frame;
    int packets = 0;
};
