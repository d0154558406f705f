#include "ui/theme/Icons.h"

#include "ui/theme/LineIconEngine.h"

#include <QFile>
#include <QtPlugin>

#include <memory>

Q_IMPORT_PLUGIN(LineIconPlugin)

QIcon theme::icon(const QString& name, Ink ink)
{
    if (!QFile::exists(LineIconEngine::fileOf(name))) {
        return {};
    }
    // QIcon takes ownership.
    return QIcon(std::make_unique<LineIconEngine>(name, ink).release());
}

QIcon theme::inInk(const QIcon& icon, Ink ink)
{
    const QIcon other = theme::icon(icon.name(), ink);
    return other.isNull() ? icon : other;
}
