#pragma once

namespace QtAV {

/// What becomes of drawing with OpenGL.
enum class OpenGLSupport {
    None,     ///< no context can be made
    Software, ///< it works, but the processor imitates it, slower than it draws by itself
    Hardware,
};

/// What there is here; found out at the first call, by making a context. None before there is a
/// graphical application. User-interface thread only.
[[nodiscard]] OpenGLSupport openGLSupport();

} // namespace QtAV
