#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;
class QSettings;

/// The languages of the program's texts: which there are, which one is chosen, and putting it into
/// effect. English needs no catalogue: the texts in the sources are English. A language is named by
/// its code as the catalogues' files have it, such as "de" or "zh_CN". User-interface thread only.
namespace Languages {

/// The folders that may hold the program's catalogues, seen from where the program is itself: as it
/// is installed on Linux, and inside its bundle on macOS.
[[nodiscard]] QStringList folders();

/// The languages that have a catalogue in one of the folders, and English, in the order of their
/// codes.
[[nodiscard]] QStringList available(const QStringList& folders = Languages::folders());

/// The name of a language in that language itself, in which people look for it.
[[nodiscard]] QString nativeName(const QString& language);

/// The first of the preferred languages that is available, at least in another country; "en" where
/// none of them is.
/// @param preferred  as QLocale::uiLanguages() gives them: "de-AT", "de"
[[nodiscard]] QString bestOf(const QStringList& preferred, const QStringList& available);

/// What the arguments ask for with `--language=CODE`; empty where they do not.
[[nodiscard]] QString inArguments(const QStringList& arguments);

/// The language that the user has chosen; empty for that of the system. Stored as "language".
[[nodiscard]] QString chosen(const QSettings& settings);
void setChosen(QSettings& settings, const QString& language);

/// Gives the application the catalogues of a language, its own and Qt's, and the direction in which
/// it is written. Before any window is made. A language without a catalogue leaves all in English;
/// texts that only Qt's catalogue lacks stay English.
/// @param language  empty for the one that suits the system best
void use(QCoreApplication& app, const QString& language,
         const QStringList& folders = Languages::folders());

} // namespace Languages
