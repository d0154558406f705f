#include <QtAV/FrameReader.h>

#include <QtAV/Times.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

constexpr qint64 SmallestStepBackMs = 500;

/// Most of what readAhead() keeps while no key frame comes.
constexpr qint64 MostAheadBytes = 64 * 1024 * 1024;

QVariantHash decoderOptions(bool skips, bool hurries)
{
    const int discard = skips ? VideoDecoder::DiscardNonReference : VideoDecoder::DiscardDefault;
    return {
        {QStringLiteral("avcodec"), QVariantHash{{QStringLiteral("skip_frame"), discard}}},
        {QStringLiteral("start"), QVariantHash{{QStringLiteral("key_frame_at_once"), hurries}}}};
}

/// Lets a question interrupt the demuxer while it is in scope.
class Interruptible
{
public:
    Interruptible(AVDemuxer& demuxer, const IsCancelled& isCancelled)
        : m_demuxer(demuxer)
    {
        m_demuxer.setInterrupt(isCancelled);
    }
    ~Interruptible() { m_demuxer.setInterrupt({}); }
    Interruptible(const Interruptible&) = delete;
    Interruptible& operator=(const Interruptible&) = delete;

private:
    AVDemuxer& m_demuxer;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("QtAV::AVPlayer", text);
}

} // namespace

FrameReader::FrameReader() = default;
FrameReader::~FrameReader() = default;

bool FrameReader::open(const QString& path, const IsCancelled& isCancelled, QString& error)
{
    close();
    const Interruptible interruptible(m_demuxer, isCancelled);
    m_demuxer.setMedia(path);
    if (!m_demuxer.load()) {
        error = m_demuxer.errorString();
        return false;
    }
    const VideoCodecContext* context = m_demuxer.videoCodecContext();
    if (!context) {
        error = tr("There is no video in the file.");
        return false;
    }
    m_decoder.reset(VideoDecoder::create("FFmpeg"));
    m_decoder->setCodecContext(context);
    if (!openDecoder()) {
        error = tr("The video cannot be decoded.");
        close();
        return false;
    }
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
}

FrameAnswer FrameReader::land(const IsCancelled& isCancelled)
{
    if (!m_target)
        return m_isLost ? FrameAnswer::Failed : FrameAnswer::Frame;
    if (isCancelled())
        return FrameAnswer::Cancelled;
    const Interruptible interruptible(m_demuxer, isCancelled);
    if (m_decoderThreads == m_threads)
        m_decoder->flush();
    else if (!openDecoder())
        return FrameAnswer::Failed;
    m_first = Packet();
    m_ahead.clear();
    if (!m_demuxer.seek(*m_target)) {
        if (m_demuxer.canGoOn())
            return FrameAnswer::End;
        return lost(isCancelled);
    }
    const FrameAnswer answer = readPacket(m_first, isCancelled);
    if (answer == FrameAnswer::Cancelled)
        return answer;
    m_target.reset();
    if (answer == FrameAnswer::Frame && !m_resumes) {
        m_landing = m_first.pts;
        m_landedOnKeyFrame = m_first.hasKeyFrame;
    }
    return answer;
}

/// Where reading was interrupted it begins anew at the last frame that came out.
FrameAnswer FrameReader::lost(const IsCancelled& isCancelled)
{
    if (!isCancelled()) {
        m_isLost = true;
        m_target.reset();
        return FrameAnswer::Failed;
    }
    m_target = m_last ? toMilliseconds(*m_last) : m_origin;
    m_resumes = m_last.has_value();
    return FrameAnswer::Cancelled;
}

FrameAnswer FrameReader::readPacket(Packet& packet, const IsCancelled& isCancelled)
{
    if (m_ahead.empty())
        return readFromFile(packet, isCancelled);
    packet = std::move(m_ahead.front());
    m_ahead.pop_front();
    return FrameAnswer::Frame;
}

FrameAnswer FrameReader::readFromFile(Packet& packet, const IsCancelled& isCancelled)
{
    while (!m_demuxer.atEnd()) {
        if (isCancelled())
            return FrameAnswer::Cancelled;
        if (!m_demuxer.readFrame()) {
            if (!m_demuxer.canGoOn())
                return lost(isCancelled);
            continue;
        }
        if (m_demuxer.stream() != m_demuxer.videoStream())
            continue;
        packet = m_demuxer.packet();
        if (packet.isValid())
            return FrameAnswer::Frame;
        ++m_invalidPackets;
    }
    return FrameAnswer::End;
}

FrameResult FrameReader::next(const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    const Interruptible interruptible(m_demuxer, isCancelled);
    while (answer == FrameAnswer::Frame) {
        Packet packet = std::exchange(m_first, Packet());
        const bool isLanding = packet.isValid();
        if (!isLanding)
            answer = readPacket(packet, isCancelled);
        if (answer != FrameAnswer::Frame)
            break;
        chooseSkipping(packet);
        const bool isDecoded = m_decoder->decode(packet);
        // Without the picture that it began with a search starts further back.
        if (!isDecoded && !isLanding)
            return {FrameAnswer::Failed, {}, tr("The picture is damaged.")};
        const VideoFrame frame = m_decoder->frame();
        const bool isLater = frame.isValid() && (!m_last || frame.timestamp() > *m_last);
        if (isLater)
            return arriveAt(frame, isLanding);
    }
    return {answer, {}, answer == FrameAnswer::Failed ? failureText() : QString()};
}

FrameAnswer FrameReader::readAhead(qint64 ms, const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    if (answer != FrameAnswer::Frame || m_first.isValid())
        return answer;
    const Interruptible interruptible(m_demuxer, isCancelled);
    const auto isBehind = [ms](const Packet& packet) {
        return packet.isDrain() || toMilliseconds(packet.pts) > ms;
    };
    qint64 bytes = 0;
    for (size_t i = m_ahead.size(); i-- > 0;) {
        bytes += m_ahead[i].data.size();
        if (m_ahead[i].hasKeyFrame && !isBehind(m_ahead[i])) {
            landOnAhead(i);
            break;
        }
    }
    while ((m_ahead.empty() || !isBehind(m_ahead.back())) && bytes < MostAheadBytes) {
        Packet packet;
        answer = readFromFile(packet, isCancelled);
        if (answer == FrameAnswer::End)
            return FrameAnswer::Frame;
        if (answer != FrameAnswer::Frame)
            return answer;
        bytes += packet.data.size();
        m_ahead.push_back(std::move(packet));
        if (m_ahead.back().hasKeyFrame && !isBehind(m_ahead.back())) {
            landOnAhead(m_ahead.size() - 1);
            bytes = 0;
        }
    }
    return FrameAnswer::Frame;
}

/// What a seek to one of the packets that were read ahead would have done.
void FrameReader::landOnAhead(size_t index)
{
    std::deque<Packet> ahead = std::move(m_ahead);
    ahead.erase(ahead.begin(), ahead.begin() + static_cast<std::ptrdiff_t>(index));
    restart();
    m_startedAtZero = false;
    m_decoder->flush();
    m_first = std::move(ahead.front());
    ahead.pop_front();
    m_ahead = std::move(ahead);
    m_origin = toMilliseconds(m_first.pts);
    m_landing = m_first.pts;
    m_landedOnKeyFrame = true;
}

QVector<qint64> FrameReader::readFrameTimes(const IsCancelled& isCancelled)
{
    seek(0);
    FrameAnswer answer = land(isCancelled);
    const Interruptible interruptible(m_demuxer, isCancelled);
    QVector<qint64> times;
    while (answer == FrameAnswer::Frame) {
        Packet packet = std::exchange(m_first, Packet());
        if (!packet.isValid())
            answer = readPacket(packet, isCancelled);
        if (answer == FrameAnswer::Frame && !packet.isDrain())
            times.append(toMilliseconds(packet.pts));
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    seek(0);
    return times;
}

FrameResult FrameReader::nextKeyFrame(qint64 beforeMs, const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    const Interruptible interruptible(m_demuxer, isCancelled);
    while (answer == FrameAnswer::Frame) {
        Packet packet = std::exchange(m_first, Packet());
        if (!packet.isValid())
            answer = readPacket(packet, isCancelled);
        if (answer != FrameAnswer::Frame)
            break;
        if (!packet.hasKeyFrame)
            continue;
        if (toMilliseconds(packet.pts) >= beforeMs)
            return {FrameAnswer::End, {}, {}};
        // Key frames refer to nothing, and a decoder that was given one more expects what is
        // between them.
        m_decoder->flush();
        const bool isDecoded = m_decoder->decode(packet);
        const VideoFrame frame = m_decoder->frame();
        if (!isDecoded)
            return {FrameAnswer::Failed, {}, tr("The picture is damaged.")};
        if (frame.isValid() && (!m_last || frame.timestamp() > *m_last)) {
            m_skippedUpTo = frame.timestamp();
            FrameResult result = arriveAt(frame, true);
            m_predecessor.reset();
            return result;
        }
    }
    return {answer, {}, answer == FrameAnswer::Failed ? failureText() : QString()};
}

QString FrameReader::failureText() const
{
    const QString reason = m_demuxer.errorString();
    return reason.isEmpty() ? tr("The file cannot be read any more.") : reason;
}

void FrameReader::chooseSkipping(const Packet& packet)
{
    const bool skips = !packet.isDrain() && toMilliseconds(packet.pts) < m_completeFrom;
    if (skips)
        m_skippedUpTo = std::max(m_skippedUpTo, packet.pts);
    // Where frames are skipped, the key frame is not looked at either.
    const bool hurries = m_keyFrameAtOnce && !skips;
    if (skips == m_skips && hurries == m_decoderHurries)
        return;
    m_skips = skips;
    m_decoderHurries = hurries;
    m_decoder->setOptions(decoderOptions(skips, hurries));
}

FrameResult FrameReader::arriveAt(const VideoFrame& frame, bool isLanding)
{
    m_predecessor.reset();
    // What was interrupted may begin behind frames that cannot be decoded any more.
    m_isInSequence = m_last && !std::exchange(m_resumes, false);
    if (m_isInSequence && *m_last >= m_skippedUpTo)
        m_predecessor = m_last;
    m_isAtLanding = isLanding;
    m_isAtFirst = !m_last && m_startedAtZero;
    m_last = frame.timestamp();
    m_lastFrame = frame;
    return {FrameAnswer::Frame, frame};
}

/// True when no frame that was not skipped can be missing directly before last(). Once one has come
/// out, all do.
bool FrameReader::isCertain() const
{
    return m_isInSequence || m_isAtFirst || (m_landing && *m_last <= *m_landing);
}

FrameReader::Way FrameReader::walk(const Search& search, const IsCancelled& isCancelled)
{
    if (m_last && search.isReached(m_lastFrame))
        return {{FrameAnswer::Frame, m_lastFrame}, isCertain()};
    for (;;) {
        FrameResult step = next(isCancelled);
        if (step.answer == FrameAnswer::Failed && search.damage == Damage::Skip && canGoOn())
            continue;
        if (step.answer != FrameAnswer::Frame)
            return {std::move(step)};
        if (search.onFrame)
            search.onFrame(step.frame);
        if (search.isReached(step.frame))
            return {std::move(step), isCertain()};
    }
}

FrameResult FrameReader::find(const Search& search, const IsCancelled& isCancelled)
{
    return findFrom(search, isCancelled);
}

FrameResult FrameReader::findOn(const Search& search, const IsCancelled& isCancelled)
{
    setCompleteFrom(search.completeFrom);
    Way way = walk(search, isCancelled);
    if (way.result.answer == FrameAnswer::Frame && !way.isCertain) {
        Search complete = search;
        complete.completeFrom = 0;
        return findFrom(complete, isCancelled);
    }
    return way.result.answer == FrameAnswer::End && m_last ? lastOfVideo(search, isCancelled)
                                                           : std::move(way.result);
}

FrameResult FrameReader::findFrom(Search search, const IsCancelled& isCancelled)
{
    for (qint64 stepBackMs = 0;;) {
        const qint64 landing = std::max<qint64>(0, search.ms - stepBackMs);
        seek(landing);
        setCompleteFrom(search.completeFrom);
        Way way = walk(search, isCancelled);
        const bool isEnd = way.result.answer == FrameAnswer::End;
        if (isEnd && m_last)
            return lastOfVideo(search, isCancelled);
        const bool isNothing = isEnd && landing == 0 && search.completeFrom <= 0;
        if (isNothing || (!isEnd && way.isCertain))
            return std::move(way.result);
        if (search.completeFrom <= 0)
            stepBackMs = std::max(SmallestStepBackMs, 2 * stepBackMs);
        search.completeFrom = 0;
    }
}

/// The video's last frame, once the reader has come to the end.
FrameResult FrameReader::lastOfVideo(const Search& search, const IsCancelled& isCancelled)
{
    if (!skippedSinceLast())
        return {FrameAnswer::Frame, m_lastFrame};
    Search complete = search;
    complete.ms = toMilliseconds(*m_last);
    complete.completeFrom = 0;
    complete.isReached = [](const VideoFrame&) { return false; };
    return findFrom(complete, isCancelled);
}

} // namespace QtAV
