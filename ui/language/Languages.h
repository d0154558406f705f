#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;
class QSettings;

/// The languages of the program's texts: the available ones, the chosen one, and activating it.
/// English needs no catalogue, because the texts in the sources are English. A language is
/// identified by its code as in the catalogues' file names, such as "de" or "zh_CN". User-interface
/// thread only.
namespace Languages {

/// The folders that may hold the program's catalogues, relative to the program: as installed on
/// Linux, and inside its bundle on macOS.
[[nodiscard]] QStringList folders();

/// English and the languages with a catalogue in one of the folders, sorted by code.
[[nodiscard]] QStringList available(const QStringList& folders = Languages::folders());

/// The name of a language in that language itself.
[[nodiscard]] QString nativeName(const QString& language);

/// The first of the preferred languages that is available, at least for another country; "en" if
/// none is.
/// @param preferred  as QLocale::uiLanguages() gives them: "de-AT", "de"
[[nodiscard]] QString bestOf(const QStringList& preferred, const QStringList& available);

/// The value of `--language=CODE` in the arguments; empty if it is missing.
[[nodiscard]] QString inArguments(const QStringList& arguments);

/// The language chosen by the user; empty for the system's. Stored as "language".
[[nodiscard]] QString chosen(const QSettings& settings);
void setChosen(QSettings& settings, const QString& language);

/// Loads the catalogues of a language, the program's and Qt's, and sets its layout direction. Call
/// it before any window is created. Without a catalogue everything stays English; texts that only
/// Qt's catalogue lacks stay English.
/// @param language  empty for the best match for the system
void use(QCoreApplication& app, const QString& language,
         const QStringList& folders = Languages::folders());

} // namespace Languages
