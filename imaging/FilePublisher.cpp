#include "imaging/FilePublisher.h"

#include "imaging/ExclusiveRename.h"
#include "imaging/HiddenFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

/// The result of writing, with the system's error number on failure.
struct Ending
{
    WriteResult result = WriteResult::Failed;
    int error = 0;

    static Ending written() { return {WriteResult::Written, 0}; }
    static Ending failed(int error) { return {WriteResult::Failed, error}; }
};

/// A file that is open for reading and writing.
class OpenFile
{
public:
    explicit OpenFile(int file)
        : m_file(file)
    {}
    ~OpenFile()
    {
        if (m_file >= 0) {
            ::close(m_file);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] bool isOpen() const { return m_file >= 0; }
    [[nodiscard]] qint64 size() const { return ::lseek(m_file, 0, SEEK_END); }

    /// Writes the content between two positions to the same positions in the file.
    [[nodiscard]] bool write(const QByteArray& content, qint64 from, qint64 to) const
    {
        while (from < to) {
            const ssize_t written = ::pwrite(m_file, content.constData() + from,
                                             static_cast<std::size_t>(to - from), from);
            if (written < 0 && errno == EINTR) {
                continue;
            }
            if (written <= 0) {
                return false;
            }
            from += written;
        }
        return true;
    }

    [[nodiscard]] bool resize(qint64 size) const { return ::ftruncate(m_file, size) == 0; }

    /// False if the system reports only now that writing failed.
    [[nodiscard]] bool close()
    {
        const int result = ::close(m_file);
        m_file = -1;
        return result == 0;
    }

private:
    int m_file;
};

/// Overwrites the file in place. The part that needs more room is written first, behind the old
/// content, and removed again if there is no room: so a full disk leaves the old content intact.
Ending overwriting(const QString& target, const QByteArray& content)
{
    // Links have been resolved before: a link found now was put there by somebody else.
    OpenFile file(::open(QFile::encodeName(target).constData(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    if (!file.isOpen()) {
        return Ending::failed(errno);
    }
    const qint64 oldSize = file.size();
    const qint64 newSize = content.size();
    const qint64 shared = std::min(oldSize, newSize);
    if (oldSize < 0) {
        return Ending::failed(errno);
    }
    if (!file.write(content, shared, newSize)) {
        const int error = errno;
        static_cast<void>(file.resize(oldSize));
        return Ending::failed(error);
    }
    const bool isWritten = file.write(content, 0, shared) && file.resize(newSize) && file.close();
    return isWritten ? Ending::written() : Ending::failed(errno);
}

/// Whether the error means that the target cannot be replaced by renaming: its folder is protected,
/// it belongs to another user in a shared folder, or it is a mount point.
bool isTargetFixed(int error)
{
    return error == EACCES || error == EPERM || error == EBUSY;
}

Ending replacing(const QByteArray& file, const QFileInfo& target, const QByteArray& content)
{
    const QString path = target.absoluteFilePath();
    if (std::rename(file.constData(), QFile::encodeName(path).constData()) == 0) {
        return Ending::written();
    }
    const int error = errno;
    const bool mayOverwrite = isTargetFixed(error) && target.exists();
    return mayOverwrite ? overwriting(path, content) : Ending::failed(error);
}

Ending keeping(const QByteArray& file, const QByteArray& target)
{
    switch (ExclusiveRename::rename(file, target)) {
    case ExclusiveRename::Outcome::Done:
        return Ending::written();
    case ExclusiveRename::Outcome::NameTaken:
        return {WriteResult::AlreadyExists, 0};
    case ExclusiveRename::Outcome::NotSupported:
    case ExclusiveRename::Outcome::Failed:
        break;
    }
    return Ending::failed(errno);
}

/// The file that replacing `fileName` refers to: the end of a chain of symbolic links.
QString withoutLinks(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.isSymLink()) {
        return fileName;
    }
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

/// Why the existing file may not be replaced, as the system's error number; 0 if it may.
int refusalOf(const QFileInfo& target)
{
    if (!target.isFile()) {
        return target.isDir() ? EISDIR : EOPNOTSUPP;
    }
    return target.isWritable() ? 0 : EACCES;
}

Ending published(const QString& fileName, const QByteArray& content, ExistingFile existing)
{
    const bool isReplacing = existing == ExistingFile::Replace;
    const QFileInfo target(isReplacing ? withoutLinks(fileName) : fileName);
    const bool isOldFile = isReplacing && target.exists();
    if (const int refusal = isOldFile ? refusalOf(target) : 0; refusal != 0) {
        return Ending::failed(refusal);
    }
    const QString folder = target.absolutePath();
    HiddenFile file;
    if (!file.create(folder)) {
        const bool mayOverwrite = isOldFile && !QFileInfo(folder).isWritable();
        return mayOverwrite ? overwriting(target.absoluteFilePath(), content)
                            : Ending::failed(file.error());
    }
    if (!file.fill(content)) {
        return Ending::failed(file.error());
    }
    if (!isReplacing) {
        return keeping(file.path(), QFile::encodeName(target.absoluteFilePath()));
    }
    if (isOldFile && !QFile::setPermissions(QFile::decodeName(file.path()), target.permissions())) {
        return Ending::failed(errno);
    }
    return replacing(file.path(), target, content);
}

/// How many files may exist at once if one more is prepared. Each has a descriptor open, and half
/// of the process's stay for everything else.
int mostPrepared()
{
    constexpr rlim_t reserved = 32;
    constexpr rlim_t most = 1 << 20;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0) {
        return 0;
    }
    const rlim_t half = std::min(limit.rlim_cur / 2, most);
    return static_cast<int>(half > reserved ? half - reserved : 0);
}

WriteResult told(const Ending& ending, const QString& fileName, qint64 bytes, WriteFailure* failure)
{
    if (failure != nullptr && ending.result == WriteResult::Failed) {
        *failure = WriteFailure::of(fileName, bytes, ending.error);
    }
    return ending.result;
}

} // namespace

WriteResult FilePublisher::publish(const QString& fileName, const QByteArray& content,
                                   ExistingFile existing, WriteFailure* failure)
{
    const Ending ending = published(fileName, content, existing);
    return told(ending, fileName, content.size(), failure);
}

std::shared_ptr<HiddenFile> FilePublisher::prepare(const QString& folder, const QByteArray& content)
{
    if (HiddenFile::count() >= mostPrepared()) {
        return nullptr;
    }
    auto file = std::make_shared<HiddenFile>();
    const bool isReady = file->create(folder) && file->fill(content) && file->isProtected();
    return isReady ? file : nullptr;
}

qint64 FilePublisher::sizeOf(const HiddenFile& prepared)
{
    return prepared.size();
}

WriteResult FilePublisher::publishPrepared(const QString& fileName, const HiddenFile& prepared,
                                           WriteFailure* failure)
{
    const QByteArray target = QFile::encodeName(QFileInfo(fileName).absoluteFilePath());
    return told(keeping(prepared.path(), target), fileName, prepared.size(), failure);
}

int FilePublisher::sweep(const QString& folder)
{
    return HiddenFile::sweep(folder);
}
