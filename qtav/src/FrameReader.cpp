#include <QtAV/FrameReader.h>

#include <QtAV/Times.h>

#include "qtav/src/Deinterlacer.h"
#include "qtav/src/Interruptible.h"
#include "qtav/src/StreamParameters.h"
#include "qtav/src/VideoFramePrivate.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

QVariantHash decoderOptions(bool skips, bool hurries)
{
    const int discard = skips ? VideoDecoder::DiscardNonReference : VideoDecoder::DiscardDefault;
    return {
        {QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("skip_frame"), discard}}},
        {QStringLiteral("start"), QVariantHash{{QStringLiteral("key_frame_at_once"), hurries}}}};
}

bool isMarkedInterlaced(const StreamParameters& parameters)
{
    switch (parameters.codec->field_order) {
    case AV_FIELD_TT:
    case AV_FIELD_BB:
    case AV_FIELD_TB:
    case AV_FIELD_BT:
        return true;
    default:
        return false;
    }
}

} // namespace

FrameReader::FrameReader() = default;
FrameReader::~FrameReader() = default;

bool FrameReader::open(const QString& path, const IsCancelled& isCancelled, QString& error)
{
    close();
    const Interruptible interruptible(m_demuxer, isCancelled);
    m_demuxer.setMedia(path);
    m_demuxer.setPictureMemory(m_pictureMemory);
    if (!m_demuxer.load()) {
        error = m_demuxer.errorString();
        return false;
    }
    const VideoCodecContext* context = m_demuxer.videoCodecContext();
    if (!context) {
        error = QCoreApplication::translate("QtAV::AVPlayer", "There is no video in the file.");
        return false;
    }
    m_decoder.reset(VideoDecoder::create("FFmpeg"));
    m_decoder->setCodecContext(context);
    m_decoder->setPictureMemory(m_pictureMemory);
    m_decoder->setDeadline(m_deadline);
    if (!openDecoder()) {
        const QString refusal = m_decoder->errorString();
        error = refusal.isEmpty()
                    ? QCoreApplication::translate("QtAV::AVPlayer", "The video cannot be decoded.")
                    : refusal;
        close();
        return false;
    }
    m_longestGroup = 0;
    m_hasReadGroup = false;
    m_deinterlacer = std::make_shared<Deinterlacer>();
    m_isInterlaced = isMarkedInterlaced(*context->parameters());
    seek(0);
    return true;
}

bool FrameReader::openDecoder()
{
    m_decoderThreads = m_threads;
    m_skips = false;
    m_decoderHurries = true;
    m_decoder->setOptions(
        {{QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("threads"), m_threads}}}});
    return m_decoder->open();
}

void FrameReader::close()
{
    restart();
    m_decoder.reset();
    m_demuxer.unload();
    m_target.reset();
}

void FrameReader::seek(qint64 ms)
{
    restart();
    m_target = ms;
    m_origin = ms;
    m_startedAtZero = ms <= 0;
}

void FrameReader::restart()
{
    m_first = Packet();
    m_ahead.clear();
    m_completeFrom = 0;
    m_skippedUpTo = -1.0;
    m_isLost = false;
    m_resumes = false;
    m_invalidPackets = 0;
    m_landing.reset();
    m_landedOnKeyFrame = false;
    m_last.reset();
    m_lastFrame = VideoFrame();
    m_predecessor.reset();
    m_isInSequence = false;
    m_isAtFirst = false;
    m_isAtLanding = false;
    m_decoded.clear();
    m_newest.reset();
    m_deinterlacing = m_wantedDeinterlacing;
}

FrameResult FrameReader::next(const IsCancelled& isCancelled)
{
    const auto isNeighbourMissing = [this] {
        return m_decoded.size() == 1 && m_decoded.front().result.answer == FrameAnswer::Frame &&
               wantsNeighbours(m_decoded.front().result.frame);
    };
    while (m_decoded.empty() || isNeighbourMissing()) {
        Decoded decoded = decodeNext(isCancelled);
        if (decoded.result.answer == FrameAnswer::Cancelled) {
            return std::move(decoded.result);
        }
        m_decoded.push_back(std::move(decoded));
    }
    Decoded decoded = std::move(m_decoded.front());
    m_decoded.pop_front();
    return give(std::move(decoded));
}

FrameReader::Decoded FrameReader::decodeNext(const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    const Interruptible interruptible(m_demuxer, isCancelled);
    while (answer == FrameAnswer::Frame) {
        Packet packet = std::exchange(m_first, Packet());
        const bool isLanding = packet.isValid();
        if (!isLanding) {
            answer = readPacket(packet, isCancelled);
        }
        if (answer != FrameAnswer::Frame) {
            break;
        }
        chooseSkipping(packet);
        const bool isDecoded = m_decoder->decode(packet);
        // All other pictures are as large.
        const bool isRefused = !isDecoded && !m_decoder->errorString().isEmpty();
        m_isLost = m_isLost || isRefused;
        // A search that misses its first picture starts further back.
        if (!isDecoded && (!isLanding || isRefused)) {
            return {{FrameAnswer::Failed, {}, damageText()}};
        }
        const VideoFrame frame = m_decoder->frame();
        const bool isLater = frame.isValid() && (!m_newest || frame.timestamp() > *m_newest);
        if (isLater) {
            return arrived(frame, isLanding);
        }
    }
    return {{answer, {}, answer == FrameAnswer::Failed ? failureText() : QString()}};
}

FrameResult FrameReader::nextKeyFrame(qint64 beforeMs, const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    const Interruptible interruptible(m_demuxer, isCancelled);
    while (answer == FrameAnswer::Frame) {
        Packet packet = std::exchange(m_first, Packet());
        if (!packet.isValid()) {
            answer = readPacket(packet, isCancelled);
        }
        if (answer != FrameAnswer::Frame) {
            break;
        }
        if (!packet.hasKeyFrame) {
            continue;
        }
        if (toMilliseconds(packet.pts) >= beforeMs) {
            return {FrameAnswer::End, {}, {}};
        }
        // Key frames refer to no other frame. A decoder that gets the next one would expect the
        // frames between them.
        m_decoder->flush();
        const bool isDecoded = m_decoder->decode(packet);
        const VideoFrame frame = m_decoder->frame();
        if (!isDecoded) {
            return {FrameAnswer::Failed, {}, damageText()};
        }
        if (frame.isValid() && (!m_last || frame.timestamp() > *m_last)) {
            m_skippedUpTo = frame.timestamp();
            Decoded decoded = arrived(frame, true);
            decoded.predecessor.reset();
            return give(std::move(decoded));
        }
    }
    return {answer, {}, answer == FrameAnswer::Failed ? failureText() : QString()};
}

QString FrameReader::failureText() const
{
    const QString reason = m_demuxer.errorString();
    return reason.isEmpty()
               ? QCoreApplication::translate("QtAV::AVPlayer", "The file cannot be read any more.")
               : reason;
}

/// Why a picture cannot be decoded.
QString FrameReader::damageText() const
{
    const QString refusal = m_decoder->errorString();
    return refusal.isEmpty()
               ? QCoreApplication::translate("QtAV::AVPlayer", "The picture is damaged.")
               : refusal;
}

void FrameReader::chooseSkipping(const Packet& packet)
{
    const qint64 completeFrom = m_completeFrom - (wantsPredecessors() ? neighbourMs : 0);
    const bool skips = !packet.isDrain() && toMilliseconds(packet.pts) < completeFrom;
    if (skips) {
        m_skippedUpTo = std::max(m_skippedUpTo, packet.pts);
    }
    // Where frames are skipped, the key frame is not shown either.
    const bool hurries = m_keyFrameAtOnce && !skips;
    if (skips == m_skips && hurries == m_decoderHurries) {
        return;
    }
    m_skips = skips;
    m_decoderHurries = hurries;
    m_decoder->setOptions(decoderOptions(skips, hurries));
}

/// A decoded frame with what is known about it.
FrameReader::Decoded FrameReader::arrived(const VideoFrame& frame, bool isLanding)
{
    Decoded decoded{{FrameAnswer::Frame, frame}};
    // After an interruption, reading may begin behind frames that cannot be decoded any more.
    decoded.isInSequence = m_newest && !std::exchange(m_resumes, false);
    if (decoded.isInSequence && *m_newest >= m_skippedUpTo) {
        decoded.predecessor = m_newest;
    }
    decoded.isAtLanding = isLanding;
    decoded.isAtFirst = !m_newest && m_startedAtZero;
    m_newest = frame.timestamp();
    m_isInterlaced = m_isInterlaced || wantsNeighbours(frame);
    return decoded;
}

FrameResult FrameReader::give(Decoded decoded)
{
    if (decoded.result.answer != FrameAnswer::Frame) {
        return std::move(decoded.result);
    }
    decoded.result.frame = withNeighbours(decoded);
    m_predecessor = decoded.predecessor;
    m_isInSequence = decoded.isInSequence;
    m_isAtLanding = decoded.isAtLanding;
    m_isAtFirst = decoded.isAtFirst;
    m_lastFrame = decoded.result.frame;
    m_last = m_lastFrame.timestamp();
    return std::move(decoded.result);
}

bool FrameReader::wantsPredecessors() const
{
    return m_isInterlaced && m_wantedDeinterlacing != Deinterlacing::Off;
}

bool FrameReader::wantsNeighbours(const VideoFrame& frame) const
{
    return Deinterlacer::mayTake(*VideoFramePrivate::of(frame)->frame, m_deinterlacing);
}

/// The frame with its neighbouring pictures, as far as it needs them and they are known.
VideoFrame FrameReader::withNeighbours(const Decoded& decoded) const
{
    const VideoFrame& frame = decoded.result.frame;
    if (!wantsNeighbours(frame)) {
        return frame;
    }
    const bool isBeforeKnown = decoded.predecessor && decoded.predecessor == m_last;
    const bool isAfterKnown =
        !m_decoded.empty() && m_decoded.front().predecessor == frame.timestamp();
    return VideoFrame(new VideoFramePrivate(
        *VideoFramePrivate::of(frame), isBeforeKnown ? m_lastFrame : VideoFrame(),
        isAfterKnown ? m_decoded.front().result.frame : VideoFrame(),
        {m_deinterlacing, m_deinterlacer}));
}

} // namespace QtAV
