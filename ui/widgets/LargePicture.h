#pragma once

#include <QSize>
#include <QtGlobal>

/// Which pictures take too long for an event: what is made of these is made in the background.
namespace LargePicture {

/// Full HD, in pixels, with the lines that codecs add.
constexpr qint64 mostAtOnce = 1920 * 1088;

[[nodiscard]] inline bool isLarge(const QSize& size)
{
    return qint64(size.width()) * size.height() > mostAtOnce;
}

} // namespace LargePicture
