#include "video/FrameGrabber.h"

#include <QDebug>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint32 defaultPrecision = 500;
constexpr qint32 shortVideoPrecision = 250;
constexpr qint64 longestShortVideo = 9999;
/// Further away from 0 than any precision chosen here, so that the first setPosition() counts.
constexpr qint64 startPosition = -1000;

constexpr int keyFrameAttempts = 2;

// FFmpeg's AVDiscard values.
constexpr int discardDefault = 0;
constexpr int discardNonReference = 8;

QVariantHash decoderOptions(int discard)
{
    const QVariantHash codec{{QStringLiteral("skip_frame"), discard},
                             {QStringLiteral("skip_loop_filter"), discard}};
    return {{QStringLiteral("avcodec"), codec}};
}

qint64 toMilliseconds(double seconds)
{
    return static_cast<qint64>(seconds * 1000.0);
}

/// How far apart two positions are; no two are too far apart for it.
quint64 distance(qint64 a, qint64 b)
{
    const auto [low, high] = std::minmax(a, b);
    return static_cast<quint64>(high) - static_cast<quint64>(low);
}

} // namespace

/// What one extraction knows while it runs.
struct FrameGrabber::Extraction
{
    /// Target in milliseconds.
    qint64 value;
    /// Tolerance in milliseconds.
    qint32 range;
    int videoStream = -1;
    QtAV::Packet packet = {};
    /// Time of the first packet after the seek in milliseconds; -1 before it was read.
    qint64 firstPts = -1;
    bool warnOutOfRange = true;
    bool warnBadSeek = true;
    /// The decoder options in force.
    const QVariantHash* options = nullptr;
    QString err = QStringLiteral("");
    bool aborted = false;

    bool fail(const QString& reason)
    {
        err = reason;
        return false;
    }
};

FrameGrabber::FrameGrabber(QObject* parent)
    : QObject(parent)
    , m_position(startPosition)
    , m_precision(defaultPrecision)
    , m_decoderNames{QStringLiteral("FFmpeg")}
    , m_droppingOptions(decoderOptions(discardNonReference))
    , m_normalOptions(decoderOptions(discardDefault))
{}

FrameGrabber::~FrameGrabber()
{
    releaseResourceInternal(true);
}

void FrameGrabber::setSource(const QString& url)
{
    if (url == m_source) {
        return;
    }
    m_source = url;
    m_hasVideo = true;
    Q_EMIT sourceChanged();
    releaseResourceInternal(true);
}

qint64 FrameGrabber::getDuration()
{
    // What could not be opened has the duration 0: the caller needs no second answer.
    static_cast<void>(checkAndOpen());
    return m_demuxer.duration();
}

void FrameGrabber::setPosition(qint64 value)
{
    if (!m_hasVideo || distance(value, m_position) < static_cast<quint64>(m_precision)) {
        return;
    }
    m_position = value;
    Q_EMIT positionChanged();
}

void FrameGrabber::setPrecision(int value)
{
    if (value == m_precision) {
        return;
    }
    m_autoPrecision = value < 0;
    if (!m_autoPrecision) {
        m_precision = value;
    }
    Q_EMIT precisionChanged();
}

void FrameGrabber::abort()
{
    m_abort = true;
}

void FrameGrabber::safeReleaseResource()
{
    releaseResourceInternal(true);
}

void FrameGrabber::releaseResourceInternal(bool releaseFrame)
{
    if (releaseFrame) {
        m_frame = QtAV::VideoFrame();
    }
    m_seekCount = 0;
    m_decoder.reset();
    m_demuxer.unload();
}

bool FrameGrabber::isLoaded() const
{
    return m_demuxer.isLoaded() && m_demuxer.fileName() == m_source;
}

bool FrameGrabber::loadSource()
{
    m_demuxer.unload();
    m_demuxer.setMedia(m_source);
    return m_demuxer.load();
}

bool FrameGrabber::checkAndOpen()
{
    const bool loaded = isLoaded();
    if (loaded && m_decoder) {
        return true;
    }
    m_seekCount = 0;
    m_decoder.reset();
    const bool usable = loaded && !m_demuxer.atEnd();
    if (!usable && !loadSource()) {
        return false;
    }
    m_hasVideo = !m_demuxer.videoStreams().isEmpty();
    if (!m_hasVideo) {
        m_demuxer.unload();
        return false;
    }
    return openDecoder();
}

bool FrameGrabber::openDecoder()
{
    if (m_decoderNames.isEmpty()) {
        return false;
    }
    if (m_autoPrecision) {
        m_precision =
            m_demuxer.duration() > longestShortVideo ? defaultPrecision : shortVideoPrecision;
    }
    m_demuxer.setStreamIndex(QtAV::AVDemuxer::VideoStream, 0);
    for (const QString& name : qAsConst(m_decoderNames)) {
        m_decoder = makeDecoder(name);
        if (m_decoder) {
            return true;
        }
    }
    return false;
}

std::unique_ptr<QtAV::VideoDecoder> FrameGrabber::makeDecoder(const QString& name) const
{
    std::unique_ptr<QtAV::VideoDecoder> decoder(
        QtAV::VideoDecoder::create(name.toUtf8().constData()));
    const QtAV::VideoCodecContext* const context = m_demuxer.videoCodecContext();
    if (!decoder || context == nullptr) {
        return nullptr;
    }
    decoder->setCodecContext(context);
    if (!decoder->open()) {
        return nullptr;
    }
    const QVariantHash vaapi{{QStringLiteral("display"), QStringLiteral("X11")}};
    decoder->setOptions({{QStringLiteral("vaapi"), vaapi}});
    return decoder;
}

void FrameGrabber::extract()
{
    extractInternal(m_position);
}

void FrameGrabber::extractInternal(qint64 pos)
{
    const int precisionBefore = m_precision;
    if (!checkAndOpen()) {
        Q_EMIT error(QStringLiteral("Cannot open file"));
        return;
    }
    if (m_precision != precisionBefore) {
        Q_EMIT precisionChanged();
    }
    QString err;
    bool wasAborted = true;
    if (extractInPrecision(pos, m_precision, err, wasAborted)) {
        Q_EMIT frameExtracted(m_frame);
    } else if (wasAborted) {
        Q_EMIT aborted(QStringLiteral("Abort at position %1: %2").arg(pos).arg(err));
    } else {
        Q_EMIT error(QStringLiteral("Cannot extract frame at position %1: %2").arg(pos).arg(err));
    }
}

bool FrameGrabber::extractInPrecision(qint64 value, int range, QString& err, bool& aborted)
{
    m_abort = false;
    m_frame = QtAV::VideoFrame();
    const qint64 start = m_demuxer.startTime();
    Extraction extraction{value < start ? value + start : value, range};

    const bool ready = readKeyPacket(extraction) && decodeKeyPacket(extraction);
    const bool extracted = ready && (isKeyFrameNearEnough(extraction) || decodeForward(extraction));
    err = extraction.err;
    aborted = extraction.aborted;
    return extracted;
}

/// True, with the reason noted, when abort() was called. `checkpoint` says where that was seen.
bool FrameGrabber::isAbortedAt(Extraction& extraction, const char* checkpoint)
{
    if (!m_abort) {
        return false;
    }
    qDebug("FrameGrabber %s", checkpoint);
    extraction.err = QString::fromLatin1(checkpoint);
    extraction.aborted = true;
    return true;
}

/// Reads one packet; false when that failed or gave one of another stream.
bool FrameGrabber::readVideoPacket(const Extraction& extraction)
{
    return m_demuxer.readFrame() && m_demuxer.stream() == extraction.videoStream;
}

/// Seeks and reads up to the first key frame's packet.
bool FrameGrabber::readKeyPacket(Extraction& extraction)
{
    // What the seek could not do shows in the packets that follow.
    m_demuxer.seek(extraction.value);
    extraction.videoStream = m_demuxer.videoStream();
    while (!m_demuxer.atEnd()) {
        if (isAbortedAt(extraction, "abort seek before read")) {
            return false;
        }
        if (!readVideoPacket(extraction)) {
            continue;
        }
        extraction.packet = m_demuxer.packet();
        const qint64 packetTime = toMilliseconds(extraction.packet.pts);
        if (extraction.firstPts < 0) {
            extraction.firstPts = packetTime;
        }
        if (packetTime - extraction.value > extraction.range && extraction.warnOutOfRange) {
            extraction.warnOutOfRange = false;
            qDebug("read packet out of range");
        }
        if (extraction.packet.hasKeyFrame) {
            break;
        }
        if (extraction.warnBadSeek) {
            extraction.warnBadSeek = false;
            qWarning("Not seek to key frame!!!");
        }
    }
    enlargeRange(extraction);
    if (!extraction.packet.isValid()) {
        qWarning("FrameGrabber failed to get a packet at %lld", extraction.value);
        return extraction.fail(
            QStringLiteral("failed to get a packet at %1").arg(extraction.value));
    }
    return true;
}

/// Where the seek did not land on a key frame, no frame nearer than the key frame found can come
/// out: that one has to do.
void FrameGrabber::enlargeRange(Extraction& extraction) const
{
    const qint64 keyTime = toMilliseconds(extraction.packet.pts);
    if (extraction.firstPts < 0 || keyTime <= extraction.firstPts) {
        return;
    }
    extraction.range =
        static_cast<qint32>(std::max<qint64>(extraction.range, keyTime - extraction.value));
    qDebug("enlarge range ==>>>> %d", extraction.range);
}

/// Decodes the key frame's packet; no frame coming out is no failure, being aborted is.
bool FrameGrabber::decodeKeyPacket(Extraction& extraction)
{
    // The frames that the decoder still holds are those of the last extraction.
    m_decoder->flush();
    m_decoder->setOptions(m_normalOptions);
    extraction.options = &m_normalOptions;
    for (int attempt = 0; attempt < keyFrameAttempts && !m_frame.isValid(); ++attempt) {
        if (isAbortedAt(extraction, "abort seek before decoding key frames")) {
            return false;
        }
        if (m_decoder->decode(extraction.packet)) {
            m_frame = m_decoder->frame();
        }
    }
    return true;
}

/// The key frame will do on either side of the target.
bool FrameGrabber::isKeyFrameNearEnough(const Extraction& extraction) const
{
    const auto frameTime = static_cast<quint32>(toMilliseconds(m_frame.timestamp()));
    const auto diff = static_cast<qint32>(frameTime - static_cast<quint32>(extraction.value));
    if (!m_frame.isValid() || std::abs(static_cast<qint64>(diff)) > extraction.range) {
        return false;
    }
    qDebug().noquote().nospace() << "FrameGrabber: key frame found @" << m_frame.timestamp()
                                 << " diff=" << diff << ". format: " << m_frame.format();
    return true;
}

/// Decodes to the first frame at or after the target and within tolerance, or to the end.
bool FrameGrabber::decodeForward(Extraction& extraction)
{
    ForwardStep step = ForwardStep::GoOn;
    while (step == ForwardStep::GoOn && !m_demuxer.atEnd()) {
        if (isAbortedAt(extraction, "abort seek after key frame before read")) {
            return false;
        }
        step = decodeNextPacket(extraction);
    }
    if (step == ForwardStep::Failed) {
        return false;
    }
    ++m_seekCount;
    closeAtEnd();
    return true;
}

FrameGrabber::ForwardStep FrameGrabber::decodeNextPacket(Extraction& extraction)
{
    if (!readVideoPacket(extraction)) {
        return ForwardStep::GoOn;
    }
    extraction.packet = m_demuxer.packet();
    if (!extraction.packet.isValid()) {
        qWarning("invalid packet. no decode");
        return ForwardStep::GoOn;
    }
    chooseOptions(extraction);
    if (!m_decoder->decode(extraction.packet)) {
        qWarning("!!!!!!!!!decode failed!!!!");
        m_frame = QtAV::VideoFrame();
        extraction.err = QStringLiteral("decode failed");
        return ForwardStep::Failed;
    }
    const QtAV::VideoFrame decoded = m_decoder->frame();
    if (!decoded.isValid()) {
        return ForwardStep::GoOn;
    }
    m_frame = decoded;
    return judgeFrame(extraction);
}

/// Before the target, later extractions decode only the frames that others need; the first one
/// after opening decodes all.
void FrameGrabber::chooseOptions(Extraction& extraction)
{
    const bool dropping =
        m_seekCount != 0 && toMilliseconds(extraction.packet.pts) < extraction.value;
    const QVariantHash* const options = dropping ? &m_droppingOptions : &m_normalOptions;
    if (options != extraction.options) {
        m_decoder->setOptions(*options);
        extraction.options = options;
    }
}

FrameGrabber::ForwardStep FrameGrabber::judgeFrame(Extraction& extraction)
{
    const double pts = m_frame.timestamp();
    const qint64 diff = toMilliseconds(pts) - extraction.value;
    if (diff < 0) {
        return ForwardStep::GoOn;
    }
    if (diff <= extraction.range) {
        qDebug("got frame at %fs, diff=%lld", pts, diff);
        return ForwardStep::Found;
    }
    if (pts < extraction.packet.pts) {
        extraction.err = QStringLiteral("out pts out of range. diff=%1, range=%2")
                             .arg(diff)
                             .arg(extraction.range);
        qWarning("%s", qUtf8Printable(extraction.err));
        m_frame = QtAV::VideoFrame();
        return ForwardStep::Failed;
    }
    return ForwardStep::GoOn;
}

/// A decoder that was drained at the end takes no more packets: the next extraction opens anew.
void FrameGrabber::closeAtEnd()
{
    if (m_demuxer.atEnd()) {
        m_seekCount = 0;
        m_decoder.reset();
        m_demuxer.unload();
    }
}
