#pragma once

#include "imaging/WriteFailure.h"

#include <QByteArray>
#include <QString>

#include <memory>

class HiddenFile;

/// What to do if a file with the name of the new one exists.
enum class ExistingFile {
    Replace, ///< The new file replaces it, in one step wherever the folder allows that.
    Keep     ///< It is kept, even if it is created at the same moment.
};

/// The result of writing a file.
enum class WriteResult {
    Written,       ///< The complete file exists under its name.
    AlreadyExists, ///< Another file has the name and was kept; only with ExistingFile::Keep.
    Failed         ///< Not written. What stood under the name is unchanged, unless overwritten.
};

/// Creates complete files under their final names.
///
/// The content is first written to a hidden file in the same folder, which gets its final name only
/// when it is complete. Whatever happens meanwhile (a full disk, the end of the process), half a
/// file is never visible under the final name. The hidden file is removed on every failure. Only a
/// process that is killed leaves one behind, named ".morvantile-….part", which sweep() removes.
///
/// The exception is overwriting: with ExistingFile::Replace, a file is written in place if it is
/// writable but cannot be replaced (its folder is write-protected, it belongs to another user in a
/// shared folder, or it is a mount point). Room for the new content is allocated first, so that a
/// full disk leaves the old content intact. But half a file is visible meanwhile, and remains if
/// the process ends or the disk fails: after Failed, the old content may then be lost.
///
/// Nothing is synced to the disk, so a power cut may still lose what was just written.
///
/// Stateless: callable from any thread, and safe against other threads, processes and programs that
/// write to the same folder.
namespace FilePublisher {

/// Writes `content` to the file `fileName`.
///
/// With ExistingFile::Replace, a symbolic link is followed and the file behind it replaced; the new
/// file takes over the permissions of the old one. A write-protected file, or anything but a
/// regular file, is not replaced: that is a failure.
///
/// With ExistingFile::Keep, exactly one of several concurrent writers of one name gets Written, and
/// the others AlreadyExists. On file systems that can neither rename without replacing nor create
/// hard links, an empty file claims the name for a moment before the content replaces it.
///
/// @param failure  receives the reason if the result is Failed; may be null
[[nodiscard]] WriteResult publish(const QString& fileName, const QByteArray& content,
                                  ExistingFile existing, WriteFailure* failure = nullptr);

/// Writes content to a hidden file in a folder before its name is known, so that it takes no memory
/// until then. The file is removed with the object unless it was published, and locked until then,
/// however long that takes, so that no sweep() removes it. Null on failure, and if the process has
/// too few descriptors for another lock: publish the content itself then, which reports the reason.
[[nodiscard]] std::shared_ptr<HiddenFile> prepare(const QString& folder, const QByteArray& content);

/// The number of bytes in a prepared file.
[[nodiscard]] qint64 sizeOf(const HiddenFile& prepared);

/// Like publish() with ExistingFile::Keep, for content prepared in the folder of `fileName`. After
/// AlreadyExists and Failed it may be called again with another name.
[[nodiscard]] WriteResult publishPrepared(const QString& fileName, const HiddenFile& prepared,
                                          WriteFailure* failure = nullptr);

/// Removes hidden files that killed programs have left in a folder: those with our names that are
/// older than an hour and are not locked by a running program. Call it before writing there.
/// Returns how many were removed; failures are ignored.
int sweep(const QString& folder);

} // namespace FilePublisher
