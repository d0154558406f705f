#pragma once

/// A modal message box that needs no window of the application and no event loop: for what must be
/// said before there is one.
///
/// On macOS it is the system's own alert, elsewhere a QMessageBox with the same texts, buttons and
/// results. User-interface thread only, once the application object exists.
namespace boxer {

/// How grave the message is, which chooses the picture beside it. Other values count as Info.
enum class Style {
    Info = 0,
    Warning = 1,
    Error = 2,
    /// Shown like a warning: the system's guidelines have no alert for questions.
    Question = 3,
};

/// The buttons; the first is the default one. Other values show "OK" and always give None.
enum class Buttons {
    OK = 0,
    OKCancel = 1,
    YesNo = 2,
    Quit = 3,
};

/// The button that ended the box.
enum class Selection {
    OK = 0,
    Cancel = 1,
    Yes = 2,
    No = 3,
    Quit = 4,
    /// None did: the box was ended another way.
    None = 5,
};

/// Shows the box and returns when it is ended.
///
/// @param message  what there is to say, NUL-terminated; on macOS in the system's default string
///                 encoding, elsewhere in UTF-8. Never null; plain text, in which "\n" breaks
///                 lines.
/// @param title    the headline, likewise
[[nodiscard]] Selection show(const char* message, const char* title, Style style, Buttons buttons);

} // namespace boxer
