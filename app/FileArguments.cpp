#include "app/FileArguments.h"

#include <QFileInfo>
#include <QUrl>

namespace {

QString pathOf(const QString& argument)
{
    const QUrl url(argument);
    return QFileInfo(url.isLocalFile() ? url.toLocalFile() : argument).absoluteFilePath();
}

} // namespace

QStringList FileArguments::in(const QStringList& arguments)
{
    QStringList files;
    bool areOptionsOver = false;
    for (const QString& argument : arguments) {
        if (!areOptionsOver && argument == QLatin1String("--")) {
            areOptionsOver = true;
        } else if (areOptionsOver || !argument.startsWith(QLatin1Char('-'))) {
            files += pathOf(argument);
        }
    }
    return files;
}
