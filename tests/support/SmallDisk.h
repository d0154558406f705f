#pragma once

#include <QString>
#include <QTemporaryDir>

namespace testsupport {

/// A folder that is a disk of a megabyte, removed with this object. It needs Linux and root
/// privileges: without them, the folder is an ordinary one, and a case should be skipped.
class SmallDisk
{
public:
    SmallDisk();
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool isThere() const { return m_isMounted; }
    /// The path of a file in it; its own path without a name.
    [[nodiscard]] QString path(const QString& name = {}) const { return m_folder.filePath(name); }

    /// Uses all but some kilobytes, with a file of the name fillerName().
    void fill() const;
    /// Removes that file.
    void makeRoom() const;
    [[nodiscard]] static QString fillerName() { return QStringLiteral("filler"); }

private:
    QTemporaryDir m_folder;
    const bool m_isMounted;
};

} // namespace testsupport
