#include "stills/PictureFiles.h"

#include "imaging/FilePublisher.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

namespace stills {

namespace {

using Kind = PictureFiles::Outcome::Kind;

constexpr int mostAttempts = 1000000;

QString pathIn(const QString& folder, const QByteArray& name)
{
    return QDir(folder).filePath(QFile::decodeName(name));
}

/// A link that leads nowhere is there as well.
bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString tr(const char* text)
{
    return QCoreApplication::translate("stills", text);
}

/// Why a file could not be written, as far as that can be seen afterwards.
PictureFiles::Outcome failure(const QString& path, qint64 bytes)
{
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir()) {
        return {Kind::NoRoom, path, tr("The folder is gone: %1").arg(folder.filePath())};
    }
    if (!folder.isWritable()) {
        return {Kind::NoRoom, path,
                tr("The folder does not let you write: %1").arg(folder.filePath())};
    }
    const QStorageInfo disk(folder.filePath());
    if (disk.isValid() && disk.isReadOnly()) {
        return {Kind::NoRoom, path, tr("The disk is read-only: %1").arg(disk.rootPath())};
    }
    if (disk.isValid() && disk.bytesAvailable() >= 0 && disk.bytesAvailable() < bytes) {
        return {Kind::NoRoom, path, tr("The disk is full: %1").arg(disk.rootPath())};
    }
    return {Kind::Failed, path, tr("Cannot be written: %1").arg(path)};
}

} // namespace

bool PictureFiles::exists(const QString& folder, const QByteArray& name)
{
    return isThere(pathIn(folder, name));
}

PictureFiles::Outcome PictureFiles::writeUnder(const QString& path, const QByteArray& content,
                                               bool replaces)
{
    switch (FilePublisher::publish(path, content,
                                   replaces ? ExistingFile::Replace : ExistingFile::Keep)) {
    case WriteResult::Written:
        if (m_existing != Existing::NextName) {
            m_written.insert(path);
        }
        return {Kind::Written, path, {}};
    case WriteResult::AlreadyExists:
        return {Kind::Skipped, path, {}};
    case WriteResult::Failed:
        break;
    }
    return failure(path, content.size());
}

PictureFiles::Outcome PictureFiles::write(const QString& folder, const NameForAttempt& name,
                                          const QByteArray& content)
{
    for (int attempt = 1; attempt <= mostAttempts; ++attempt) {
        const QString path = pathIn(folder, name(attempt));
        // What this run has written is another picture, whatever the rule for older files.
        if (m_written.contains(path)) {
            continue;
        }
        const bool isTaken = m_existing != Existing::Overwrite && isThere(path);
        if (isTaken && m_existing == Existing::Skip) {
            return {Kind::Skipped, path, {}};
        }
        if (isTaken) {
            continue;
        }
        const Outcome outcome = writeUnder(path, content, m_existing == Existing::Overwrite);
        if (outcome.kind != Kind::Skipped || m_existing == Existing::Skip) {
            return outcome;
        }
    }
    return {Kind::Failed, folder, tr("There is no free name: %1").arg(folder)};
}

} // namespace stills
