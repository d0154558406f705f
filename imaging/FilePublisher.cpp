#include "imaging/FilePublisher.h"

#include "imaging/ExclusiveRename.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>

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

WriteResult replacing(const QByteArray& file, const QByteArray& target)
{
    const bool isDone = std::rename(file.constData(), target.constData()) == 0;
    return isDone ? WriteResult::Written : WriteResult::Failed;
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

    HiddenFile file;
    if (!file.create(target.absolutePath()) || !file.fill(content))
        return WriteResult::Failed;
    const QByteArray path = QFile::encodeName(target.absoluteFilePath());
    if (!isReplacing)
        return keeping(file.path(), path);
    if (target.exists() && !file.setPermissions(target.permissions()))
        return WriteResult::Failed;
    return replacing(file.path(), path);
}
