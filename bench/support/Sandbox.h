#pragma once

#include <QTemporaryDir>

namespace bench {

/// Isolates a program of this folder from its user's settings, its display and its own debug
/// messages, which would be measured too. Construct it before the application object.
class Sandbox
{
public:
    enum class Display {
        None,
        Own, ///< the one that the program was started with, for programs that show windows
    };

    /// Ends the program if no temporary folder can be created.
    explicit Sandbox(Display display = Display::None);

    /// A path in a temporary folder that is removed with this object.
    [[nodiscard]] QString filePath(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace bench
