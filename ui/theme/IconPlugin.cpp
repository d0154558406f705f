#include "ui/theme/IconPlugin.h"

#include "ui/theme/LineIconEngine.h"

#include <memory>

QIconEngine* LineIconPlugin::create(const QString& fileName)
{
    Q_UNUSED(fileName)
    // QIcon takes ownership, and passes the file name to addFile().
    return std::make_unique<LineIconEngine>().release();
}
