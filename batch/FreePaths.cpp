#include "batch/FreePaths.h"

#include "profiles/OutputNaming.h"

#include <QFileInfo>

#include <utility>

FreePaths::FreePaths(PathOf pathOf)
    : m_pathOf(std::move(pathOf))
{}

QString FreePaths::first(bool isSingle)
{
    if (isSingle) {
        const QString path = m_pathOf(OutputNaming::noCounter);
        if (!QFileInfo::exists(path)) {
            return path;
        }
    }
    return next();
}

QString FreePaths::next()
{
    QString path;
    do {
        path = m_pathOf(m_counter++);
    } while (QFileInfo::exists(path));
    return path;
}
