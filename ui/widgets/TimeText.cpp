#include "ui/widgets/TimeText.h"

#include <QTime>

QString timeText(qint64 ms)
{
    // Only the time of day is shown, so whole days can be removed before the conversion to int.
    constexpr qint64 dayMs = 24 * 60 * 60 * 1000;
    return QTime(0, 0, 0, 0).addMSecs(int(ms % dayMs)).toString(QStringLiteral("hh:mm:ss.zzz"));
}
