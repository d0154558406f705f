#include "stills/PictureFiles.h"

#include "imaging/FilePublisher.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace stills {

namespace {

using Kind = PictureFiles::Outcome::Kind;

constexpr int mostAttempts = 1000000;

QString pathIn(const QString& folder, const QByteArray& name)
{
    return QDir(folder).filePath(QFile::decodeName(name));
}

/// A dangling link also counts as an existing file.
bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString tr(const char* text)
{
    return QCoreApplication::translate("stills", text);
}

/// Whether writing other pictures there would fail, too.
bool isHopeless(const WriteFailure& failure)
{
    return failure.isLackOfRoom() || failure.isOfFolder();
}

} // namespace

qint64 PictureFiles::Content::size() const
{
    return file ? FilePublisher::sizeOf(*file) : bytes.size();
}

bool PictureFiles::exists(const QString& folder, const QByteArray& name)
{
    return isThere(pathIn(folder, name));
}

PictureFiles::Outcome PictureFiles::writeUnder(const QString& path, const Content& content,
                                               bool replaces)
{
    WriteFailure failure;
    const auto existing = replaces ? ExistingFile::Replace : ExistingFile::Keep;
    const auto result = content.file
                            ? FilePublisher::publishPrepared(path, *content.file, &failure)
                            : FilePublisher::publish(path, content.bytes, existing, &failure);
    switch (result) {
    case WriteResult::Written:
        if (m_existing != Existing::NextName) {
            m_written.insert(path);
        }
        return {Kind::Written, path, {}, content.size()};
    case WriteResult::AlreadyExists:
        return {Kind::Skipped, path, {}};
    case WriteResult::Failed:
        break;
    }
    return {isHopeless(failure) ? Kind::NoRoom : Kind::Failed, path, failure.text(), content.size(),
            failure.missing};
}

PictureFiles::Outcome PictureFiles::write(const QString& folder, const NameForAttempt& name,
                                          const Content& content)
{
    if (folder != m_sweptFolder) {
        FilePublisher::sweep(folder);
        m_sweptFolder = folder;
    }
    for (int attempt = 1; attempt <= mostAttempts; ++attempt) {
        const QString path = pathIn(folder, name(attempt));
        // A file written by this run belongs to another picture, whatever the rule for existing
        // files.
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
