#include "series/SeriesPlan.h"

#include <algorithm>
#include <utility>

namespace {

/// Several per lane, since some take longer than others.
constexpr int stretchesPerLane = 8;

/// In a longer stretch, finished pictures of the following stretches would wait long in memory.
constexpr int mostTargets = 16;

/// If a key frame is this close behind the last target, decoding on reaches it just as quickly.
constexpr qint64 nearMs = 500;

/// Shorter parts of a video are not worth the way to their first frame.
constexpr qint64 shortestPartMs = 10000;

bool isKeyFrameBetween(const SeriesPlan& plan, qint64 ms, qint64 nextMs)
{
    return plan.keyFrameBefore(nextMs) > ms;
}

void cutAtKeyFrames(SeriesPlan& plan)
{
    int begin = 0;
    for (int i = 1; i <= plan.targets.size(); ++i) {
        const bool isEnd = i == plan.targets.size();
        const qint64 ms = plan.targets.at(i - 1).ms;
        if (!isEnd && !isKeyFrameBetween(plan, ms, plan.targets.at(i).ms)) {
            continue;
        }
        const bool isNear = !isEnd && plan.keyFrameBefore(plan.targets.at(i).ms) - ms < nearMs;
        if (isNear && i - begin < mostTargets) {
            continue;
        }
        plan.stretches.append({begin, i});
        begin = i;
    }
}

void cutByNumber(SeriesPlan& plan, int lanes)
{
    const int count = plan.targets.size();
    const int size = std::clamp(count / (lanes * stretchesPerLane), 1, mostTargets);
    // Enough stretches to keep all lanes busy, but no more: each starts with frames that another
    // lane may decode as well.
    const int step = std::max(size, std::min(mostTargets, (count + lanes - 1) / lanes));
    for (int begin = 0; begin < count; begin += step) {
        plan.stretches.append({begin, std::min(count, begin + step)});
    }
}

} // namespace

qint64 SeriesPlan::keyFrameBefore(qint64 ms) const
{
    const auto behind = std::upper_bound(keyFramesMs.cbegin(), keyFramesMs.cend(), ms);
    return behind == keyFramesMs.cbegin() ? -1 : *(behind - 1);
}

SeriesPlan planTargets(QVector<SeriesTarget> targets, QVector<qint64> keyFramesMs, int lanes)
{
    SeriesPlan plan;
    plan.targets = std::move(targets);
    plan.keyFramesMs = std::move(keyFramesMs);
    if (plan.targets.isEmpty()) {
        return plan;
    }
    if (plan.keyFramesMs.isEmpty()) {
        cutByNumber(plan, lanes);
    } else {
        cutAtKeyFrames(plan);
    }
    return plan;
}

SeriesPlan planPart(qint64 fromMs, qint64 toMs, QVector<qint64> keyFramesMs, int lanes)
{
    SeriesPlan plan;
    plan.keyFramesMs = std::move(keyFramesMs);
    if (toMs <= fromMs) {
        return plan;
    }
    const qint64 step = std::max(shortestPartMs, (toMs - fromMs) / (lanes * stretchesPerLane) + 1);
    for (qint64 ms = fromMs; ms < toMs;) {
        qint64 end = std::min(toMs, ms + step);
        const qint64 key = plan.keyFrameBefore(end);
        if (end < toMs && key > ms) {
            end = key;
        }
        plan.stretches.append({0, 0, ms, end});
        ms = end;
    }
    return plan;
}
