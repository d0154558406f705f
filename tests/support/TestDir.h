#pragma once

#include <QString>
#include <QTemporaryDir>

namespace testsupport {

/// A temporary folder for one test case: removed at the end of the case, but kept, and its path
/// printed, when the case failed. Create it on the case's stack.
class TestDir
{
public:
    /// Ends the test program when no folder can be made.
    TestDir();
    ~TestDir();
    TestDir(const TestDir&) = delete;
    TestDir& operator=(const TestDir&) = delete;

    [[nodiscard]] QString path() const;
    /// The path of a file in the folder, which need not exist.
    [[nodiscard]] QString filePath(const QString& name) const;
    /// Makes an empty file in the folder, with the folders that its name has, and gives its path.
    /// Ends the test program where that fails.
    QString addFile(const QString& name) const;

private:
    QTemporaryDir m_dir;
};

} // namespace testsupport
