#pragma once

#include "imaging/CapturedPicture.h"
#include "ui/filmstrip/KeptSnapshot.h"

#include <QImage>
#include <QLockFile>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

/// The content of a folder of snapshots when it is opened.
struct SnapshotContents
{
    QVector<KeptSnapshot> snapshots;
    QVector<QImage> thumbnails; ///< of the snapshots; null if missing
    /// Where an unreadable list was moved, with its files; empty if everything is fine.
    QString putAside;
    /// True if pictures cannot be stored in this folder, or another program uses it.
    bool isRefused = false;
};

/// The folder that stores unsaved snapshots: the list "index.json" and, for each snapshot, PNG
/// files that hold its frame without loss, and a small picture of it.
///
/// Only one program at a time uses a folder. All files are written completely or not at all, and an
/// entry is listed only after its files exist. All functions wait for the disk; one thread at a
/// time may use an object.
class SnapshotFolder
{
public:
    /// Older snapshots are not restored.
    static constexpr int keptDays = 90;
    /// Maximum size of the small pictures in pixels.
    static constexpr QSize thumbnailSize{256, 144};

    explicit SnapshotFolder(QString path);

    /// Claims the folder for this program and reads its content. Removes snapshots that were saved,
    /// lack their picture or are too old, and all files that belong to no snapshot. An unreadable
    /// list is moved to a folder next to this one. Call it once.
    [[nodiscard]] SnapshotContents open();

    /// Writes the files of a snapshot. Returns false if one could not be written; none remains
    /// then.
    [[nodiscard]] bool write(const QString& id, const CapturedPicture& unpacked,
                             const QImage& thumbnail);
    /// Replaces the list.
    [[nodiscard]] bool writeIndex(const QVector<KeptSnapshot>& snapshots);
    /// Nothing if the files are missing or damaged.
    [[nodiscard]] std::optional<CapturedPicture> read(const KeptSnapshot& snapshot) const;
    void remove(const QString& id);

    /// Total size of all files in bytes.
    [[nodiscard]] qint64 byteCount() const;

private:
    [[nodiscard]] QString pathOf(const QString& name) const;
    [[nodiscard]] bool claim();
    [[nodiscard]] bool putAside(QString& where);
    void sweepOldFolders() const;
    void removeStrangers(const QVector<KeptSnapshot>& snapshots);
    [[nodiscard]] bool isWorthKeeping(const KeptSnapshot& snapshot) const;

    const QString m_path;
    std::unique_ptr<QLockFile> m_lock; ///< held if the folder belongs to this program
};
