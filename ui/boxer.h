#pragma once

/// A modal message box that needs no window of the application and no event loop, for messages
/// before the first window.
///
/// On macOS it is the system's own alert, elsewhere a QMessageBox with the same texts, buttons and
/// results. User-interface thread only, once the application object exists.
namespace boxer {

/// Severity of the message, which selects the picture beside it. Other values count as Info.
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
    /// No button: the box was closed in another way.
    None = 5,
};

/// Shows the box and returns when it is closed.
///
/// @param message  the text, NUL-terminated; on macOS in the system's default string encoding,
///     elsewhere in UTF-8. Never null; plain text, in which "\n" breaks lines.
/// @param title    the headline, in the same form
[[nodiscard]] Selection show(const char* message, const char* title, Style style, Buttons buttons);

} // namespace boxer
