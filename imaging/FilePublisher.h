#pragma once

#include "imaging/WriteFailure.h"

#include <QByteArray>
#include <QString>

#include <memory>

class HiddenFile;

/// What to do with a file that already bears the name of a new one.
enum class ExistingFile {
    Replace, ///< The new file takes its place, in one step wherever the folder allows that.
    Keep     ///< It stays as it is, even when it appears in the very moment of writing.
};

/// How writing a file ended.
enum class WriteResult {
    Written,       ///< The whole file stands under its name.
    AlreadyExists, ///< Another file bears the name and was kept; only with ExistingFile::Keep.
    Failed         ///< Not written. What stood under the name is unchanged, unless overwritten.
};

/// Puts whole files under their names.
///
/// The content goes into a hidden file in the same folder first, which takes its final name only
/// when it is complete. Whatever happens on the way (a full disk, the end of the process), nobody
/// ever sees half a file under the final name. The hidden file is removed on every failure; only
/// a process that is killed in the middle leaves one behind, named ".morvantile-….part", which
/// sweep() removes.
///
/// The exception is overwriting: with ExistingFile::Replace, a file that may be written but not
/// replaced by another one (its folder is write-protected, it is another user's in a folder for
/// all, or it is a mount point) is written in place. Room for the new content is taken first, so
/// that a full disk leaves the old content whole. But others can see half a file meanwhile, and the
/// end of the process or an error of the disk leaves one behind: after Failed, the old content may
/// then be lost.
///
/// Nothing is forced onto the disk, so a power cut may still lose what was just written.
///
/// Without state: callable from any thread, and safe against other threads, processes and programs
/// that write into the same folder.
namespace FilePublisher {

/// Writes `content` to the file `fileName`.
///
/// With ExistingFile::Replace, a symbolic link is followed and the file behind it replaced; the
/// new file takes over the permissions of the old one. What is write-protected, or no regular file
/// at all, is not replaced: that is a failure.
///
/// With ExistingFile::Keep, of any number of writers of one name exactly one gets Written, and the
/// others AlreadyExists. On file systems that can neither rename without replacing nor make hard
/// links, the name is claimed by an empty file for the moment before the content takes its place.
///
/// @param failure  why, where the result is Failed; may be null
[[nodiscard]] WriteResult publish(const QString& fileName, const QByteArray& content,
                                  ExistingFile existing, WriteFailure* failure = nullptr);

/// Puts content into a hidden file of a folder before it has a name, so that it needs no memory
/// until then. The file is removed with the object unless it was published. Null where that fails:
/// publishing the content itself then tells why.
[[nodiscard]] std::shared_ptr<HiddenFile> prepare(const QString& folder, const QByteArray& content);

/// How many bytes a prepared file holds.
[[nodiscard]] qint64 sizeOf(const HiddenFile& prepared);

/// As publish() with ExistingFile::Keep, for content that is prepared in the folder of `fileName`.
/// After AlreadyExists and Failed it may be tried again, under another name.
[[nodiscard]] WriteResult publishPrepared(const QString& fileName, const HiddenFile& prepared,
                                          WriteFailure* failure = nullptr);

/// Removes the hidden files in a folder that programs which were killed have left there: those of
/// our names that are older than an hour and that no living program writes. Before a run writes
/// there. How many were removed; what cannot be is left.
int sweep(const QString& folder);

} // namespace FilePublisher
