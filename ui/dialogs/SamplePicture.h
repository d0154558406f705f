#pragma once

class QImage;

/// What dialogs show the effect of their settings on where there is no frame.
namespace SamplePicture {

/// An opaque picture in a format of three channels, as frames of videos are. User-interface thread
/// only.
[[nodiscard]] QImage image();

} // namespace SamplePicture
