#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace testsupport {

TestDir::TestDir()
{
    if (!m_dir.isValid()) {
        qFatal("No temporary folder: %s", qUtf8Printable(m_dir.errorString()));
    }
}

TestDir::~TestDir()
{
    if (!QTest::currentTestFailed()) {
        return;
    }
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

QString TestDir::makeFile(const QString& name, const QByteArray& content) const
{
    QDir().mkpath(QFileInfo(filePath(name)).path());
    QFile file(filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write %s", qUtf8Printable(file.fileName()));
    }
    return file.fileName();
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace testsupport
