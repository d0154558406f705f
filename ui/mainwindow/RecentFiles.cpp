#include "ui/mainwindow/RecentFiles.h"

#include "ui/widgets/DiskTask.h"

#include <QFileInfo>
#include <QSettings>

#include <atomic>
#include <memory>
#include <vector>

namespace {

const QString key = QStringLiteral("recentFiles");

} // namespace

QStringList RecentFiles::in(const QSettings& settings)
{
    return settings.value(key).toStringList().mid(0, most);
}

QStringList RecentFiles::present(const QStringList& files)
{
    if (files.isEmpty()) {
        return {};
    }
    const auto areMissing =
        std::make_shared<std::vector<std::atomic<bool>>>(std::size_t(files.size()));
    const auto ask = [files, areMissing] {
        std::size_t i = 0;
        for (const QString& file : files) {
            (*areMissing)[i++] = !QFileInfo(file).isFile();
        }
    };
    // Those that were answered count in any case.
    static_cast<void>(DiskTask::endsSoon(ask));
    QStringList present;
    std::size_t i = 0;
    for (const QString& file : files) {
        if (!(*areMissing)[i++]) {
            present.append(file);
        }
    }
    return present;
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
