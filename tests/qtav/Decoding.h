#pragma once

#include "tests/support/Samples.h"

#include <QtAV/AVDemuxer.h>
#include <QtAV/VideoDecoder.h>

#include <QList>

#include <memory>
#include <optional>

/// Helpers for tests of the video library with a demuxer and a decoder.
namespace decoding {

/// A cancellation test for operations that are never cancelled.
inline bool never()
{
    return false;
}

/// A decoded frame: the number in its picture and its whole milliseconds.
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
    /// @param threads  number of decoding threads; 0 = one per core.
    explicit Player(const QString& path, int threads = 0);

    [[nodiscard]] bool isReady() const { return m_ready; }

    /// Reads up to the next packet of the video stream; nothing at the end.
    [[nodiscard]] std::optional<QtAV::Packet> nextVideoPacket();

    /// All frames from here to the end. A number of -1 means that it is unreadable.
    [[nodiscard]] QList<Shown> showRest();

    /// Decodes a key packet as the users of the library do: at most twice.
    [[nodiscard]] QtAV::VideoFrame decodeKeyFrame(const QtAV::Packet& packet);

    QtAV::AVDemuxer demuxer;
    std::unique_ptr<QtAV::VideoDecoder> decoder;

private:
    bool m_ready = false;
};

[[nodiscard]] Shown shown(const QtAV::VideoFrame& frame);

/// What the n-th shown frame of a sample, counted from 0, must be.
[[nodiscard]] Shown expected(const testsupport::Sample& sample, int n);

/// The expected frames from the n-th shown frame of a sample on.
[[nodiscard]] QList<Shown> expectedFrom(const testsupport::Sample& sample, int n);

} // namespace decoding
