#pragma once

#include "imaging/FilePublisher.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>
#include <unistd.h>

/// Helpers for the tests of publishing: files and processes.
namespace publishing {

constexpr int largeSize = 4 * 1024 * 1024;
/// A child ends itself after this time, in case the test that started it fails.
constexpr unsigned childSeconds = 30;

/// The file's content, or "no file".
[[nodiscard]] QByteArray read(const QString& path);
[[nodiscard]] bool put(const QString& path, const QByteArray& content);
[[nodiscard]] bool setMode(const QString& path, mode_t mode);

/// The names of all files in the folder, hidden ones included.
[[nodiscard]] QStringList filesIn(const QString& folder);

/// Runs the function in a separate process, whose exit code is the function's result.
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

/// Waits for the end of the process; returns -1 if a signal ended it.
[[nodiscard]] int exitCode(pid_t child);

/// The result for a process of a user without privileges, unlike root.
[[nodiscard]] WriteResult publishedByNobody(const QString& path, ExistingFile existing,
                                            const QByteArray& content = "new");

} // namespace publishing
