#include "qtav/src/DurationProbe.h"

#include "qtav/src/PacketHandle.h"
#include "qtav/src/VideoPackets.h"

#include <algorithm>

namespace QtAV {

namespace {

/// This much is read behind the stated end to check whether anything follows.
constexpr qint64 cheapBytes = qint64(16) << 20;

} // namespace

DurationProbe::DurationProbe(Container& container, VideoPackets* video)
    : m_container(container)
    , m_video(video)
{}

DurationProbe::Length DurationProbe::run()
{
    if (m_video && m_video->isRawStream()) {
        return {m_video->rawLengthMs(), true};
    }
    if (const std::optional<Length> stated = checkedStatement()) {
        return *stated;
    }
    return {measure(), true};
}

/// Nothing if the file states no length, or is truncated long before it.
std::optional<DurationProbe::Length> DurationProbe::checkedStatement()
{
    const qint64 stated = m_container.statedDuration();
    if (stated == 0) {
        return std::nullopt;
    }
    if (m_video && m_container.durationIsMeasured() && m_video->hasMissingTimes()) {
        return Length{std::max(stated, endOfPictures(stated)), true};
    }
    if (!m_video || m_container.durationIsMeasured()) {
        return Length{stated, m_container.durationIsMeasured()};
    }

    // Landing this close to the end shows that the file is complete or nearly complete.
    const qint64 closeMs = std::min<qint64>(15000, stated / 10);
    const qint64 roundingMs = std::min<qint64>(1000, stated / 10);
    const std::optional<qint64> landed = firstTimeAt(stated);
    if (!landed) {
        return std::nullopt;
    }
    const bool isClose = *landed + closeMs >= stated;
    if (isClose && !isWorthReadingOn()) {
        return Length{stated, false};
    }
    const End end = readToEnd();
    if (end.pictureMs > stated) {
        return Length{end.ms, true};
    }
    if (isClose || end.ms + roundingMs >= stated) {
        return Length{stated, false};
    }
    return std::nullopt;
}

/// FFmpeg measures up to the last packet that has a time.
qint64 DurationProbe::endOfPictures(qint64 statedMs)
{
    constexpr qint64 longestGapMs = 2000;
    qint64 end = 0;
    if (!m_video->seekNear(std::max<qint64>(0, statedMs - longestGapMs))) {
        return end;
    }
    for (PacketPtr packet;;) {
        const PacketAnswer answer = m_video->read(packet);
        if (answer == PacketAnswer::Failed && m_video->canGoOn()) {
            continue;
        }
        if (answer != PacketAnswer::Packet) {
            return end;
        }
        end = std::max(end, m_video->timeline().endMilliseconds(presentationTicks(*packet),
                                                                m_video->frameTicks(*packet)));
    }
}

/// True if reading the file to its end from here shows what follows and costs little. Some releases
/// of FFmpeg end an MP4 file at the packet decoded last: a picture decoded earlier may be shown
/// after it.
bool DurationProbe::isWorthReadingOn()
{
    // No codec lets more pictures than this wait for one that is decoded later.
    constexpr int maximumWaiting = 16;
    const qint64 rest = m_container.indexesAllPackets()
                            ? m_container.seekToTail(m_video->stream(), maximumWaiting).value_or(0)
                            : m_container.remainingBytes();
    return rest > 0 && rest <= cheapBytes;
}

qint64 DurationProbe::measure()
{
    // Binary search for the last position at which anything can be read. A file that states no
    // length is read through.
    qint64 readable = 0;
    if (m_video && m_container.statedDuration() > 0) {
        qint64 unreadable = m_container.statedDuration() + 1000;
        while (unreadable - readable > 1000) {
            const qint64 middle = readable + (unreadable - readable) / 2;
            (firstTimeAt(middle) ? readable : unreadable) = middle;
        }
    }
    return goTo(readable) ? readToEnd().ms : 0;
}

bool DurationProbe::goTo(qint64 ms)
{
    if (!m_video) {
        return m_container.seekNear(-1, 0) || m_container.reopen();
    }
    return ms > 0 ? m_video->seekNear(ms) : m_video->rewind();
}

/// The time of the first video packet that can be read after a seek, in milliseconds.
std::optional<qint64> DurationProbe::firstTimeAt(qint64 ms)
{
    if (!m_video->seekNear(ms)) {
        return std::nullopt;
    }
    for (PacketPtr packet;;) {
        const PacketAnswer answer = m_container.read(packet);
        if (answer == PacketAnswer::Failed && m_container.canGoOn()) {
            continue;
        }
        if (answer != PacketAnswer::Packet) {
            return std::nullopt;
        }
        if (packet->stream_index == m_video->stream() &&
            presentationTicks(*packet) != AV_NOPTS_VALUE) {
            return m_video->timeline().milliseconds(presentationTicks(*packet));
        }
    }
}

DurationProbe::End DurationProbe::readToEnd()
{
    End end;
    for (PacketPtr packet;;) {
        const PacketAnswer answer = m_container.read(packet);
        if (answer == PacketAnswer::Failed && m_container.canGoOn()) {
            continue;
        }
        if (answer != PacketAnswer::Packet) {
            return end;
        }
        const int stream = packet->stream_index;
        const bool counts = m_container.videoStreams().contains(stream) ||
                            m_container.audioStreams().contains(stream);
        const qint64 ticks = presentationTicks(*packet);
        const bool isHidden = packet->flags & AV_PKT_FLAG_DISCARD;
        if (!counts || isHidden || ticks == AV_NOPTS_VALUE) {
            continue;
        }
        const Timeline timeline = m_container.timeline(stream);
        end.ms = std::max(end.ms, timeline.endMilliseconds(ticks, packet->duration));
        if (m_video && stream == m_video->stream()) {
            end.pictureMs = std::max(end.pictureMs, timeline.milliseconds(ticks));
        }
    }
}

} // namespace QtAV
