#include "batch/SamplingPlan.h"

#include "batch/BatchWorkerConfig.h"

#include <QDebug>

#include <algorithm>
#include <limits>

namespace {

constexpr int fallbackMilliseconds = 1000;
constexpr int fallbackImages = 10;

void correctInterval(BatchWorkerConfig& config)
{
    switch (config.intervalType()) {
    case BatchWorkerConfig::EveryMilliseconds:
        if (config.intervalMilliseconds() < 1) {
            config.setIntervalMilliseconds(fallbackMilliseconds);
        }
        break;
    case BatchWorkerConfig::SpreadImages:
        if (config.intervalImages() <= 1) {
            qDebug("Batch m_intervalImages was %d", config.intervalImages());
            config.setIntervalImages(fallbackImages);
            config.setIntervalType(BatchWorkerConfig::SingleShot);
        }
        break;
    default:
        break;
    }
}

/// Truncates to a whole number, clamped to the range of an int: a job may have absurd skips.
int truncated(float value)
{
    constexpr float most = 2147483520.0F; // the largest float that is an int
    return static_cast<int>(std::clamp(value, -most, most));
}

/// The middle is that of the sampled stretch's length, counted from the video's start: the front
/// skip does not move it.
qint64 singleShotPosition(const BatchWorkerConfig& config, qint64 sampled, qint64 end)
{
    switch (config.intervalSingleShot()) {
    case BatchWorkerConfig::Middle:
        return sampled / 2;
    case BatchWorkerConfig::Back:
        return end;
    default:
        return config.skipFront();
    }
}

} // namespace

SamplingPlan SamplingPlan::make(BatchWorkerConfig& config, qint64 duration)
{
    correctInterval(config);

    const qint64 front = config.skipFront();
    const qint64 sampled = duration - front - config.skipBack();
    SamplingPlan plan;
    plan.intervalType = config.intervalType();
    plan.end = duration - config.skipBack();
    plan.images = config.intervalImages();
    plan.start = front;
    switch (plan.intervalType) {
    case BatchWorkerConfig::EveryMilliseconds: {
        const int milliseconds = config.intervalMilliseconds();
        plan.step = milliseconds;
        plan.expectedImages =
            truncated(static_cast<float>(sampled) / static_cast<float>(milliseconds) + 1.0F);
        break;
    }
    case BatchWorkerConfig::SpreadImages:
        plan.step = sampled / plan.images - 1;
        plan.expectedImages = plan.images;
        break;
    case BatchWorkerConfig::SingleShot:
        plan.start = singleShotPosition(config, sampled, plan.end);
        plan.expectedImages = 1;
        break;
    default:
        break;
    }
    plan.start = std::min(plan.end, std::max(plan.start, front));
    return plan;
}

int SamplingPlan::imageCount(const BatchWorkerConfig& config, qint64 duration)
{
    if (isSingleShot(config)) {
        return 1;
    }
    switch (config.intervalType()) {
    case BatchWorkerConfig::EveryMilliseconds: {
        const int given = config.intervalMilliseconds();
        const qint64 step = given < 1 ? fallbackMilliseconds : given;
        const qint64 sampled = duration - config.skipFront() - config.skipBack();
        const qint64 most = std::numeric_limits<int>::max();
        return static_cast<int>(std::clamp<qint64>((sampled + step - 1) / step, 0, most));
    }
    case BatchWorkerConfig::SpreadImages:
        return config.intervalImages();
    default:
        return 0;
    }
}

bool SamplingPlan::isSingleShot(const BatchWorkerConfig& config)
{
    return config.intervalType() == BatchWorkerConfig::SingleShot ||
           (config.intervalType() == BatchWorkerConfig::SpreadImages &&
            config.intervalImages() <= 1);
}

bool SamplingPlan::takes(qint64 position, int number) const
{
    switch (intervalType) {
    case BatchWorkerConfig::EveryMilliseconds:
        return position < end;
    case BatchWorkerConfig::SpreadImages:
        return number <= images;
    case BatchWorkerConfig::SingleShot:
        return number <= 1;
    default:
        return false;
    }
}
