#pragma once

#include "imaging/FilePublisher.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>
#include <unistd.h>

/// What the tests of publishing files need of files and processes.
namespace publishing {

constexpr int largeSize = 4 * 1024 * 1024;
/// After so long a child ends itself, should the test that started it fail.
constexpr unsigned childSeconds = 30;

/// The file's content, or "no file".
[[nodiscard]] QByteArray read(const QString& path);
[[nodiscard]] bool put(const QString& path, const QByteArray& content);
[[nodiscard]] bool setMode(const QString& path, mode_t mode);

/// The names of all files in the folder, hidden ones included.
[[nodiscard]] QStringList filesIn(const QString& folder);

/// Runs the function in a process of its own, whose exit code is what the function returns.
template <typename Function>
pid_t startProcess(Function function)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(childSeconds);
        ::_exit(function());
    }
    return child;
}

/// Waits for the end of the process; -1 when it was a signal.
[[nodiscard]] int exitCode(pid_t child);

/// What a process of a user without privileges, which root is not, gets to hear.
[[nodiscard]] WriteResult publishedByNobody(const QString& path, ExistingFile existing,
                                            const QByteArray& content = "new");

} // namespace publishing
