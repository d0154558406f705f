#include "qtav/player/VideoCursor.h"

#include "qtav/player/Times.h"

#include <QCoreApplication>

#include <algorithm>

namespace QtAV {

namespace {

// FFmpeg's AVDiscard values.
constexpr int DiscardDefault = 0;
constexpr int DiscardNonReference = 8;

/// Where frames are left out, the key frame is not looked at either: it need not come out early.
QVariantHash decoderOptions(bool skips)
{
    const int discard = skips ? DiscardNonReference : DiscardDefault;
    return {{QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("skip_frame"), discard}}},
            {QStringLiteral("start"), QVariantHash{{QStringLiteral("key_frame_at_once"), !skips}}}};
}

} // namespace

bool VideoCursor::open(const QString& path, QString& error)
{
    close();
    m_demuxer.setMedia(path);
    if (!m_demuxer.load()) {
        error = m_demuxer.errorString();
        return false;
    }
    const VideoCodecContext* context = m_demuxer.videoCodecContext();
    if (!context) {
        error = QCoreApplication::translate("QtAV::AVPlayer", "There is no video in the file.");
        close();
        return false;
    }
    m_decoder.reset(VideoDecoder::create("FFmpeg"));
    m_decoder->setCodecContext(context);
    if (!m_decoder->open()) {
        error = QCoreApplication::translate("QtAV::AVPlayer", "The video cannot be decoded.");
        close();
        return false;
    }
    seek(0);
    return true;
}

void VideoCursor::close()
{
    m_decoder.reset();
    m_demuxer.unload();
    m_landing.reset();
    m_last.reset();
}

void VideoCursor::seek(qint64 ms)
{
    // What a seek could not do shows in the packets that follow.
    static_cast<void>(m_demuxer.seek(ms));
    m_decoder->flush();
    m_completeFrom = 0;
    m_leftOutUpTo = -1.0;
    m_startedAtZero = ms <= 0;
    m_landing.reset();
    m_last.reset();
}

VideoCursor::Step VideoCursor::next(const IsCancelled& isCancelled)
{
    while (!m_demuxer.atEnd()) {
        if (isCancelled())
            return {Step::Kind::Cancelled};
        if (!m_demuxer.readFrame() || m_demuxer.stream() != m_demuxer.videoStream())
            continue;
        const Packet packet = m_demuxer.packet();
        if (!packet.isValid())
            continue;
        if (!m_landing)
            m_landing = packet.pts;
        chooseSkipping(packet);
        if (!m_decoder->decode(packet))
            continue;
        const VideoFrame frame = m_decoder->frame();
        const bool isLater = frame.isValid() && (!m_last || frame.timestamp() > *m_last);
        if (isLater)
            return stepTo(frame);
    }
    return {Step::Kind::End};
}

void VideoCursor::chooseSkipping(const Packet& packet)
{
    const bool skips = !packet.isDrain() && toMilliseconds(packet.pts) < m_completeFrom;
    if (skips)
        m_leftOutUpTo = std::max(m_leftOutUpTo, packet.pts);
    if (skips == m_skips)
        return;
    m_skips = skips;
    m_decoder->setOptions(decoderOptions(skips));
}

VideoCursor::Step VideoCursor::stepTo(const VideoFrame& frame)
{
    Step step{Step::Kind::Frame, frame};
    if (m_last && *m_last >= m_leftOutUpTo)
        step.predecessor = m_last;
    step.isFirstOfVideo = !m_last && m_startedAtZero;
    m_last = frame.timestamp();
    return step;
}

} // namespace QtAV
