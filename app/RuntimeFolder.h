#pragma once

#include <QTemporaryDir>

#include <optional>

/// Names a runtime folder in the environment of a session that has none: a container, a batch
/// system, another user's shell. It is to live while the application object is made, before any
/// other thread starts.
///
/// Qt looks there, while the application object is made, for a note that it runs in a sandbox.
/// Without a folder it would warn on stderr, and make one of a name that anybody can guess. The one
/// named here is new, only its owner can enter it, and it goes with this object: what looks for
/// services there later, such as sound, must not find the place of a session that is none.
class RuntimeFolder
{
public:
    RuntimeFolder();
    ~RuntimeFolder();
    RuntimeFolder(const RuntimeFolder&) = delete;
    RuntimeFolder& operator=(const RuntimeFolder&) = delete;

private:
    std::optional<QTemporaryDir> m_folder;
};
