#pragma once

#include "imaging/CapturedPicture.h"
#include "ui/filmstrip/KeptSnapshot.h"
#include "utils/CallQueue.h"

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

/// The snapshots taken, in order: a list for views, which survives the program if it has a folder
/// to store them in.
///
/// A snapshot is listed at once and written in the background. Its picture stays in memory until
/// then, or if it cannot be written. It is safe once its files and the list that names it are on
/// the disk, or it was saved. If there are too many, the oldest saved ones make room; if none is
/// saved, no more are accepted.
///
/// User-interface thread only. No function waits for the disk, except the destructor, which waits
/// until everything is written.
class SnapshotShelf : public QAbstractListModel
{
    Q_OBJECT

public:
    /// In addition to the display role, the time in the video, and the tool tip.
    enum Role {
        ThumbnailRole = Qt::UserRole, ///< QImage; null until it is available
        IdRole,
        TimeRole,    ///< "00:00:03.520"
        ProfileRole, ///< the name of the image profile
        IsSavedRole,
    };

    /// Limits on the stored snapshots.
    struct Limits
    {
        int count = 500;
        qint64 diskBytes = qint64(4) << 30;
        qint64 memoryBytes = qint64(512) << 20; ///< of pictures that are not on the disk
    };

    /// Removed snapshots, to be put back or discarded.
    struct Taken;

    explicit SnapshotShelf(QObject* parent = nullptr);
    ~SnapshotShelf() override;

    /// Restores the snapshots in the folder, and stores snapshots there from now on. Call it once,
    /// before adding any.
    void keepIn(const QString& folder);

    /// Appends a snapshot. Returns its name; empty if there is no room.
    [[nodiscard]] QString add(const CapturedPicture& picture, const QString& profileId,
                              const QString& profileName);
    /// Sets another profile for showing and saving the snapshot.
    void setProfile(const QString& id, const QString& profileId, const QString& profileName);
    void markSaved(const QString& id);

    /// Removes snapshots from the list; their files stay until they are discarded.
    [[nodiscard]] QVector<Taken> take(const QModelIndexList& indexes);
    /// Lists them again at their places.
    void putBack(const QVector<Taken>& taken);
    /// Removes their files.
    void discard(const QVector<Taken>& taken);

    /// Reads the picture, and answers with loaded() or loadFailed().
    void load(const QString& id);

    /// Processes the picture in the background, with null if it cannot be read, and then passes the
    /// result to a function in this thread, unless the shelf is gone by then.
    void process(const QString& id, std::function<bool(const CapturedPicture* picture)> work,
                 std::function<void(bool)> done);

    [[nodiscard]] std::optional<KeptSnapshot> snapshot(const QString& id) const;
    [[nodiscard]] QStringList unsaved() const;
    /// The times of the snapshots of a video, given by its absolute path: milliseconds in rising
    /// order, without duplicates.
    [[nodiscard]] QVector<qint64> timesIn(const QString& video) const;
    [[nodiscard]] QModelIndex indexOf(const QString& id) const;
    /// True if the snapshot survives the end of the program.
    [[nodiscard]] bool isSafe(const QString& id) const;
    /// The number of snapshots that the end of the program would lose.
    [[nodiscard]] int unsafeCount() const;
    /// True if nothing is being written or read. Always true without a folder.
    [[nodiscard]] bool isSettled() const { return m_pendingTasks == 0 || m_folder == nullptr; }
    void setLimits(const Limits& limits) { m_limits = limits; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

Q_SIGNALS:
    void loaded(const QString& id, const CapturedPicture& picture);
    void loadFailed(const QString& id);
    /// A message for the user.
    void noticed(const QString& text);
    void settled();

private:
    enum class Place {
        InMemory, ///< being written, or could not be written
        OnDisk,   ///< the list on the disk may not name it yet
        Listed,
    };
    struct Entry
    {
        KeptSnapshot note;
        QImage thumbnail;
        CapturedPicture picture; ///< held only while it is not on the disk
        Place place = Place::InMemory;
        bool isBeingWritten = false;
    };

    void post(std::function<void()> task, std::function<void()> done);
    void finishTask(const std::function<void()>& done);
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
    qint64 m_diskBytes = 0;                   ///< as last measured
    bool m_hasFailed = false;                 ///< writing has failed; reported once
    std::shared_ptr<SnapshotFolder> m_folder; ///< null without one; used by the tasks
    CallQueue m_callbacks{this};              ///< of the tasks that have ended
    /// Destroyed first: its tasks use the members above.
    std::unique_ptr<TaskThread> m_thread;
};

struct SnapshotShelf::Taken
{
    int row = 0;
    Entry entry;
};
