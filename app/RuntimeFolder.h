#pragma once

#include <QTemporaryDir>

#include <optional>

/// Provides a runtime folder in the environment of a session that has none, such as a container, a
/// batch system or another user's shell. It must exist while the application object is created,
/// before any other thread starts.
///
/// While the application object is created, Qt looks there for a note that it runs in a sandbox.
/// Without a folder it would print a warning, and create one with a predictable name. The folder of
/// this object is new, accessible only to its owner, and removed with the object: code that later
/// looks for services there, such as sound, must not find a folder that belongs to no session.
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
