#pragma once

#include "tests/support/Samples.h"

#include <QtAV/AVDemuxer.h>
#include <QtAV/VideoDecoder.h>

#include <QList>

#include <memory>
#include <optional>

/// What several tests of the video library do with a demuxer and a decoder.
namespace decoding {

/// For what nobody cancels.
inline bool never()
{
    return false;
}

/// A frame that came out: the number in its picture and its whole milliseconds.
struct Shown
{
    int number;
    qint64 ms;

    bool operator==(const Shown& other) const { return number == other.number && ms == other.ms; }
};

/// "frame 5 at 200 ms", for messages and comparisons.
[[nodiscard]] QString text(const Shown& shown);

/// The same for the messages of failed comparisons.
char* toString(const Shown& shown);

/// An open file with a decoder for its selected video stream.
class Player
{
public:
    /// @param threads  how many decode; 0 = as many as there are cores.
    explicit Player(const QString& path, int threads = 0);

    [[nodiscard]] bool isReady() const { return m_ready; }

    /// Reads up to the next packet of the video stream; nothing at the end.
    [[nodiscard]] std::optional<QtAV::Packet> nextVideoPacket();

    /// All frames from here to the end. A number of -1 stands for a picture without a readable one.
    [[nodiscard]] QList<Shown> showRest();

    /// Decodes a key packet as the callers of the library do: at most twice.
    [[nodiscard]] QtAV::VideoFrame decodeKeyFrame(const QtAV::Packet& packet);

    QtAV::AVDemuxer demuxer;
    std::unique_ptr<QtAV::VideoDecoder> decoder;

private:
    bool m_ready = false;
};

[[nodiscard]] Shown shown(const QtAV::VideoFrame& frame);

/// What the n-th shown frame of a sample, counted from 0, must be.
[[nodiscard]] Shown expected(const testsupport::Sample& sample, int n);

/// What must come out from the n-th shown frame of a sample on.
[[nodiscard]] QList<Shown> expectedFrom(const testsupport::Sample& sample, int n);

} // namespace decoding
