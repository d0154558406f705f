#include "qtav/src/KeyFrameSearch.h"

#include "qtav/src/PacketHandle.h"

#include <algorithm>

namespace QtAV {

namespace {

constexpr qint64 smallestStepBackMs = 500;

} // namespace

KeyFrameSearch::KeyFrameSearch(VideoPackets& video, qint64 durationMs, qint64 firstStepBackMs,
                               qint64 mostKeptBytes)
    : m_video(video)
    , m_durationMs(durationMs)
    , m_stepBackMs(firstStepBackMs)
    , m_mostKeptBytes(mostKeptBytes)
{}

PacketAnswer KeyFrameSearch::run(qint64 targetMs)
{
    m_targetMs = targetMs;
    // Searches near the start do not tell how far to step back elsewhere.
    const qint64 usualStepBackMs = m_stepBackMs;
    const qint64 base = m_durationMs > 0 ? std::min(targetMs, m_durationMs) : targetMs;
    while (base - m_stepBackMs > 0) {
        const PacketAnswer answer =
            scanIf(m_video.seekNear(base - m_stepBackMs), Accept::AtOrBeforeTarget);
        if (answer != PacketAnswer::End) {
            return answer;
        }
        m_stepBackMs = std::max(smallestStepBackMs, m_stepBackMs * 2);
    }
    m_stepBackMs = usualStepBackMs;
    return searchFromStart();
}

PacketAnswer KeyFrameSearch::searchFromStart()
{
    PacketAnswer answer = scanIf(m_video.rewind(), Accept::FirstKeyFrame);
    // Some containers report success for a seek to their start and end up elsewhere.
    for (const Accept accept : {Accept::FirstKeyFrame, Accept::AnyPacket}) {
        if (answer != PacketAnswer::End) {
            return answer;
        }
        if (!m_video.reopen()) {
            return m_video.wasInterrupted() ? PacketAnswer::Cancelled : PacketAnswer::Failed;
        }
        answer = scan(accept);
    }
    return answer;
}

/// Scans from where a seek landed; a failed seek finds nothing.
PacketAnswer KeyFrameSearch::scanIf(bool isThere, Accept accept)
{
    if (isThere) {
        return scan(accept);
    }
    return m_video.wasInterrupted() ? PacketAnswer::Cancelled : PacketAnswer::End;
}

/// Returns End if no packet is acceptable.
PacketAnswer KeyFrameSearch::scan(Accept accept)
{
    m_packets.clear();
    m_keptBytes = 0;
    m_reachedEnd = false;
    const Timeline& timeline = m_video.timeline();
    bool found = false;
    for (PacketPtr packet;;) {
        const PacketAnswer answer = m_video.read(packet);
        if (answer == PacketAnswer::End) {
            m_reachedEnd = true;
            return found ? PacketAnswer::Packet : PacketAnswer::End;
        }
        if (answer == PacketAnswer::Failed && m_video.canGoOn()) {
            continue;
        }
        // What was found before a failure remains valid.
        if (answer != PacketAnswer::Packet) {
            return found && answer == PacketAnswer::Failed ? PacketAnswer::Packet : answer;
        }
        if (packet->stream_index != m_video.stream()) {
            if (found && !keep(std::move(packet))) {
                return PacketAnswer::Packet;
            }
            continue;
        }

        const bool isKeyFrame = packet->flags & AV_PKT_FLAG_KEY;
        const qint64 shownMs = timeline.milliseconds(presentationTicks(*packet));
        const bool isBehind =
            (isKeyFrame && shownMs > m_targetMs) ||
            (packet->dts != AV_NOPTS_VALUE && timeline.milliseconds(packet->dts) > m_targetMs);
        const bool isFirst = !found && (accept == Accept::AnyPacket ||
                                        (accept == Accept::FirstKeyFrame && isKeyFrame));
        if (isFirst || (isKeyFrame && shownMs <= m_targetMs)) {
            m_packets.clear();
            m_keptBytes = 0;
            found = true;
        }
        const bool mayGoOn = !found || keep(std::move(packet));
        if (found ? (isBehind || !mayGoOn) : (isBehind && accept == Accept::AtOrBeforeTarget)) {
            return found ? PacketAnswer::Packet : PacketAnswer::End;
        }
    }
}

/// Returns false if the maximum is reached.
bool KeyFrameSearch::keep(PacketPtr packet)
{
    m_keptBytes += packet->size + bytesBesideData;
    m_packets.push_back(std::move(packet));
    return m_keptBytes < m_mostKeptBytes;
}

} // namespace QtAV
