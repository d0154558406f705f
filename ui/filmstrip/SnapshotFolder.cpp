#include "ui/filmstrip/SnapshotFolder.h"

#include "imaging/FilePublisher.h"
#include "imaging/ImageFileWriter.h"
#include "ui/filmstrip/SnapshotIndex.h"

#include <QColorSpace>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace {

const QString indexName = QStringLiteral("index.json");
const QString lockName = QStringLiteral("lock");
const QString asideMark = QStringLiteral("-damaged-");

/// Endings of a snapshot's file names.
const QString imageEnd = QStringLiteral(".png");
const QString deepEnd = QStringLiteral(".deep.png");
const QString storedEnd = QStringLiteral(".hdr.png");
const QString thumbnailEnd = QStringLiteral(".small.png");

/// PNG is lossless at any setting; this one takes a third of the time of the smallest file.
constexpr int pngQuality = 80;

/// A longer list does not come from this program.
constexpr qint64 longestIndexBytes = 64 << 20;

[[nodiscard]] bool writeImage(const QString& path, const QImage& image)
{
    const QByteArray content = ImageFileWriter::encode(image, QStringLiteral("png"), pngQuality);
    return !content.isEmpty() &&
           FilePublisher::publish(path, content, ExistingFile::Replace) == WriteResult::Written;
}

/// Restores the image as it was written: opaque pictures have three channels, and the file's colour
/// space was not a property of the image.
[[nodiscard]] QImage readImage(const QString& path, bool isDeep)
{
    QImage image(path, "png");
    if (image.isNull()) {
        return {};
    }
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage::Format deep = hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64;
    const QImage::Format plain = hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB888;
    image = std::move(image).convertToFormat(isDeep ? deep : plain);
    image.setColorSpace({});
    return image;
}

QString beforeDot(const QString& name)
{
    return name.section(QLatin1Char('.'), 0, 0);
}

} // namespace

SnapshotFolder::SnapshotFolder(QString path)
    : m_path(std::move(path))
{}

SnapshotContents SnapshotFolder::open()
{
    SnapshotContents contents;
    if (!claim()) {
        contents.isRefused = true;
        return contents;
    }
    sweepOldFolders();
    QFile index(pathOf(indexName));
    if (index.exists()) {
        // A file that cannot even be opened may become readable again, so it stays.
        const bool isOpen = index.open(QIODevice::ReadOnly);
        const auto listed = SnapshotIndex::fromJson(index.read(longestIndexBytes));
        index.close();
        if (listed) {
            std::copy_if(listed->cbegin(), listed->cend(), std::back_inserter(contents.snapshots),
                         [this](const KeptSnapshot& one) { return isWorthKeeping(one); });
        } else if (!isOpen || !putAside(contents.putAside)) {
            m_lock.reset();
            contents.isRefused = true;
            return contents;
        }
    }
    removeStrangers(contents.snapshots);
    for (const KeptSnapshot& snapshot : qAsConst(contents.snapshots)) {
        contents.thumbnails.append(QImage(pathOf(snapshot.id + thumbnailEnd), "png"));
    }
    return contents;
}

/// Creates the folder if it is missing. Returns false if that fails, or another program uses it.
bool SnapshotFolder::claim()
{
    auto lock = std::make_unique<QLockFile>(pathOf(lockName));
    lock->setStaleLockTime(0);
    if (!QDir().mkpath(m_path) || !lock->tryLock()) {
        return false;
    }
    // Frames may show private content.
    QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_lock = std::move(lock);
    return true;
}

bool SnapshotFolder::isWorthKeeping(const KeptSnapshot& snapshot) const
{
    return !snapshot.isSaved &&
           snapshot.takenAt.addDays(keptDays) > QDateTime::currentDateTimeUtc() &&
           QFileInfo(pathOf(snapshot.id + imageEnd)).isFile();
}

/// Moves the whole folder aside, since its files are useless without their list, and might be
/// recovered with it. An empty folder replaces it. Returns false if that fails.
bool SnapshotFolder::putAside(QString& where)
{
    const QString stamp =
        QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
    m_lock.reset();
    if (!QDir().rename(m_path, m_path + asideMark + stamp)) {
        return false;
    }
    where = m_path + asideMark + stamp;
    return claim();
}

void SnapshotFolder::sweepOldFolders() const
{
    const QFileInfo folder(m_path);
    const QFileInfoList asides =
        folder.dir().entryInfoList({folder.fileName() + asideMark + QLatin1Char('*')}, QDir::Dirs);
    for (const QFileInfo& aside : asides) {
        if (aside.lastModified().addDays(keptDays) < QDateTime::currentDateTime()) {
            QDir(aside.absoluteFilePath()).removeRecursively();
        }
    }
}

void SnapshotFolder::removeStrangers(const QVector<KeptSnapshot>& snapshots)
{
    QSet<QString> known{lockName, beforeDot(indexName)};
    for (const KeptSnapshot& snapshot : snapshots) {
        known.insert(snapshot.id);
    }
    QDir folder(m_path);
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (!known.contains(beforeDot(name))) {
            folder.remove(name);
        }
    }
}

bool SnapshotFolder::write(const QString& id, const CapturedPicture& unpacked,
                           const QImage& thumbnail)
{
    const auto writeAll = [&] {
        return writeImage(pathOf(id + imageEnd), unpacked.image) &&
               (unpacked.deep.isNull() || writeImage(pathOf(id + deepEnd), unpacked.deep)) &&
               (unpacked.stored.isNull() || writeImage(pathOf(id + storedEnd), unpacked.stored)) &&
               writeImage(pathOf(id + thumbnailEnd), thumbnail);
    };
    bool isWritten = false;
    try {
        isWritten = m_lock != nullptr && writeAll();
    } catch (const std::bad_alloc&) {
        isWritten = false;
    }
    if (!isWritten) {
        remove(id);
    }
    return isWritten;
}

bool SnapshotFolder::writeIndex(const QVector<KeptSnapshot>& snapshots)
{
    return m_lock != nullptr &&
           FilePublisher::publish(pathOf(indexName), SnapshotIndex::toJson(snapshots),
                                  ExistingFile::Replace) == WriteResult::Written;
}

std::optional<CapturedPicture> SnapshotFolder::read(const KeptSnapshot& snapshot) const
{
    CapturedPicture picture;
    picture.source = snapshot.source;
    picture.colours = snapshot.colours;
    picture.image = readImage(pathOf(snapshot.id + imageEnd), false);
    const auto readMore = [&](QImage& image, const QString& end) {
        const QString path = pathOf(snapshot.id + end);
        image = readImage(path, true);
        return !image.isNull() || !QFileInfo::exists(path);
    };
    if (picture.image.isNull() || !readMore(picture.deep, deepEnd) ||
        !readMore(picture.stored, storedEnd)) {
        return {};
    }
    return picture;
}

void SnapshotFolder::remove(const QString& id)
{
    for (const QString& end : {imageEnd, deepEnd, storedEnd, thumbnailEnd}) {
        QFile::remove(pathOf(id + end));
    }
}

qint64 SnapshotFolder::byteCount() const
{
    qint64 sum = 0;
    const QFileInfoList files = QDir(m_path).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : files) {
        sum += file.size();
    }
    return sum;
}

QString SnapshotFolder::pathOf(const QString& name) const
{
    return QDir(m_path).filePath(name);
}
