#include <QtAV/FrameReader.h>

#include <QtAV/Times.h>

#include "qtav/src/FFmpegHandles.h"
#include "qtav/src/Interruptible.h"

#include <algorithm>
#include <utility>

namespace QtAV {

namespace {

/// Maximum memory for what readAhead() keeps while no key frame comes.
constexpr qint64 mostAheadBytes = qint64{64} * 1024 * 1024;

qint64 keptBytes(const Packet& packet)
{
    return packet.data.size() + bytesBesideData;
}

} // namespace

FrameAnswer FrameReader::land(const IsCancelled& isCancelled)
{
    if (!m_target) {
        return m_isLost ? FrameAnswer::Failed : FrameAnswer::Frame;
    }
    if (isCancelled()) {
        return FrameAnswer::Cancelled;
    }
    const Interruptible interruptible(m_demuxer, isCancelled);
    if (m_decoderThreads == m_threads) {
        m_decoder->flush();
    } else if (!openDecoder()) {
        return FrameAnswer::Failed;
    }
    m_first = Packet();
    m_ahead.clear();
    m_groupStart.reset();
    if (!m_demuxer.seek(*m_target)) {
        if (m_demuxer.canGoOn()) {
            return FrameAnswer::End;
        }
        return lost(isCancelled);
    }
    const FrameAnswer answer = readPacket(m_first, isCancelled);
    if (answer == FrameAnswer::Cancelled) {
        return answer;
    }
    m_target.reset();
    if (answer == FrameAnswer::Frame && !m_resumes) {
        m_landing = m_first.pts;
        m_landedOnKeyFrame = m_first.hasKeyFrame;
    }
    return answer;
}

/// After an interruption, reading restarts at the last delivered frame.
FrameAnswer FrameReader::lost(const IsCancelled& isCancelled)
{
    if (!m_demuxer.wasInterrupted() && !isCancelled()) {
        m_isLost = true;
        m_target.reset();
        return FrameAnswer::Failed;
    }
    m_target = m_last ? toMilliseconds(*m_last) : m_origin;
    m_resumes = m_last.has_value();
    m_decoded.clear();
    m_newest = m_last;
    return FrameAnswer::Cancelled;
}

FrameAnswer FrameReader::readPacket(Packet& packet, const IsCancelled& isCancelled)
{
    if (m_ahead.empty()) {
        return readFromFile(packet, isCancelled);
    }
    packet = std::move(m_ahead.front());
    m_ahead.pop_front();
    return FrameAnswer::Frame;
}

FrameAnswer FrameReader::readFromFile(Packet& packet, const IsCancelled& isCancelled)
{
    while (!m_demuxer.atEnd()) {
        if (isCancelled()) {
            return FrameAnswer::Cancelled;
        }
        if (!m_demuxer.readFrame()) {
            if (!m_demuxer.canGoOn()) {
                return lost(isCancelled);
            }
            continue;
        }
        if (m_demuxer.stream() != m_demuxer.videoStream()) {
            continue;
        }
        packet = m_demuxer.packet();
        if (packet.isValid()) {
            measureGroup(packet);
            return FrameAnswer::Frame;
        }
        ++m_invalidPackets;
    }
    return FrameAnswer::End;
}

void FrameReader::measureGroup(const Packet& packet)
{
    if (packet.isDrain()) {
        return;
    }
    if (m_groupStart) {
        m_longestGroup = std::max(m_longestGroup, packet.pts - *m_groupStart);
    }
    if (packet.hasKeyFrame) {
        m_hasReadGroup = m_hasReadGroup || m_groupStart;
        m_groupStart = packet.pts;
    }
}

std::optional<qint64> FrameReader::longestGroupMs() const
{
    return m_hasReadGroup ? std::optional(toMilliseconds(m_longestGroup)) : std::nullopt;
}

FrameAnswer FrameReader::readAhead(qint64 ms, const IsCancelled& isCancelled)
{
    FrameAnswer answer = land(isCancelled);
    if (answer != FrameAnswer::Frame || m_first.isValid()) {
        return answer;
    }
    const Interruptible interruptible(m_demuxer, isCancelled);
    const auto isBehind = [ms](const Packet& packet) {
        return packet.isDrain() || toMilliseconds(packet.pts) > ms;
    };
    qint64 bytes = 0;
    for (size_t i = m_ahead.size(); i-- > 0;) {
        bytes += keptBytes(m_ahead[i]);
        if (m_ahead[i].hasKeyFrame && !isBehind(m_ahead[i])) {
            landOnAhead(i);
            break;
        }
    }
    while ((m_ahead.empty() || !isBehind(m_ahead.back())) && bytes < mostAheadBytes) {
        Packet packet;
        answer = readFromFile(packet, isCancelled);
        if (answer == FrameAnswer::End) {
            return FrameAnswer::Frame;
        }
        if (answer != FrameAnswer::Frame) {
            return answer;
        }
        bytes += keptBytes(packet);
        m_ahead.push_back(std::move(packet));
        if (m_ahead.back().hasKeyFrame && !isBehind(m_ahead.back())) {
            landOnAhead(m_ahead.size() - 1);
            bytes = 0;
        }
    }
    return FrameAnswer::Frame;
}

/// Has the same effect as a seek to one of the packets that were read ahead.
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
        if (!packet.isValid()) {
            answer = readPacket(packet, isCancelled);
        }
        if (answer == FrameAnswer::Frame && !packet.isDrain() && !packet.isHidden) {
            times.append(toMilliseconds(packet.pts));
        }
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    seek(0);
    return times;
}

} // namespace QtAV
