#include "ui/filmstrip/SnapshotShelf.h"

#include "profiles/ProfileNames.h"
#include "ui/filmstrip/SnapshotFolder.h"
#include "ui/widgets/PlainText.h"
#include "ui/widgets/TaskThread.h"
#include "ui/widgets/TimeText.h"

#include <QFileInfo>
#include <QUuid>

#include <algorithm>
#include <utility>

namespace {

/// Scaled in two steps, the first one fast: the result does not need finer detail.
QImage thumbnailOf(const QImage& image)
{
    const QSize size = image.size().scaled(SnapshotFolder::thumbnailSize, Qt::KeepAspectRatio);
    const QSize fitting = size.expandedTo({1, 1}).boundedTo(image.size());
    const QSize between = (fitting * 3).boundedTo(image.size());
    return image.scaled(between, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

SnapshotShelf::SnapshotShelf(QObject* parent)
    : QAbstractListModel(parent)
    , m_thread(std::make_unique<TaskThread>())
{}

SnapshotShelf::~SnapshotShelf() = default;

void SnapshotShelf::keepIn(const QString& folder)
{
    m_folder = std::make_shared<SnapshotFolder>(folder);
    const auto contents = std::make_shared<SnapshotContents>();
    const auto open = [folder = m_folder, contents] { *contents = folder->open(); };
    post(open, [this, contents] { bringBack(*contents); });
}

/// Snapshots added meanwhile follow.
void SnapshotShelf::bringBack(const SnapshotContents& contents)
{
    if (contents.isRefused) {
        m_folder.reset();
        Q_EMIT noticed(tr("Snapshots are not kept after this window is closed: another window, or "
                          "the disk, does not let it."));
        return;
    }
    if (!contents.putAside.isEmpty()) {
        Q_EMIT noticed(tr("The list of unsaved snapshots was damaged. It is now, with its files, "
                          "in %1")
                           .arg(contents.putAside));
    }
    if (contents.snapshots.isEmpty()) {
        return;
    }
    beginInsertRows({}, 0, contents.snapshots.size() - 1);
    for (int i = contents.snapshots.size() - 1; i >= 0; --i) {
        Entry entry;
        entry.note = contents.snapshots.at(i);
        entry.thumbnail = contents.thumbnails.at(i);
        entry.place = Place::Listed;
        m_entries.prepend(entry);
    }
    endInsertRows();
}

QString SnapshotShelf::add(const CapturedPicture& picture, const QString& profileId,
                           const QString& profileName)
{
    makeRoom();
    if (!hasRoom()) {
        return {};
    }
    Entry entry;
    entry.note.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    entry.note.takenAt = QDateTime::currentDateTimeUtc();
    entry.note.profileId = profileId;
    entry.note.profileName = profileName;
    entry.note.source = picture.source;
    if (picture.frame.isValid()) {
        entry.note.colours = picture.frame.storedColours();
    }
    const QString id = entry.note.id;
    beginInsertRows({}, m_entries.size(), m_entries.size());
    m_entries.append(entry);
    keepInMemory(m_entries.last(), picture);
    endInsertRows();
    // There may be room now for those that could not be written.
    for (Entry& one : m_entries) {
        if (one.place == Place::InMemory && !one.isBeingWritten) {
            write(one);
        }
    }
    writeIndex();
    return id;
}

bool SnapshotShelf::hasRoom() const
{
    return m_entries.size() < m_limits.count && m_diskBytes < m_limits.diskBytes &&
           m_memoryBytes < m_limits.memoryBytes;
}

void SnapshotShelf::makeRoom()
{
    const auto isSaved = [](const Entry& entry) { return entry.note.isSaved; };
    while (!hasRoom()) {
        const auto oldest = std::find_if(m_entries.cbegin(), m_entries.cend(), isSaved);
        if (oldest == m_entries.cend()) {
            return;
        }
        // An estimate; it is measured again when the next one is written.
        m_diskBytes -= m_diskBytes / m_entries.size();
        discard(take({index(int(oldest - m_entries.cbegin()))}));
    }
}

void SnapshotShelf::keepInMemory(Entry& entry, const CapturedPicture& picture)
{
    entry.picture = picture;
    m_memoryBytes += picture.byteCount();
}

void SnapshotShelf::forgetPicture(Entry& entry)
{
    m_memoryBytes -= entry.picture.byteCount();
    entry.picture = CapturedPicture();
}

void SnapshotShelf::write(Entry& entry)
{
    entry.isBeingWritten = true;
    struct Outcome
    {
        QImage thumbnail;
        bool isWritten = false;
        qint64 diskBytes = 0;
    };
    const auto outcome = std::make_shared<Outcome>();
    const QString id = entry.note.id;
    const auto task = [folder = m_folder, id, picture = entry.picture, outcome] {
        outcome->thumbnail = thumbnailOf(picture.image);
        if (folder == nullptr) {
            return;
        }
        const CapturedPicture unpacked = picture.unpacked();
        outcome->isWritten =
            unpacked.isWhole(picture.frame) && folder->write(id, unpacked, outcome->thumbnail);
        outcome->diskBytes = folder->byteCount();
    };
    post(task, [this, id, outcome] {
        m_diskBytes = outcome->diskBytes;
        noticeWritten(id, outcome->thumbnail, outcome->isWritten);
    });
}

/// The snapshot may have been removed meanwhile.
void SnapshotShelf::noticeWritten(const QString& id, const QImage& thumbnail, bool isWritten)
{
    Entry* const entry = find(id);
    if (entry == nullptr) {
        return;
    }
    entry->isBeingWritten = false;
    entry->thumbnail = thumbnail;
    if (isWritten) {
        entry->place = Place::OnDisk;
        forgetPicture(*entry);
    } else if (m_folder != nullptr) {
        noticeFailure();
    }
    notice(id, {ThumbnailRole});
}

void SnapshotShelf::noticeFailure()
{
    if (!std::exchange(m_hasFailed, true)) {
        Q_EMIT noticed(tr("Unsaved snapshots could not be written to the disk, and are lost when "
                          "the window is closed."));
    }
}

/// Queued after pending writes. A snapshot that cannot be written is listed as well, which is
/// harmless: without its picture it is not restored.
void SnapshotShelf::writeIndex()
{
    if (m_folder == nullptr) {
        return;
    }
    QVector<KeptSnapshot> notes;
    QStringList ids;
    for (const Entry& entry : qAsConst(m_entries)) {
        notes.append(entry.note);
        ids.append(entry.note.id);
    }
    const auto isWritten = std::make_shared<bool>(false);
    const auto task = [folder = m_folder, notes, isWritten] {
        *isWritten = folder->writeIndex(notes);
    };
    post(task, [this, ids, isWritten] { noticeIndex(ids, *isWritten); });
}

void SnapshotShelf::noticeIndex(const QStringList& ids, bool isWritten)
{
    if (!isWritten) {
        noticeFailure();
        return;
    }
    for (const QString& id : ids) {
        Entry* const entry = find(id);
        if (entry != nullptr && entry->place == Place::OnDisk) {
            entry->place = Place::Listed;
        }
    }
}

void SnapshotShelf::setProfile(const QString& id, const QString& profileId,
                               const QString& profileName)
{
    Entry* const entry = find(id);
    if (entry == nullptr ||
        (entry->note.profileId == profileId && entry->note.profileName == profileName)) {
        return;
    }
    entry->note.profileId = profileId;
    entry->note.profileName = profileName;
    notice(id, {ProfileRole});
    writeIndex();
}

void SnapshotShelf::markSaved(const QString& id)
{
    Entry* const entry = find(id);
    if (entry != nullptr && !std::exchange(entry->note.isSaved, true)) {
        notice(id, {IsSavedRole});
        writeIndex();
    }
}

QVector<SnapshotShelf::Taken> SnapshotShelf::take(const QModelIndexList& indexes)
{
    QVector<int> rows;
    for (const QModelIndex& one : indexes) {
        rows.append(one.row());
    }
    std::sort(rows.begin(), rows.end());
    QVector<Taken> taken;
    for (int i = rows.size() - 1; i >= 0; --i) {
        beginRemoveRows({}, rows.at(i), rows.at(i));
        taken.prepend({rows.at(i), m_entries.takeAt(rows.at(i))});
        endRemoveRows();
    }
    writeIndex();
    return taken;
}

void SnapshotShelf::putBack(const QVector<Taken>& taken)
{
    for (const Taken& one : taken) {
        const int row = std::min<int>(one.row, m_entries.size());
        beginInsertRows({}, row, row);
        m_entries.insert(row, one.entry);
        endInsertRows();
        if (one.entry.place == Place::InMemory) {
            write(m_entries[row]);
        }
    }
    writeIndex();
}

void SnapshotShelf::discard(const QVector<Taken>& taken)
{
    QStringList ids;
    for (const Taken& one : taken) {
        ids.append(one.entry.note.id);
        m_memoryBytes -= one.entry.picture.byteCount();
    }
    if (m_folder == nullptr) {
        return;
    }
    const auto remove = [folder = m_folder, ids] {
        for (const QString& id : ids) {
            folder->remove(id);
        }
    };
    post(remove, [] {});
}

void SnapshotShelf::load(const QString& id)
{
    const auto read = std::make_shared<CapturedPicture>();
    const auto work = [read](const CapturedPicture* picture) {
        if (picture != nullptr) {
            *read = *picture;
        }
        return picture != nullptr;
    };
    process(id, work, [this, id, read](bool isRead) {
        if (isRead) {
            Q_EMIT loaded(id, *read);
        } else {
            Q_EMIT loadFailed(id);
        }
    });
}

void SnapshotShelf::process(const QString& id,
                            std::function<bool(const CapturedPicture* picture)> work,
                            std::function<void(bool)> done)
{
    const Entry* const entry = find(id);
    if (entry == nullptr) {
        return;
    }
    const auto result = std::make_shared<bool>(false);
    const auto task = [folder = m_folder, entry = *entry, work = std::move(work), result] {
        if (entry.place == Place::InMemory) {
            *result = work(&entry.picture);
            return;
        }
        const std::optional<CapturedPicture> picture =
            folder == nullptr ? std::nullopt : folder->read(entry.note);
        *result = work(picture ? &*picture : nullptr);
    };
    post(task, [done = std::move(done), result] { done(*result); });
}

/// The destructor waits for the tasks; callbacks that they post then are dropped.
void SnapshotShelf::post(std::function<void()> task, std::function<void()> done)
{
    ++m_pendingTasks;
    m_thread->post([this, task = std::move(task), done = std::move(done)] {
        task();
        m_callbacks.post([this, done] { finishTask(done); });
    });
}

/// The tasks end in the order in which they were posted.
void SnapshotShelf::finishTask(const std::function<void()>& done)
{
    done();
    --m_pendingTasks;
    if (m_pendingTasks == 0) {
        Q_EMIT settled();
    }
}

std::optional<KeptSnapshot> SnapshotShelf::snapshot(const QString& id) const
{
    const Entry* const entry = find(id);
    return entry == nullptr ? std::nullopt : std::optional<KeptSnapshot>(entry->note);
}

QStringList SnapshotShelf::unsaved() const
{
    QStringList ids;
    for (const Entry& entry : m_entries) {
        if (!entry.note.isSaved) {
            ids.append(entry.note.id);
        }
    }
    return ids;
}

QVector<qint64> SnapshotShelf::timesIn(const QString& video) const
{
    QVector<qint64> times;
    for (const Entry& entry : m_entries) {
        if (entry.note.source.video == video) {
            times.append(entry.note.source.positionMs());
        }
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

bool SnapshotShelf::isSafe(const Entry& entry)
{
    return entry.note.isSaved || entry.place == Place::Listed;
}

bool SnapshotShelf::isSafe(const QString& id) const
{
    const Entry* const entry = find(id);
    return entry != nullptr && isSafe(*entry);
}

int SnapshotShelf::unsafeCount() const
{
    const auto isUnsafe = [](const Entry& entry) { return !isSafe(entry); };
    return int(std::count_if(m_entries.cbegin(), m_entries.cend(), isUnsafe));
}

int SnapshotShelf::rowOf(const QString& id) const
{
    const auto isIt = [&id](const Entry& entry) { return entry.note.id == id; };
    const auto found = std::find_if(m_entries.cbegin(), m_entries.cend(), isIt);
    return found == m_entries.cend() ? -1 : int(found - m_entries.cbegin());
}

SnapshotShelf::Entry* SnapshotShelf::find(const QString& id)
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : &m_entries[row];
}

const SnapshotShelf::Entry* SnapshotShelf::find(const QString& id) const
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : &m_entries.at(row);
}

QModelIndex SnapshotShelf::indexOf(const QString& id) const
{
    const int row = rowOf(id);
    return row < 0 ? QModelIndex() : index(row);
}

void SnapshotShelf::notice(const QString& id, const QVector<int>& roles)
{
    const QModelIndex changed = indexOf(id);
    // The texts show all properties.
    Q_EMIT dataChanged(changed, changed, roles + QVector<int>{Qt::DisplayRole, Qt::ToolTipRole});
}

int SnapshotShelf::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant SnapshotShelf::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size()) {
        return {};
    }
    const Entry& entry = m_entries.at(index.row());
    const QString time = timeText(entry.note.source.positionMs());
    const QString state = entry.note.isSaved ? tr("saved") : tr("not saved");
    const QString video = QFileInfo(entry.note.source.video).fileName();
    const QString profileName = ProfileNames::shown(entry.note.profileName);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return tr("%1, %2, %3, %4").arg(time, profileName, video, state);
    case Qt::ToolTipRole:
        return asPlainText(tr("%1 at %2\n%3, %4").arg(video, time, profileName, state));
    case ThumbnailRole:
        return entry.thumbnail;
    case IdRole:
        return entry.note.id;
    case TimeRole:
        return time;
    case ProfileRole:
        return profileName;
    case IsSavedRole:
        return entry.note.isSaved;
    default:
        return {};
    }
}
