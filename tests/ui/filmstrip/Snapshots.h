#pragma once

#include "imaging/CapturedPicture.h"
#include "ui/filmstrip/KeptSnapshot.h"

#include <QImage>
#include <QString>

namespace testsupport {

/// A picture in which every pixel differs from its neighbours, so that a loss shows.
[[nodiscard]] QImage patterned(QSize size, QImage::Format format);

/// The picture of a frame at that time of "/videos/clip.mp4".
[[nodiscard]] CapturedPicture pictureAt(double seconds, QSize size = {64, 48});

/// A note with everything that one can have.
[[nodiscard]] KeptSnapshot fullNote(const QString& id);

} // namespace testsupport
