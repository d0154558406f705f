#include "tests/qtav/Decoding.h"

#include "tests/support/FrameNumber.h"

#include <QTest>

namespace decoding {

QString text(const Shown& shown)
{
    const QString number = shown.number < 0 ? QStringLiteral("an unreadable frame")
                                            : QStringLiteral("frame %1").arg(shown.number);
    return QStringLiteral("%1 at %2 ms").arg(number).arg(shown.ms);
}

char* toString(const Shown& shown)
{
    return QTest::toString(text(shown));
}

Player::Player(const QString& path, int threads)
    : decoder(QtAV::VideoDecoder::create("FFmpeg"))
{
    demuxer.setMedia(path);
    if (!demuxer.load()) {
        return;
    }
    decoder->setCodecContext(demuxer.videoCodecContext());
    decoder->setOptions(
        {{QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("threads"), threads}}}});
    m_ready = decoder->open();
}

std::optional<QtAV::Packet> Player::nextVideoPacket()
{
    while (!demuxer.atEnd()) {
        if (demuxer.readFrame() && demuxer.stream() == demuxer.videoStream()) {
            return demuxer.packet();
        }
    }
    return std::nullopt;
}

QList<Shown> Player::showRest()
{
    QList<Shown> all;
    while (const auto packet = nextVideoPacket()) {
        if (!decoder->decode(*packet)) {
            continue;
        }
        const QtAV::VideoFrame frame = decoder->frame();
        if (frame.isValid()) {
            all.append(shown(frame));
        }
    }
    return all;
}

QtAV::VideoFrame Player::decodeKeyFrame(const QtAV::Packet& packet)
{
    QtAV::VideoFrame frame;
    for (int attempt = 0; attempt < 2 && !frame.isValid(); ++attempt) {
        if (decoder->decode(packet)) {
            frame = decoder->frame();
        }
    }
    return frame;
}

Shown shown(const QtAV::VideoFrame& frame)
{
    const std::optional<int> number = testsupport::frameNumber(frame.toImage());
    return {number.value_or(-1), static_cast<qint64>(frame.timestamp() * 1000.0)};
}

Shown expected(const testsupport::Sample& sample, int n)
{
    return {sample.firstNumber + n, testsupport::frameTimeMs(sample, n)};
}

QList<Shown> expectedFrom(const testsupport::Sample& sample, int n)
{
    QList<Shown> all;
    for (int i = n; i < sample.frames; ++i) {
        all.append(expected(sample, i));
    }
    return all;
}

} // namespace decoding
