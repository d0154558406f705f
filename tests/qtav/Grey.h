#pragma once

#include <QtAV/Deinterlacing.h>

#include <QImage>
#include <QList>
#include <QString>

/// The pictures of a video in levels of grey, and how they compare.
namespace grey {

/// All frames of a video as images of them are made, in the order shown; none when it cannot be
/// opened.
[[nodiscard]] QList<QImage> picturesOf(const QString& path, QtAV::Deinterlacing deinterlacing,
                                       const QSize& size = QSize());

/// How alike two pictures of one size are below the number that samples bear, as PSNR in dB; 100
/// for the same.
[[nodiscard]] double likeness(const QImage& a, const QImage& b);

/// Of the samples below the number, how many per cent stick out visibly between those above and
/// below them.
[[nodiscard]] double combing(const QImage& picture);

} // namespace grey
