#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace testsupport {

/// A temporary folder for one test case. It is removed at the end of the case; if the case failed,
/// it is kept and its path printed. Create it on the case's stack.
class TestDir
{
public:
    /// Ends the test program if no folder can be created.
    TestDir();
    ~TestDir();
    TestDir(const TestDir&) = delete;
    TestDir& operator=(const TestDir&) = delete;

    [[nodiscard]] QString path() const;
    /// The path of a file in the folder, which need not exist.
    [[nodiscard]] QString filePath(const QString& name) const;

    /// Creates a file in the folder, with missing parent folders, and returns its path. Ends the
    /// test program on failure.
    QString makeFile(const QString& name, const QByteArray& content = {}) const;

private:
    QTemporaryDir m_dir;
};

/// The bytes of a file; none if it cannot be read.
[[nodiscard]] QByteArray contentOf(const QString& path);

} // namespace testsupport
