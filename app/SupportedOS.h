#pragma once

class QApplication;
class QString;

/// Whether the program supports a version of macOS such as "10.15.7".
///
/// Supported are all versions from 10.10 on, and all major numbers other than 10. A text without a
/// "." is not a known version. Parts that are not numbers count as 0.
[[nodiscard]] bool isSupportedOS(const QString& productVersion);

/// Checks the current system. If it is not supported, shows a message box before returning. The
/// rule applies to macOS only: other systems are always supported.
///
/// User-interface thread only, once the application object exists; no event loop is needed.
[[nodiscard]] bool checkSupportedOS(QApplication& app);
