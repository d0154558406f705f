#include "qtav/widgets/OpenGLSupport.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <iterator>

namespace QtAV {

namespace {

bool isSoftware(const QByteArray& renderer)
{
    constexpr const char* names[] = {"llvmpipe", "softpipe", "Software", "SwiftShader"};
    return std::any_of(std::begin(names), std::end(names),
                       [&renderer](const char* name) { return renderer.contains(name); });
}

OpenGLSupport tryOpenGL()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!surface.isValid() || !context.create() || !context.makeCurrent(&surface)) {
        return OpenGLSupport::None;
    }
    const auto* name = reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
    return isSoftware(QByteArray(name)) ? OpenGLSupport::Software : OpenGLSupport::Hardware;
}

} // namespace

OpenGLSupport openGLSupport()
{
    // This setting of the environment keeps Qt from using OpenGL under X11.
    const bool isAvoided = qgetenv("QT_XCB_GL_INTEGRATION") == "none";
    if (isAvoided || !qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        return OpenGLSupport::None;
    }
    static const OpenGLSupport support = tryOpenGL();
    return support;
}

} // namespace QtAV
