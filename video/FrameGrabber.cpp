#include "video/FrameGrabber.h"

#include <QtAV/Times.h>

#include <QDebug>

#include <algorithm>
#include <cstdlib>

using QtAV::toMilliseconds;

namespace {

constexpr qint32 defaultPrecision = 500;
constexpr qint32 shortVideoPrecision = 250;
constexpr qint64 longestShortVideo = 9999;
/// Further away from 0 than any precision chosen here, so that the first setPosition() counts.
constexpr qint64 startPosition = -1000;
constexpr qint64 farthestPosition = qint64(1) << 52;

// Where an extraction detected that it was aborted.
constexpr const char* beforeRead = "abort seek before read";
constexpr const char* beforeKeyFrame = "abort seek before decoding key frames";
constexpr const char* afterKeyFrame = "abort seek after key frame before read";

/// Distance of two positions, without overflow.
quint64 distance(qint64 a, qint64 b)
{
    const auto [low, high] = std::minmax(a, b);
    return static_cast<quint64>(high) - static_cast<quint64>(low);
}

} // namespace

/// State of one extraction.
struct FrameGrabber::Extraction
{
    /// Target in milliseconds.
    qint64 value;
    /// Tolerance for the key frame in milliseconds.
    qint32 range;
    QString err = QStringLiteral("");
    bool aborted = false;

    /// The target, limited to positions that are small enough to avoid overflow and still lie
    /// outside any video.
    qint64 target() const { return std::clamp(value, -farthestPosition, farthestPosition); }
    /// How far something lies behind the target, in milliseconds.
    qint64 distanceOf(double seconds) const { return toMilliseconds(seconds) - target(); }
};

FrameGrabber::FrameGrabber(QObject* parent)
    : QObject(parent)
    , m_deadline(std::make_shared<QtAV::Deadline>())
    , m_position(startPosition)
    , m_precision(defaultPrecision)
{
    m_reader.setDeadline(m_deadline);
}

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
    m_facts = QtAV::MediaFacts();
    Q_EMIT sourceChanged();
    releaseResourceInternal(true);
}

qint64 FrameGrabber::getDuration()
{
    // A video that could not be opened has the duration 0, so the result is not needed.
    static_cast<void>(checkAndOpen());
    return m_reader.demuxer().duration();
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
    m_reader.close();
}

bool FrameGrabber::checkAndOpen()
{
    const bool isOpen = m_reader.isOpen() && m_reader.demuxer().fileName() == m_source;
    return isOpen || open();
}

bool FrameGrabber::open()
{
    m_abort = false;
    m_seekCount = 0;
    m_deadline->start(m_positionTimeout);
    QString reason;
    const bool isOpen = m_reader.open(m_source, isCancelled(), reason);
    const QtAV::AVDemuxer& demuxer = m_reader.demuxer();
    if (demuxer.isLoaded()) {
        m_hasVideo = !demuxer.videoStreams().isEmpty();
    }
    if (isOpen) {
        m_facts = demuxer.facts();
        choosePrecision();
    } else {
        m_reader.close();
    }
    return isOpen;
}

void FrameGrabber::choosePrecision()
{
    if (m_autoPrecision) {
        const bool isShort = m_reader.demuxer().duration() <= longestShortVideo;
        m_precision = isShort ? shortVideoPrecision : defaultPrecision;
    }
}

QtAV::IsCancelled FrameGrabber::isCancelled() const
{
    return [this] { return m_abort || m_deadline->hasPassed(); };
}

void FrameGrabber::extract()
{
    extractInternal(m_position);
}

void FrameGrabber::extractInternal(qint64 pos)
{
    const int precisionBefore = m_precision;
    m_abort = false;
    if (!checkAndOpen()) {
        if (m_abort) {
            Q_EMIT aborted(
                QStringLiteral("Abort at position %1: %2").arg(pos).arg(QLatin1String(beforeRead)));
        } else {
            Q_EMIT error(QStringLiteral("Cannot open file"));
        }
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
    const qint64 start = m_reader.demuxer().startTime();
    Extraction extraction{value < start ? value + start : value, range};
    m_deadline->start(m_positionTimeout);
    const bool extracted = land(extraction) && (takeKeyFrame(extraction) || takeFrame(extraction));
    // The decoder's threads may still be running ahead when the next extraction starts.
    m_deadline->start(std::chrono::milliseconds(0));
    err = extraction.err;
    aborted = extraction.aborted;
    return extracted;
}

/// True, with the reason recorded, if abort() was called. `checkpoint` names the place of the
/// check.
bool FrameGrabber::isAbortedAt(Extraction& extraction, const char* checkpoint) const
{
    if (!m_abort) {
        return false;
    }
    qDebug("FrameGrabber %s", checkpoint);
    extraction.err = QString::fromLatin1(checkpoint);
    extraction.aborted = true;
    return true;
}

/// True, with the reason recorded, if the time limit of the extraction is exceeded.
bool FrameGrabber::isOverdue(Extraction& extraction) const
{
    if (!m_deadline->hasPassed()) {
        return false;
    }
    const auto seconds = static_cast<double>(m_positionTimeout.count()) / 1000.0;
    extraction.err = QStringLiteral("given up after %1 seconds").arg(seconds);
    return true;
}

bool FrameGrabber::failed(Extraction& extraction, const QString& reason) const
{
    extraction.err = reason;
    return false;
}

/// Seeks to the key frame from which decoding starts.
bool FrameGrabber::land(Extraction& extraction)
{
    m_reader.seek(extraction.target());
    const QtAV::FrameAnswer answer = m_reader.land(isCancelled());
    if (answer == QtAV::FrameAnswer::Cancelled &&
        (isAbortedAt(extraction, beforeRead) || isOverdue(extraction))) {
        return false;
    }
    if (answer != QtAV::FrameAnswer::Frame) {
        qWarning("FrameGrabber failed to get a packet at %lld", extraction.value);
        return failed(extraction,
                      QStringLiteral("failed to get a packet at %1").arg(extraction.value));
    }
    if (extraction.distanceOf(*m_reader.landing()) > extraction.range) {
        qDebug("read packet out of range");
    }
    if (!m_reader.landedOnKeyFrame()) {
        qWarning("Not seek to key frame!!!");
    }
    return true;
}

/// Takes the key frame if it is near enough; decodes it at once only if it may be.
bool FrameGrabber::takeKeyFrame(Extraction& extraction)
{
    const qint64 away = std::abs(extraction.distanceOf(*m_reader.landing()));
    if (away > extraction.range || isAbortedAt(extraction, beforeKeyFrame)) {
        return false;
    }
    // Decoding on will show whether this failed or was aborted.
    const QtAV::FrameResult first = m_reader.next(isCancelled());
    m_frame = first.frame;
    if (!isKeyFrameNearEnough(extraction)) {
        m_frame = QtAV::VideoFrame();
        return false;
    }
    qDebug().noquote().nospace() << "FrameGrabber: key frame found @" << m_frame.timestamp()
                                 << " diff=" << extraction.distanceOf(m_frame.timestamp())
                                 << ". format: " << m_frame.format();
    return true;
}

/// The key frame is accepted on either side of the target, but not a frame that was decoded instead
/// of it.
bool FrameGrabber::isKeyFrameNearEnough(const Extraction& extraction) const
{
    // With precision 0, the frame must have the same picture as on any other way to it.
    const bool looksRight = extraction.range > 0 || !m_frame.isValid() || m_reader.looksAsEver();
    return m_frame.isValid() && looksRight && m_reader.isAtLanding() &&
           m_reader.landedOnKeyFrame() &&
           std::abs(extraction.distanceOf(m_frame.timestamp())) <= extraction.range;
}

/// Decodes to the first frame at or after the target, or to the last of the video.
bool FrameGrabber::takeFrame(Extraction& extraction)
{
    if (extraction.aborted) {
        return false;
    }
    const qint64 target = extraction.target();
    QtAV::FrameReader::Search search;
    search.ms = target;
    search.isReached = [target](const QtAV::VideoFrame& frame) {
        return toMilliseconds(frame.timestamp()) >= target;
    };
    // Before the target, later extractions skip disposable frames.
    search.completeFrom = m_seekCount != 0 ? target : 0;
    search.damage = QtAV::FrameReader::Damage::Report;
    const int invalidPackets = m_reader.invalidPackets();
    const QtAV::FrameResult found = m_reader.findOn(search, isCancelled());
    logInvalidPackets(invalidPackets);

    if (found.answer == QtAV::FrameAnswer::Cancelled &&
        (isAbortedAt(extraction, afterKeyFrame) || isOverdue(extraction))) {
        return false;
    }
    if (found.answer == QtAV::FrameAnswer::Failed) {
        if (!m_reader.canGoOn()) {
            return failed(extraction, found.error);
        }
        qWarning("!!!!!!!!!decode failed!!!!");
        return failed(extraction, QStringLiteral("decode failed"));
    }
    m_frame = found.frame;
    logFrame(extraction);
    ++m_seekCount;
    closeAtEnd();
    return true;
}

void FrameGrabber::logInvalidPackets(int before) const
{
    for (int i = before; i < m_reader.invalidPackets(); ++i) {
        qWarning("invalid packet. no decode");
    }
}

void FrameGrabber::logFrame(const Extraction& extraction) const
{
    const qint64 diff = extraction.distanceOf(m_frame.timestamp());
    if (!m_frame.isValid() || diff < 0) {
        return;
    }
    if (diff > extraction.range) {
        qWarning("out pts out of range. diff=%lld, range=%d", diff, extraction.range);
    }
    qDebug("got frame at %fs, diff=%lld", m_frame.timestamp(), diff);
}

/// A decoder that was drained at the end accepts no more packets: the next extraction reopens the
/// file.
void FrameGrabber::closeAtEnd()
{
    if (m_reader.demuxer().atEnd()) {
        m_seekCount = 0;
        m_reader.close();
    }
}
