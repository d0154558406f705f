#pragma once

#include <QByteArray>
#include <QString>

/// A hidden file with a unique name, in which a new file is written before it gets its final name.
/// It is removed unless it has been renamed meanwhile.
///
/// An object holds a lock on its file during its lifetime, which tells sweep() that the file is in
/// use. The lock takes a descriptor, so objects that live long need a limit on their number. One
/// thread at a time may use an object.
class HiddenFile
{
public:
    HiddenFile() = default;
    ~HiddenFile();
    HiddenFile(const HiddenFile&) = delete;
    HiddenFile& operator=(const HiddenFile&) = delete;

    /// Creates a new, empty file with a unique name in the folder.
    [[nodiscard]] bool create(const QString& folder);

    /// Writes all of the content and closes the file, except for the lock; some file systems report
    /// a full disk or quota only on closing.
    [[nodiscard]] bool fill(const QByteArray& content);

    /// False if another program's sweep() would remove the file once it is old: the process has no
    /// descriptor left for the lock. True where the file system has no locks, since no file is
    /// removed there.
    [[nodiscard]] bool isProtected() const { return m_isProtected; }

    /// The number of objects of the process that have a file. From any thread.
    [[nodiscard]] static int count();

    /// The path in the file system's encoding.
    const QByteArray& path() const { return m_path; }

    /// The number of bytes that fill() wrote.
    qint64 size() const { return m_size; }

    /// The system's number of the last error; 0 for none.
    int error() const { return m_error; }

    /// Removes hidden files that killed programs have left in a folder: those with our names, older
    /// than an hour, that are not locked by a running program. Returns how many were removed.
    static int sweep(const QString& folder);

private:
    [[nodiscard]] bool failed();

    /// Closes the file without giving up the lock.
    [[nodiscard]] bool close();

    QByteArray m_path;
    qint64 m_size = 0;
    int m_file = -1; ///< once filled, a duplicate that keeps the lock
    bool m_isProtected = true;
    int m_error = 0;
};
