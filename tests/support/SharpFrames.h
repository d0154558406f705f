#pragma once

#include <QString>

namespace testsupport {

class TestDir;

/// Makes a video of four seconds in the folder, 320 by 180 with 25 frames a second, in which things
/// move: every tenth frame from the fifth on is sharp, the others are blurred by motion. Frames 40
/// to 59 are black, and at frame 75 there is a cut. Gives its path.
[[nodiscard]] QString makeVideoOfSharpFrames(const TestDir& dir);

} // namespace testsupport
