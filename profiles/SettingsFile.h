#pragma once

#include <QString>
#include <QStringList>

/// The files in which settings and profiles are kept.
///
/// They are written by QSettings: beside their place first, and under a lock, so that programs that
/// run at once neither see half a file nor lose each other's keys. What they can hold all the same
/// is the trace of a power cut, of a broken disk or of an editor. QSettings reads of such a file
/// what it can and then writes over it, so the programs put it aside before.
namespace SettingsFile {

/// Whether what has that name is none of ours: no regular file, larger than any settings, or with
/// lines or characters that no file of settings has. False where there is nothing, and for what
/// cannot be read.
[[nodiscard]] bool isDamaged(const QString& path);

/// Gives a damaged file of settings another name: ".bad" behind it, or ".bad2" and so on where that
/// is taken. A text for people that names both; empty where the file is good, or stays where it is.
[[nodiscard]] QString putAsideIfDamaged(const QString& path);

/// The same for all files of the application. The texts, in order. After the application has its
/// name, and before anything reads settings.
[[nodiscard]] QStringList putDamagedAside();

/// Why settings cannot be saved, for people: a folder or a file that may not be written, a disk
/// that is full or read-only. Empty where they can. Tries by writing a file beside them, which is
/// removed again. After the application has its name.
[[nodiscard]] QString writeProblem();

} // namespace SettingsFile
