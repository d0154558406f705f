#include "qtav/src/KeyFrameSearch.h"

#include "qtav/src/MediaFile.h"
#include "qtav/src/PacketHandle.h"

#include <algorithm>

namespace QtAV {

namespace {

constexpr qint64 SmallestStepBackMs = 500;

} // namespace

KeyFrameSearch::KeyFrameSearch(MediaFile& file, qint64 durationMs, qint64 firstStepBackMs)
    : m_file(file)
    , m_durationMs(durationMs)
    , m_stepBackMs(firstStepBackMs)
{}

bool KeyFrameSearch::run(qint64 targetMs)
{
    m_targetMs = targetMs;
    // Searches near the start say nothing of how far to step back elsewhere.
    const qint64 usualStepBackMs = m_stepBackMs;
    const qint64 base = m_durationMs > 0 ? std::min(targetMs, m_durationMs) : targetMs;
    while (base - m_stepBackMs > 0) {
        if (m_file.jumpNear(base - m_stepBackMs) &&
            scan(Accept::AtOrBeforeTarget) == Landing::Found)
            return true;
        m_stepBackMs = std::max(SmallestStepBackMs, m_stepBackMs * 2);
    }
    m_stepBackMs = usualStepBackMs;
    return searchFromStart();
}

bool KeyFrameSearch::searchFromStart()
{
    if (m_file.rewind() && scan(Accept::FirstKeyFrame) == Landing::Found)
        return true;
    // Some containers claim to go to their start and end up elsewhere.
    if (m_file.reopen() && scan(Accept::FirstKeyFrame) == Landing::Found)
        return true;
    return m_file.reopen() && scan(Accept::AnyPacket) == Landing::Found;
}

KeyFrameSearch::Landing KeyFrameSearch::scan(Accept accept)
{
    m_packets.clear();
    m_keptBytes = 0;
    m_reachedEnd = false;
    const Timeline& timeline = m_file.videoParameters()->timeline;
    bool found = false;
    for (PacketPtr packet;;) {
        const MediaFile::Read result = m_file.read(packet);
        if (result == MediaFile::Read::End) {
            m_reachedEnd = true;
            return found ? Landing::Found : Landing::NoKeyFrame;
        }
        if (result == MediaFile::Read::Failure)
            continue;
        if (packet->stream_index != m_file.videoStream()) {
            if (found)
                keep(std::move(packet));
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
        if (found ? (isBehind || !mayGoOn) : (isBehind && accept == Accept::AtOrBeforeTarget))
            return found ? Landing::Found : Landing::NoKeyFrame;
    }
}

/// False when no more may be kept.
bool KeyFrameSearch::keep(PacketPtr packet)
{
    m_keptBytes += packet->size;
    m_packets.push_back(std::move(packet));
    return m_keptBytes < MostKeptBytes;
}

} // namespace QtAV
