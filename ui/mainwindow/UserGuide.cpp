#include "ui/mainwindow/UserGuide.h"

#include "product/ProductInfo.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace {

/// Relative to the program: as installed on Linux, and inside its bundle on macOS.
QStringList installedFolders()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    return {programs.filePath(QStringLiteral("../share/morvantile/user-guide")),
            programs.filePath(QStringLiteral("../Resources/user-guide"))};
}

QUrl withSection(QUrl guide, const QString& section)
{
    if (!section.isEmpty()) {
        guide.setFragment(section);
    }
    return guide;
}

} // namespace

QUrl UserGuide::url(const QString& section)
{
    return url(section, installedFolders());
}

QUrl UserGuide::url(const QString& section, const QStringList& folders)
{
    for (const QString& folder : folders) {
        const QFileInfo page(QDir(folder), QStringLiteral("user-guide.html"));
        if (page.isFile()) {
            return withSection(QUrl::fromLocalFile(page.canonicalFilePath()), section);
        }
    }
    return withSection(
        QUrl(QLatin1String("https://") + ProductInfo::domain() + QLatin1String("/support")),
        section);
}
