#include "imaging/FilePublisher.h"

#include "imaging/ExclusiveRename.h"
#include "imaging/HiddenFile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

/// How writing ended, with the system's number for why it failed.
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

    /// Writes the part of the content between two places to where it belongs.
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

    /// False where the system tells only now that something was not written.
    [[nodiscard]] bool close()
    {
        const int result = ::close(m_file);
        m_file = -1;
        return result == 0;
    }

private:
    int m_file;
};

/// Writes into the file itself. What needs room is written first, behind the old content, and cut
/// off again where there is none: a full disk then costs nothing.
Ending overwriting(const QString& target, const QByteArray& content)
{
    // Links have been followed before: one that is there now was put there by somebody else.
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

/// Whether that is why a file could not be renamed: the folder is protected, or the target is
/// another user's in a folder for all, or a mount point.
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

/// The file that replacing `fileName` is about: the one at the end of a chain of symbolic links.
QString withoutLinks(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.isSymLink()) {
        return fileName;
    }
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

Ending published(const QString& fileName, const QByteArray& content, ExistingFile existing)
{
    const bool isReplacing = existing == ExistingFile::Replace;
    const QFileInfo target(isReplacing ? withoutLinks(fileName) : fileName);
    if (isReplacing && target.exists() && (!target.isFile() || !target.isWritable())) {
        return Ending::failed(target.isDir() ? EISDIR : EACCES);
    }
    const bool isOldFile = isReplacing && target.exists();
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
    auto file = std::make_shared<HiddenFile>();
    return file->create(folder) && file->fill(content) ? file : nullptr;
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
