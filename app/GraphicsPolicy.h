#pragma once

#include <QString>

/// Whether the process uses OpenGL at all.
namespace GraphicsPolicy {

/// True when a folder of device files, as Linux has it, holds one of a graphics processor.
[[nodiscard]] bool hasGraphicsDevice(const QString& folder);

/// Keeps Qt from loading OpenGL on a Linux machine without a graphics processor, where a library
/// that compiles code for the processor would imitate it: that takes some 50 MiB, and makes every
/// window slower. What the environment says of it (QT_XCB_GL_INTEGRATION) is left as it is.
/// Call it before the application object is made; without it all works as well.
///
/// @param devices  where the system has its device files.
void avoidImitatedOpenGL(const QString& devices = QStringLiteral("/dev"));

} // namespace GraphicsPolicy
