#pragma once

class QApplication;
class QString;

/// Whether the program runs on a version of macOS, as in "10.15.7".
///
/// Every version from 10.10 on does, and every major number other than 10; a text without a "." is
/// no version that is known. What is not a number counts as 0.
[[nodiscard]] bool isSupportedOS(const QString& productVersion);

/// The same for the system that the program runs on. Where the answer is no, a message box has said
/// so when the function returns. The rule speaks of macOS: other systems are always supported.
///
/// User-interface thread only, once the application object exists; no event loop is needed.
[[nodiscard]] bool checkSupportedOS(QApplication& app);
