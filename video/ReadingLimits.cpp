#include "video/ReadingLimits.h"

#include <QSettings>

#include <optional>

namespace {

constexpr qint64 bytesPerMiB = qint64(1) << 20;
constexpr qint64 mostMiB = qint64(1) << 20;
constexpr qint64 longestSeconds = 24 * 60 * 60;

std::optional<qint64> numberIn(const QSettings& settings, const QString& key, qint64 low,
                               qint64 high)
{
    bool isNumber = false;
    const qint64 number = settings.value(key).toLongLong(&isNumber);
    return isNumber && number >= low && number <= high ? std::make_optional(number) : std::nullopt;
}

} // namespace

ReadingLimits ReadingLimits::of(const QSettings& settings)
{
    ReadingLimits limits;
    const QString memoryKey = QStringLiteral("limits/pictureMemoryMiB");
    if (const auto number = numberIn(settings, memoryKey, 1, mostMiB)) {
        limits.pictureBytes = *number * bytesPerMiB;
    }
    const QString timeoutKey = QStringLiteral("limits/positionTimeoutSeconds");
    if (const auto number = numberIn(settings, timeoutKey, 0, longestSeconds)) {
        limits.positionTimeout = std::chrono::seconds(*number);
    }
    return limits;
}
