#pragma once

#include <QtGlobal>

namespace QtAV {

/// Default memory limit for one picture of a video, in bytes: 1 GiB. It counts the decoded picture
/// and the image with 4 bytes per pixel that is made from it. A picture beyond the limit is refused
/// before memory is allocated for it.
constexpr qint64 usualPictureBytes = qint64(1) << 30;

} // namespace QtAV
