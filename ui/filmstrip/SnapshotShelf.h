#pragma once

#include "imaging/CapturedPicture.h"
#include "ui/filmstrip/KeptSnapshot.h"

#include <QAbstractListModel>
#include <QImage>
#include <QModelIndexList>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>
#include <optional>

class SnapshotFolder;
class TaskThread;
struct SnapshotContents;

/// The snapshots that were taken, in the order in which they were: a list for views, which survives
/// the program where it has a folder to keep them in.
///
/// A snapshot is listed at once and written in the background; meanwhile, and where it cannot be
/// written, its picture stays in memory. It is safe once its files and the list that names it are
/// on the disk, or it was saved. When there are too many, saved ones make room, the oldest first;
/// without one of these no more are taken.
///
/// User-interface thread only, which never waits for the disk, but at the end of the object: that
/// waits until all is written.
class SnapshotShelf : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Beside the display, which is the time in the video, and the tool tip.
    enum Role {
        ThumbnailRole = Qt::UserRole, ///< QImage; null until it is made
        IdRole,
        TimeRole,    ///< "00:00:03.520"
        ProfileRole, ///< the name of the image profile
        IsSavedRole,
    };

    /// How much may be kept.
    struct Limits
    {
        int count = 500;
        qint64 diskBytes = qint64(4) << 30;
        qint64 memoryBytes = qint64(512) << 20; ///< of pictures that are not on the disk
    };

    /// What was taken out, to be put back or discarded.
    struct Taken;

    explicit SnapshotShelf(QObject* parent = nullptr);
    ~SnapshotShelf() override;

    /// Brings back what is kept in the folder, and keeps the snapshots there from now on. Once, and
    /// before one is added.
    void keepIn(const QString& folder);

    /// Adds a snapshot at the end. Gives its name; an empty one where there is no room.
    [[nodiscard]] QString add(const CapturedPicture& picture, const QString& profileId,
                              const QString& profileName);
    /// The snapshot is shown and saved with another profile from now on.
    void setProfile(const QString& id, const QString& profileId, const QString& profileName);
    void markSaved(const QString& id);

    /// Takes snapshots out of the list; their files stay until they are discarded.
    [[nodiscard]] QVector<Taken> take(const QModelIndexList& indexes);
    /// Lists them again where they were.
    void putBack(const QVector<Taken>& taken);
    /// Removes their files.
    void discard(const QVector<Taken>& taken);

    /// Reads the picture, and answers by loaded() or loadFailed().
    void load(const QString& id);

    /// Does something with the picture in the background, null where it cannot be read, and then
    /// something with the result in this thread, unless the shelf is gone by then.
    void process(const QString& id, std::function<bool(const CapturedPicture* picture)> work,
                 std::function<void(bool)> done);

    [[nodiscard]] std::optional<KeptSnapshot> snapshot(const QString& id) const;
    [[nodiscard]] QStringList unsaved() const;
    /// Where in a video, an absolute path, snapshots were taken: milliseconds in rising order, each
    /// once.
    [[nodiscard]] QVector<qint64> timesIn(const QString& video) const;
    [[nodiscard]] QModelIndex indexOf(const QString& id) const;
    /// The end of the program would not lose it.
    [[nodiscard]] bool isSafe(const QString& id) const;
    /// How many the end of the program would lose.
    [[nodiscard]] int unsafeCount() const;
    /// Nothing is being written or read. Without a folder there is nothing to wait for.
    [[nodiscard]] bool isSettled() const { return m_pendingTasks == 0 || m_folder == nullptr; }
    void setLimits(const Limits& limits) { m_limits = limits; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

Q_SIGNALS:
    void loaded(const QString& id, const CapturedPicture& picture);
    void loadFailed(const QString& id);
    /// Something to tell the user.
    void noticed(const QString& text);
    void settled();

private:
    enum class Place {
        InMemory, ///< being written, or could not be
        OnDisk,   ///< but the list there may not name it yet
        Listed,
    };
    struct Entry
    {
        KeptSnapshot note;
        QImage thumbnail;
        CapturedPicture picture; ///< while it is in memory only
        Place place = Place::InMemory;
        bool isBeingWritten = false;
    };

    void post(std::function<void()> task, std::function<void()> done);
    void finishTask();
    void bringBack(const SnapshotContents& contents);
    void write(Entry& entry);
    void noticeWritten(const QString& id, const QImage& thumbnail, bool isWritten);
    void writeIndex();
    void noticeIndex(const QStringList& ids, bool isWritten);
    void noticeFailure();
    [[nodiscard]] bool hasRoom() const;
    void makeRoom();
    void keepInMemory(Entry& entry, const CapturedPicture& picture);
    void forgetPicture(Entry& entry);
    [[nodiscard]] Entry* find(const QString& id);
    [[nodiscard]] const Entry* find(const QString& id) const;
    [[nodiscard]] int rowOf(const QString& id) const;
    void notice(const QString& id, const QVector<int>& roles);
    [[nodiscard]] static bool isSafe(const Entry& entry);

    Limits m_limits;
    QVector<Entry> m_entries;
    int m_pendingTasks = 0;
    qint64 m_memoryBytes = 0;                 ///< of the pictures in m_entries
    qint64 m_diskBytes = 0;                   ///< when it was last counted
    bool m_hasFailed = false;                 ///< to write; told once
    std::shared_ptr<SnapshotFolder> m_folder; ///< null without one; for the tasks
    /// Ends first: its tasks use what stands above.
    std::unique_ptr<TaskThread> m_thread;
};

struct SnapshotShelf::Taken
{
    int row = 0;
    Entry entry;
};
