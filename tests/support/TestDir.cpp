#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace testsupport {

TestDir::TestDir()
{
    if (!m_dir.isValid())
        qFatal("No temporary folder: %s", qUtf8Printable(m_dir.errorString()));
}

TestDir::~TestDir()
{
    if (!QTest::currentTestFailed())
        return;
    m_dir.setAutoRemove(false);
    qInfo("The folder of the failed case is kept: %s", qUtf8Printable(m_dir.path()));
}

QString TestDir::path() const
{
    return m_dir.path();
}

QString TestDir::filePath(const QString& name) const
{
    return m_dir.filePath(name);
}

QString TestDir::addFile(const QString& name) const
{
    const QString path = filePath(name);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly)) {
        qFatal("cannot write %s", qUtf8Printable(path));
    }
    return path;
}

} // namespace testsupport
