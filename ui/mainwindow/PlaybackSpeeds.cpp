#include "ui/mainwindow/PlaybackSpeeds.h"

#include <QtAV/AVPlayer.h>

#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr std::array<qreal, 13> speeds{
    QtAV::AVPlayer::slowest, 0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0, 4.0, 6.0,
    QtAV::AVPlayer::fastest};

/// Smaller differences count as equal.
constexpr qreal tolerance = 0.001;

} // namespace

qreal PlaybackSpeeds::slower(qreal speed)
{
    const auto found = std::lower_bound(speeds.cbegin(), speeds.cend(), speed - tolerance);
    return found == speeds.cbegin() ? speeds.front() : *std::prev(found);
}

qreal PlaybackSpeeds::faster(qreal speed)
{
    const auto found = std::upper_bound(speeds.cbegin(), speeds.cend(), speed + tolerance);
    return found == speeds.cend() ? speeds.back() : *found;
}

QString PlaybackSpeeds::text(qreal speed)
{
    const QString text = QStringLiteral("%1\u00d7").arg(speed);
    // Without marks, the sign would come before the number in a line from right to left.
    constexpr QChar fromLeft(0x200e);
    return QGuiApplication::isRightToLeft() ? fromLeft + text + fromLeft : text;
}
