#pragma once

#include <QByteArray>
#include <QString>

/// A hidden file of a name of its own, in which a new file is written before it takes its name. It
/// is removed again unless it has got another name in the meantime.
///
/// While it lives, its maker holds a lock on it, by which sweep() sees that it is not left over.
/// One thread at a time may use an object.
class HiddenFile
{
public:
    HiddenFile() = default;
    ~HiddenFile();
    HiddenFile(const HiddenFile&) = delete;
    HiddenFile& operator=(const HiddenFile&) = delete;

    /// Makes a new, empty file of a name that nobody else has in the folder.
    [[nodiscard]] bool create(const QString& folder);

    /// Writes all of the content and closes the file; some file systems tell of a full disk or
    /// quota no sooner than then.
    [[nodiscard]] bool fill(const QByteArray& content);

    /// In the file system's encoding.
    const QByteArray& path() const { return m_path; }

    /// How many bytes it was filled with.
    qint64 size() const { return m_size; }

    /// The system's number for what went wrong last; 0 where nothing did.
    int error() const { return m_error; }

    /// Removes what programs that were killed have left in a folder: hidden files of our names,
    /// older than an hour, that no living program writes. How many were removed.
    static int sweep(const QString& folder);

private:
    [[nodiscard]] bool failed();

    QByteArray m_path;
    qint64 m_size = 0;
    int m_file = -1;
    int m_error = 0;
};
