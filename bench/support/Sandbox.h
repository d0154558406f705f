#pragma once

#include <QTemporaryDir>

namespace bench {

/// Keeps a program of this folder away from its user's settings, its display and its own
/// debug lines: they would be measured too. Construct it before the application object.
class Sandbox
{
public:
    enum class Display {
        None,
        Own, ///< the one that the program was started with, for what shows windows
    };

    /// Ends the program when no temporary folder can be made.
    explicit Sandbox(Display display = Display::None);

    /// A path in a temporary folder that goes with this object.
    [[nodiscard]] QString filePath(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace bench
