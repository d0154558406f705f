#include "app/GraphicsPolicy.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <iterator>

bool GraphicsPolicy::hasGraphicsDevice(const QString& folder)
{
    constexpr const char* names[] = {"dri", "nvidiactl", "dxg"};
    return std::any_of(std::begin(names), std::end(names), [&folder](const char* name) {
        return QFile::exists(folder + QLatin1Char('/') + QLatin1String(name));
    });
}

void GraphicsPolicy::avoidImitatedOpenGL(const QString& devices)
{
#ifdef Q_OS_LINUX
    // Qt's setting for creating contexts under X11, and its value for none.
    constexpr const char* integration = "QT_XCB_GL_INTEGRATION";
    const bool isDecided = qEnvironmentVariableIsSet(integration);
    if (!isDecided && !hasGraphicsDevice(devices)) {
        qputenv(integration, "none");
    }
#else
    Q_UNUSED(devices)
#endif
}
