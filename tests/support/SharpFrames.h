#pragma once

#include <QString>

namespace testsupport {

class TestDir;

/// Makes a video of four seconds in the folder, 320 by 180 with 25 frames per second, with moving
/// objects: every tenth frame from the fifth on is sharp, the others are blurred by motion. Frames
/// 40 to 59 are black, and frame 75 begins a scene. Returns its path.
[[nodiscard]] QString makeVideoOfSharpFrames(const TestDir& dir);

} // namespace testsupport
