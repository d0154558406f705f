#include "qtav/widgets/OpenGLSupport.h"

#include "qtav/include/QtAVWidgets/QtAVWidgets"

#include <QFile>
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

/// Qt's name for what makes contexts under X11, and its word for nothing.
constexpr const char* Integration = "QT_XCB_GL_INTEGRATION";
constexpr const char* NoIntegration = "none";

} // namespace

bool hasGraphicsDevice(const QString& folder)
{
    constexpr const char* Devices[] = {"dri", "nvidiactl", "dxg"};
    return std::any_of(std::begin(Devices), std::end(Devices), [&folder](const char* name) {
        return QFile::exists(folder + QLatin1Char('/') + QLatin1String(name));
    });
}

namespace Widgets {

void avoidImitatedOpenGL()
{
#ifdef Q_OS_LINUX
    const bool isDecided = qEnvironmentVariableIsSet(Integration);
    if (!isDecided && !hasGraphicsDevice(QStringLiteral("/dev")))
        qputenv(Integration, NoIntegration);
#endif
}

} // namespace Widgets

OpenGLSupport openGLSupport()
{
    const bool isAvoided = qgetenv(Integration) == NoIntegration;
    if (isAvoided || !qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return OpenGLSupport::None;
    static const OpenGLSupport support = tryOpenGL();
    return support;
}

} // namespace QtAV
