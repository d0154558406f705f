#include "imaging/HiddenFile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <atomic>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int nameAttempts = 16;
constexpr std::time_t oldSeconds = 3600;

std::atomic<int> liveFiles{0};

QByteArray newPath(const QString& folder)
{
    const quint64 number = QRandomGenerator::system()->generate64();
    const QString name =
        QStringLiteral(".morvantile-%1.part").arg(number, 16, 16, QLatin1Char('0'));
    return QFile::encodeName(folder + QLatin1Char('/') + name);
}

bool isOurName(const QString& name)
{
    static const QRegularExpression ours(QStringLiteral("^\\.morvantile-[0-9a-f]{16}\\.part$"));
    return ours.match(name).hasMatch();
}

/// Locks a new file for its creator. False if another program's sweep() was quicker, which removes
/// the file: a process may have been suspended since it created the file.
bool lockNew(int file)
{
    // Where locks are missing, sweep() gets none either and removes nothing.
    if (::flock(file, LOCK_EX | LOCK_NB) != 0) {
        return errno != EWOULDBLOCK;
    }
    struct stat facts = {};
    return ::fstat(file, &facts) != 0 || facts.st_nlink > 0;
}

/// Removes the file if it is an old one of ours that is not locked by its creator.
bool removeLeftOver(const QByteArray& path)
{
    const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return false;
    }
    struct stat facts = {};
    const bool isOld = ::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) &&
                       std::time(nullptr) - facts.st_mtime > oldSeconds;
    // A shared lock conflicts with the creator's, too. NFS gives no other one for reading. It is
    // held until the file is gone, so that the creator cannot get its own in between.
    const bool isRemoved =
        isOld && ::flock(file, LOCK_SH | LOCK_NB) == 0 && ::unlink(path.constData()) == 0;
    ::close(file);
    return isRemoved;
}

} // namespace

HiddenFile::~HiddenFile()
{
    if (!m_path.isEmpty()) {
        ::unlink(m_path.constData());
        --liveFiles;
    }
    if (m_file >= 0) {
        ::close(m_file);
    }
}

int HiddenFile::count()
{
    return liveFiles.load();
}

bool HiddenFile::failed()
{
    m_error = errno;
    return false;
}

bool HiddenFile::create(const QString& folder)
{
    for (int attempt = 0; attempt < nameAttempts; ++attempt) {
        const QByteArray path = newPath(folder);
        const int file = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file < 0 && errno != EEXIST && errno != EINTR) {
            break;
        }
        if (file >= 0 && lockNew(file)) {
            m_file = file;
            m_path = path;
            ++liveFiles;
            return true;
        }
        if (file >= 0) {
            ::unlink(path.constData());
            ::close(file);
        }
    }
    return failed();
}

bool HiddenFile::fill(const QByteArray& content)
{
    for (qint64 done = 0; done < content.size();) {
        const ssize_t written = ::write(m_file, content.constData() + done,
                                        static_cast<std::size_t>(content.size() - done));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return failed();
        }
        done += written;
        m_size += written;
    }
    return close();
}

/// A duplicate shares the lock, which lasts until both are closed.
bool HiddenFile::close()
{
    const int lock = ::fcntl(m_file, F_DUPFD_CLOEXEC, 0);
    m_isProtected = lock >= 0;
    const int result = ::close(std::exchange(m_file, lock));
    return result == 0 || failed();
}

int HiddenFile::sweep(const QString& folder)
{
    int removed = 0;
    const QStringList names =
        QDir(folder).entryList({QStringLiteral(".morvantile-*.part")}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        const QByteArray path = QFile::encodeName(folder + QLatin1Char('/') + name);
        if (isOurName(name) && removeLeftOver(path)) {
            ++removed;
        }
    }
    return removed;
}
