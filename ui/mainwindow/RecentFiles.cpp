#include "ui/mainwindow/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

namespace {

const QString key = QStringLiteral("recentFiles");

} // namespace

QStringList RecentFiles::in(const QSettings& settings)
{
    return settings.value(key).toStringList().mid(0, most);
}

void RecentFiles::add(QSettings& settings, const QString& path)
{
    QStringList files = in(settings);
    const QString absolute = QFileInfo(path).absoluteFilePath();
    files.removeAll(absolute);
    files.prepend(absolute);
    settings.setValue(key, QStringList(files.mid(0, most)));
}

void RecentFiles::clear(QSettings& settings)
{
    settings.remove(key);
}
