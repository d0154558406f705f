#pragma once

#include "imaging/CapturedPicture.h"
#include "ui/filmstrip/KeptSnapshot.h"

#include <QImage>
#include <QLockFile>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

/// What a folder of snapshots has when it is opened.
struct SnapshotContents
{
    QVector<KeptSnapshot> snapshots;
    QVector<QImage> thumbnails; ///< of the snapshots; null where one is missing
    /// Where a list went that could not be read, with its files; empty where all is well.
    QString putAside;
    /// The pictures cannot be kept in this folder, or another program uses it.
    bool isRefused = false;
};

/// The folder in which snapshots are kept that are not saved yet: the list "index.json" and, for
/// each, PNG files that hold its frame without a loss, and a small picture of it.
///
/// Only one program at a time uses a folder. All files are written whole or not at all, and an
/// entry is listed after its files. Everything here waits for the disk; one thread at a time.
class SnapshotFolder
{
public:
    /// What is older than this is not brought back.
    static constexpr int keptDays = 90;
    /// The size of the small pictures, in pixels: at most.
    static constexpr QSize thumbnailSize{256, 144};

    explicit SnapshotFolder(QString path);

    /// Takes the folder for this program and reads what it has. Snapshots that were saved, whose
    /// picture is gone, or that are too old go, and with them all files that belong to none. A
    /// list that cannot be read is put aside, in a folder beside this one. Once.
    [[nodiscard]] SnapshotContents open();

    /// Writes the files of a snapshot. False where one could not be written, and then none stays.
    [[nodiscard]] bool write(const QString& id, const CapturedPicture& unpacked,
                             const QImage& thumbnail);
    /// Replaces the list.
    [[nodiscard]] bool writeIndex(const QVector<KeptSnapshot>& snapshots);
    /// Nothing where the files are gone or damaged.
    [[nodiscard]] std::optional<CapturedPicture> read(const KeptSnapshot& snapshot) const;
    void remove(const QString& id);

    /// What all files take, in bytes.
    [[nodiscard]] qint64 byteCount() const;

private:
    [[nodiscard]] QString pathOf(const QString& name) const;
    [[nodiscard]] bool claim();
    [[nodiscard]] bool putAside(QString& where);
    void sweepOldFolders() const;
    void removeStrangers(const QVector<KeptSnapshot>& snapshots);
    [[nodiscard]] bool isWorthKeeping(const KeptSnapshot& snapshot) const;

    const QString m_path;
    std::unique_ptr<QLockFile> m_lock; ///< held where the folder is this program's
};
