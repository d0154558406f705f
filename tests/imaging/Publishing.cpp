#include "tests/imaging/Publishing.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <sys/wait.h>

namespace publishing {

namespace {

constexpr uid_t nobody = 65534;

} // namespace

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

bool put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

bool setMode(const QString& path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
}

int exitCode(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

WriteResult publishedByNobody(const QString& path, ExistingFile existing, const QByteArray& content)
{
    const pid_t child = startProcess([&] {
        if (::geteuid() == 0 && ::setuid(nobody) != 0) {
            return -1;
        }
        return static_cast<int>(FilePublisher::publish(path, content, existing));
    });
    return static_cast<WriteResult>(exitCode(child));
}

} // namespace publishing
