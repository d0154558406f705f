#pragma once

#include <QString>
#include <QVector>

#include <optional>

/// The files in which settings and profiles are stored.
///
/// QSettings writes them to a temporary file first, and under a lock, so that concurrent programs
/// neither see half a file nor lose each other's keys. A file may still be damaged by a power cut,
/// a broken disk or an editor. QSettings reads what it can from such a file and then overwrites it,
/// so the programs move it aside before that.
namespace SettingsFile {

/// A damaged file, and the path at which it is kept.
struct PutAside
{
    QString path;
    QString keptPath;
};

/// True if the path is not one of our settings files: no regular file, larger than any settings, or
/// with lines, characters or types of values that no settings file has. False if there is no file
/// or it cannot be read.
[[nodiscard]] bool isDamaged(const QString& path);

/// Renames a damaged settings file: appends ".bad", or ".bad2" and so on if that name is taken.
/// Returns nothing if the file is valid or could not be renamed.
[[nodiscard]] std::optional<PutAside> putAsideIfDamaged(const QString& path);

/// Does so for all files of the application and returns the damaged ones in order. Call it after
/// the application's name is set, and before settings are read.
[[nodiscard]] QVector<PutAside> putDamagedAside();

/// A text for people with both names, in the current language. The settings hold the language, so
/// that it is known only after damaged files were put aside.
[[nodiscard]] QString text(const PutAside& damaged);

/// Why settings cannot be saved, for people: a folder or a file that may not be written, a disk
/// that is full or read-only. Empty where they can. Tries by writing a file beside them, which is
/// removed again. After the application has its name.
[[nodiscard]] QString writeProblem();

} // namespace SettingsFile
