#pragma once

#include <QtAV/Deinterlacing.h>

#include <QImage>
#include <QList>
#include <QString>

/// The pictures of a video in levels of grey, and measures for them.
namespace grey {

/// All frames of a video as images, in presentation order; none if it cannot be opened.
[[nodiscard]] QList<QImage> picturesOf(const QString& path, QtAV::Deinterlacing deinterlacing,
                                       const QSize& size = QSize());

/// Similarity of two pictures of one size, below the number in samples, as PSNR in dB; 100 if
/// equal.
[[nodiscard]] double likeness(const QImage& a, const QImage& b);

/// Percentage of the samples below the number that differ visibly from those above and below them.
[[nodiscard]] double combing(const QImage& picture);

} // namespace grey
