#include "imaging/FilePublisher.h"

#include "imaging/ExclusiveRename.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace {

constexpr int NameAttempts = 16;

/// A hidden file that is removed again, unless it has got another name in the meantime.
class HiddenFile
{
public:
    HiddenFile() = default;
    ~HiddenFile()
    {
        if (m_exists)
            QFile::remove(m_file.fileName());
    }
    HiddenFile(const HiddenFile&) = delete;
    HiddenFile& operator=(const HiddenFile&) = delete;

    /// Makes a new, empty file of a name that nobody else has in the folder.
    bool create(const QString& folder)
    {
        for (int attempt = 0; attempt < NameAttempts && !m_exists; ++attempt) {
            const quint64 number = QRandomGenerator::system()->generate64();
            m_file.setFileName(
                folder +
                QStringLiteral("/.morvantile-%1.part").arg(number, 16, 16, QLatin1Char('0')));
            m_exists =
                m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered);
        }
        return m_exists;
    }

    /// Writes all of the content and closes the file; some file systems tell of a full disk or
    /// quota no sooner than then.
    bool fill(const QByteArray& content)
    {
        const bool isWritten = m_file.write(content) == content.size();
        m_file.close();
        return isWritten && m_file.error() == QFileDevice::NoError;
    }

    bool setPermissions(QFileDevice::Permissions permissions)
    {
        return m_file.setPermissions(permissions);
    }

    QByteArray path() const { return QFile::encodeName(m_file.fileName()); }

private:
    QFile m_file;
    bool m_exists = false;
};

/// Writes into the file itself. What needs room is written first, behind the old content, and cut
/// off again where there is none: a full disk then costs nothing.
WriteResult overwriting(const QString& target, const QByteArray& content)
{
    // Links have been followed before: one that is there now was put there by somebody else.
    const int descriptor =
        ::open(QFile::encodeName(target).constData(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered,
                                     QFileDevice::AutoCloseHandle))
        return WriteResult::Failed;
    const auto write = [&file, &content](qint64 from, qint64 to) {
        return file.seek(from) && file.write(content.constData() + from, to - from) == to - from;
    };
    const qint64 oldSize = file.size();
    const qint64 newSize = content.size();
    const qint64 shared = std::min(oldSize, newSize);
    if (!write(shared, newSize)) {
        file.resize(oldSize);
        return WriteResult::Failed;
    }
    const bool isWritten = write(0, shared) && file.resize(newSize);
    file.close();
    const bool isWhole = isWritten && file.error() == QFileDevice::NoError;
    return isWhole ? WriteResult::Written : WriteResult::Failed;
}

/// Whether that is why a file could not be renamed: the folder is protected, or the target is
/// another user's in a folder for all, or a mount point.
bool isTargetFixed(int error)
{
    return error == EACCES || error == EPERM || error == EBUSY;
}

WriteResult replacing(const QByteArray& file, const QFileInfo& target, const QByteArray& content)
{
    const QString path = target.absoluteFilePath();
    if (std::rename(file.constData(), QFile::encodeName(path).constData()) == 0)
        return WriteResult::Written;
    const bool mayOverwrite = isTargetFixed(errno) && target.exists();
    return mayOverwrite ? overwriting(path, content) : WriteResult::Failed;
}

WriteResult keeping(const QByteArray& file, const QByteArray& target)
{
    switch (ExclusiveRename::rename(file, target)) {
    case ExclusiveRename::Outcome::Done:
        return WriteResult::Written;
    case ExclusiveRename::Outcome::NameTaken:
        return WriteResult::AlreadyExists;
    case ExclusiveRename::Outcome::NotSupported:
    case ExclusiveRename::Outcome::Failed:
        break;
    }
    return WriteResult::Failed;
}

/// The file that replacing `fileName` is about: the one at the end of a chain of symbolic links.
QString withoutLinks(const QString& fileName)
{
    const QFileInfo info(fileName);
    if (!info.isSymLink())
        return fileName;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

} // namespace

WriteResult FilePublisher::publish(const QString& fileName, const QByteArray& content,
                                   ExistingFile existing)
{
    const bool isReplacing = existing == ExistingFile::Replace;
    const QFileInfo target(isReplacing ? withoutLinks(fileName) : fileName);
    if (isReplacing && target.exists() && (!target.isFile() || !target.isWritable()))
        return WriteResult::Failed;

    const bool isOldFile = isReplacing && target.exists();
    const QString folder = target.absolutePath();
    HiddenFile file;
    if (!file.create(folder)) {
        const bool mayOverwrite = isOldFile && !QFileInfo(folder).isWritable();
        return mayOverwrite ? overwriting(target.absoluteFilePath(), content) : WriteResult::Failed;
    }
    if (!file.fill(content))
        return WriteResult::Failed;
    if (!isReplacing)
        return keeping(file.path(), QFile::encodeName(target.absoluteFilePath()));
    if (isOldFile && !file.setPermissions(target.permissions()))
        return WriteResult::Failed;
    return replacing(file.path(), target, content);
}
