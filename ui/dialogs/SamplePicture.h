#pragma once

class QImage;

/// A picture that shows the effect of settings in dialogs if there is no frame.
namespace SamplePicture {

/// An opaque picture in a format with three channels, like frames of videos. User-interface thread
/// only.
[[nodiscard]] QImage image();

} // namespace SamplePicture
