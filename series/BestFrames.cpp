#include "series/BestFrames.h"

#include <QtAV/FrameReader.h>
#include <QtAV/Times.h>

#include <algorithm>

using QtAV::FrameAnswer;
using QtAV::FrameReader;
using QtAV::FrameResult;
using QtAV::toMilliseconds;

namespace {

/// Frames this far outside the stretch are measured, too, to detect cuts and blur at its ends.
constexpr qint64 aroundMs = 600;

QSize fitting(const QSize& size, const QSize& bounds)
{
    const bool isSmaller = size.width() <= bounds.width() && size.height() <= bounds.height();
    return isSmaller ? size : size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage smallPicture(const QtAV::VideoFrame& frame, QImage::Format format, const QSize& bounds)
{
    return frame.toImage(format, fitting(frame.displaySize(), bounds));
}

} // namespace

QVector<qint64> series::findBest(FrameReader& reader, const VideoStretch& stretch, int count,
                                 const QtAV::IsCancelled& isCancelled, QString& error,
                                 const std::function<void()>& onFrame)
{
    const qint64 start = std::max<qint64>(0, stretch.fromMs - aroundMs);
    reader.setKeyFrameAtOnce(false);
    reader.seek(start);
    reader.setCompleteFrom(start);
    FrameJudge judge;
    QVector<FrameQuality> qualities;
    for (;;) {
        const FrameResult found = reader.next(isCancelled);
        if (found.answer == FrameAnswer::Failed && reader.canGoOn()) {
            continue;
        }
        if (found.answer == FrameAnswer::Cancelled) {
            return {};
        }
        if (found.answer != FrameAnswer::Frame) {
            error = found.answer == FrameAnswer::Failed ? found.error : QString();
            break;
        }
        if (onFrame) {
            onFrame();
        }
        const qint64 ms = toMilliseconds(found.frame.timestamp());
        if (ms >= stretch.toMs + aroundMs) {
            break;
        }
        if (ms >= start) {
            qualities.append(judge.judge(
                ms, smallPicture(found.frame, QImage::Format_Grayscale8, FrameJudge::pictureSize)));
        }
    }
    const QVector<qint64> best = bestOf(qualities, stretch, count);
    if (!best.isEmpty()) {
        // Measuring continues with what could be read.
        error.clear();
    }
    return best;
}

BestFrames series::findBest(const QString& video, QtAV::Deinterlacing deinterlacing,
                            const VideoStretch& stretch, int count, const QSize& pictureSize,
                            const QtAV::IsCancelled& isCancelled)
{
    BestFrames best;
    FrameReader reader;
    reader.setDeinterlacing(deinterlacing);
    if (!reader.open(video, isCancelled, best.error)) {
        return best;
    }
    const QVector<qint64> times = findBest(reader, stretch, count, isCancelled, best.error);
    for (const qint64 ms : times) {
        FrameReader::Search search;
        search.ms = ms;
        search.completeFrom = ms;
        search.isReached = [ms](const QtAV::VideoFrame& frame) {
            return toMilliseconds(frame.timestamp()) >= ms;
        };
        const FrameResult found = reader.find(search, isCancelled);
        if (found.answer == FrameAnswer::Frame) {
            best.frames.append({ms, smallPicture(found.frame, QImage::Format_RGB888, pictureSize)});
        }
    }
    return best;
}
