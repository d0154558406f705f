#pragma once

#include <QByteArray>

/// Renaming a file without ever replacing another one of the new name.
///
/// There is no single call that every system and file system offers for it, so there are three
/// ways; `rename` takes the first that works. They are apart to be tested on a disk that offers
/// all of them. Paths are in the file system's encoding. Callable from any thread.
namespace ExclusiveRename {

enum class Outcome {
    Done,         ///< The file has its new name, and no longer the old one.
    NameTaken,    ///< Another file has the name. Nothing changed.
    NotSupported, ///< Not possible this way on this system or disk. Nothing changed.
    Failed        ///< Not possible at all (a missing folder, no permission), for the reason in
                  ///< errno. Nothing changed.
};

/// Renames by the first of the ways below that is supported. Never gives NotSupported.
[[nodiscard]] Outcome rename(const QByteArray& from, const QByteArray& to);

/// In one step of the kernel's. Linux only, and not on every file system.
[[nodiscard]] Outcome byRenaming(const QByteArray& from, const QByteArray& to);

/// By a second name for the file, then removing the first. Not on FAT and its like.
[[nodiscard]] Outcome byLinking(const QByteArray& from, const QByteArray& to);

/// By an empty file of the new name, which only one can make, and putting the file in its place.
/// On every file system, but the empty file can be seen for a moment.
[[nodiscard]] Outcome byClaiming(const QByteArray& from, const QByteArray& to);

} // namespace ExclusiveRename
