#pragma once

#include <QByteArray>

/// Renames a file without ever replacing another one with the new name.
///
/// No single call for this works on every system and file system, so there are three ways; `rename`
/// takes the first that works. They are separate functions so that they can be tested on a disk
/// that supports all of them. Paths are in the file system's encoding. Callable from any thread.
namespace ExclusiveRename {

enum class Outcome {
    Done,         ///< The file has its new name, and no longer the old one.
    NameTaken,    ///< Another file has the name. Nothing changed.
    NotSupported, ///< Not possible this way on this system or disk. Nothing changed.
    Failed        ///< Not possible at all (a missing folder, no permission), for the reason in
                  ///< errno. Nothing changed.
};

/// Renames in the first of the ways below that is supported. Never returns NotSupported.
[[nodiscard]] Outcome rename(const QByteArray& from, const QByteArray& to);

/// With a single system call. Linux only, and not on every file system.
[[nodiscard]] Outcome byRenaming(const QByteArray& from, const QByteArray& to);

/// With a hard link of the new name, removing the old one afterwards. Not on FAT and similar.
[[nodiscard]] Outcome byLinking(const QByteArray& from, const QByteArray& to);

/// Creates an empty file of the new name, which only one caller can do, and replaces it by the
/// file. Works on every file system, but the empty file is visible for a moment.
[[nodiscard]] Outcome byClaiming(const QByteArray& from, const QByteArray& to);

} // namespace ExclusiveRename
