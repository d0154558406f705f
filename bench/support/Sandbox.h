#pragma once

#include <QTemporaryDir>

namespace bench {

/// Keeps a program of this folder away from its user's settings, from displays and from its own
/// debug lines: they would be measured too. Construct it before the application object.
class Sandbox
{
public:
    /// Ends the program when no temporary folder can be made.
    Sandbox();

    /// A path in a temporary folder that goes with this object.
    [[nodiscard]] QString filePath(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

} // namespace bench
