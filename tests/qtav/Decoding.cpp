#include "tests/qtav/Decoding.h"

#include "tests/support/FrameNumber.h"

#include <QTest>

namespace decoding {

char* toString(const Shown& shown)
{
    return QTest::toString(QStringLiteral("frame %1 at %2 ms").arg(shown.number).arg(shown.ms));
}

Player::Player(const QString& path, int threads)
    : decoder(QtAV::VideoDecoder::create("FFmpeg"))
{
    demuxer.setMedia(path);
    if (!demuxer.load())
        return;
    decoder->setCodecContext(demuxer.videoCodecContext());
    decoder->setOptions(
        {{QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("threads"), threads}}}});
    m_ready = decoder->open();
}

std::optional<QtAV::Packet> Player::nextVideoPacket()
{
    while (!demuxer.atEnd()) {
        if (demuxer.readFrame() && demuxer.stream() == demuxer.videoStream())
            return demuxer.packet();
    }
    return std::nullopt;
}

QList<Shown> Player::showRest()
{
    QList<Shown> all;
    while (const auto packet = nextVideoPacket()) {
        if (!decoder->decode(*packet))
            continue;
        const QtAV::VideoFrame frame = decoder->frame();
        if (frame.isValid())
            all.append(shown(frame));
    }
    return all;
}

QtAV::VideoFrame Player::decodeKeyFrame(const QtAV::Packet& packet)
{
    QtAV::VideoFrame frame;
    for (int attempt = 0; attempt < 2 && !frame.isValid(); ++attempt) {
        if (decoder->decode(packet))
            frame = decoder->frame();
    }
    return frame;
}

Shown shown(const QtAV::VideoFrame& frame)
{
    const std::optional<int> number = testsupport::frameNumber(frame.toImage());
    return {number.value_or(-1), static_cast<qint64>(frame.timestamp() * 1000.0)};
}

QList<Shown> expectedFrom(const testsupport::Sample& sample, int n)
{
    QList<Shown> all;
    for (int i = n; i < sample.frames; ++i)
        all.append({sample.firstNumber + i, testsupport::frameTimeMs(sample, i)});
    return all;
}

} // namespace decoding
