#pragma once

namespace QtAV {

/// How well OpenGL is supported.
enum class OpenGLSupport {
    None,     ///< no context can be created
    Software, ///< it works, but is emulated by the processor, which is slower than drawing without
              ///< it
    Hardware,
};

/// The support on this machine, determined on the first call by creating a context. None before
/// there is a graphical application. User-interface thread only.
[[nodiscard]] OpenGLSupport openGLSupport();

} // namespace QtAV
