#pragma once

#include <QString>

/// Whether the process uses OpenGL at all.
namespace GraphicsPolicy {

/// True if a Linux folder of device files contains a graphics processor.
[[nodiscard]] bool hasGraphicsDevice(const QString& folder);

/// Keeps Qt from loading OpenGL on a Linux machine without a graphics processor, where a software
/// renderer would emulate it: that takes some 50 MiB and makes every window slower. An existing
/// setting of the environment (QT_XCB_GL_INTEGRATION) is respected. Call it before the application
/// object is created; the program also works without it.
///
/// @param devices  the system's folder of device files.
void avoidImitatedOpenGL(const QString& devices = QStringLiteral("/dev"));

} // namespace GraphicsPolicy
