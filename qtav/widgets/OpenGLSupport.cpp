#include "qtav/widgets/OpenGLSupport.h"

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
    constexpr const char* Names[] = {"llvmpipe", "softpipe", "Software", "SwiftShader"};
    return std::any_of(std::begin(Names), std::end(Names),
                       [&renderer](const char* name) { return renderer.contains(name); });
}

OpenGLSupport tryOpenGL()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!surface.isValid() || !context.create() || !context.makeCurrent(&surface))
        return OpenGLSupport::None;
    const auto* name = reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
    return isSoftware(QByteArray(name)) ? OpenGLSupport::Software : OpenGLSupport::Hardware;
}

} // namespace

OpenGLSupport openGLSupport()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return OpenGLSupport::None;
    static const OpenGLSupport support = tryOpenGL();
    return support;
}

} // namespace QtAV
