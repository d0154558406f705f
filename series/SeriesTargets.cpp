#include "series/SeriesTargets.h"

#include <algorithm>
#include <cmath>

namespace {

qint64 partOf(qint64 durationMs, double percent)
{
    return static_cast<qint64>(std::llround(static_cast<double>(durationMs) * percent / 100.0));
}

QVector<SeriesTarget> everyTargets(qint64 everyMs, qint64 from, qint64 to)
{
    QVector<SeriesTarget> targets;
    for (qint64 ms = from; ms < to; ms += std::max<qint64>(1, everyMs)) {
        targets.append(SeriesTarget{ms});
    }
    return targets;
}

/// The middles of equal parts, without duplicates if there are more parts than milliseconds.
QVector<SeriesTarget> spreadTargets(int count, qint64 from, qint64 to)
{
    QVector<SeriesTarget> targets;
    const double part = static_cast<double>(to - from) / std::max(1, count);
    for (int i = 0; i < count && to > from; ++i) {
        const qint64 ms = from + static_cast<qint64>(part * (i + 0.5));
        if (targets.isEmpty() || targets.constLast().ms != ms) {
            targets.append(SeriesTarget{ms});
        }
    }
    return targets;
}

std::optional<SeriesTarget> targetOf(const FramePosition& position, const SeriesLength& length)
{
    switch (position.kind) {
    case FramePosition::Kind::Percent:
        return SeriesTarget{partOf(length.durationMs, position.value)};
    case FramePosition::Kind::Last:
        return SeriesTarget{length.durationMs, {}, true};
    case FramePosition::Kind::FrameNumber: {
        const auto number = static_cast<qint64>(position.value);
        if (number < 0 || number >= length.frameTimesMs.size()) {
            return std::nullopt;
        }
        return SeriesTarget{length.frameTimesMs.at(static_cast<int>(number)), number};
    }
    case FramePosition::Kind::Milliseconds:
        break;
    }
    return SeriesTarget{static_cast<qint64>(position.value)};
}

bool isBefore(const SeriesTarget& a, const SeriesTarget& b)
{
    return a.isLast != b.isLast ? b.isLast : a.ms < b.ms;
}

bool isSame(const SeriesTarget& a, const SeriesTarget& b)
{
    return !isBefore(a, b) && !isBefore(b, a);
}

QVector<SeriesTarget> listTargets(const std::vector<FramePosition>& list,
                                  const SeriesLength& length, std::vector<FramePosition>* missing)
{
    QVector<SeriesTarget> targets;
    for (const FramePosition& position : list) {
        if (const std::optional<SeriesTarget> target = targetOf(position, length)) {
            targets.append(*target);
        } else if (missing) {
            missing->push_back(position);
        }
    }
    std::stable_sort(targets.begin(), targets.end(), isBefore);
    targets.erase(std::unique(targets.begin(), targets.end(), isSame), targets.end());
    return targets;
}

} // namespace

qint64 msOf(const SeriesSkip& skip, qint64 durationMs)
{
    return skip.unit == SeriesSkip::Unit::Percent ? partOf(durationMs, skip.value)
                                                  : static_cast<qint64>(std::llround(skip.value));
}

bool isTooMuch(const FramePositions& positions, const SeriesLength& length)
{
    const qint64 from = msOf(positions.front, length.durationMs);
    const qint64 to = length.durationMs - msOf(positions.back, length.durationMs);
    return positions.kind == FramePositions::Kind::Every &&
           (to - from) / std::max<qint64>(1, positions.everyMs) >= mostTargets;
}

QVector<SeriesTarget> targetsOf(const FramePositions& positions, const SeriesLength& length,
                                std::vector<FramePosition>* missing)
{
    const qint64 from = msOf(positions.front, length.durationMs);
    const qint64 to = length.durationMs - msOf(positions.back, length.durationMs);
    switch (positions.kind) {
    case FramePositions::Kind::Every:
        return everyTargets(positions.everyMs, from, to);
    case FramePositions::Kind::Spread:
        return spreadTargets(positions.count, from, to);
    case FramePositions::Kind::List:
        return listTargets(positions.list, length, missing);
    case FramePositions::Kind::KeyFrames:
    case FramePositions::Kind::Scenes:
    case FramePositions::Kind::Best:
        break;
    }
    return {};
}

bool asksForNumbers(const FramePositions& positions)
{
    return positions.kind == FramePositions::Kind::List &&
           std::any_of(positions.list.cbegin(), positions.list.cend(),
                       [](const FramePosition& position) {
                           return position.kind == FramePosition::Kind::FrameNumber;
                       });
}
