#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace testsupport {

/// How a program that a test ran came to its end.
struct ProgramResult
{
    enum class End {
        Exited,     ///< by itself; exitCode holds
        Crashed,    ///< by a signal
        TimedOut,   ///< it was killed at the time limit
        NotStarted, ///< there is no such program, or it may not be run
    };

    End end = End::NotStarted;
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;

    /// True when the program exited by itself with status 0.
    [[nodiscard]] bool succeeded() const { return end == End::Exited && exitCode == 0; }
};

/// Runs a program without standard input, waits for its end and collects what it wrote. Blocks, at
/// most timeoutMs milliseconds and the moment that killing takes.
[[nodiscard]] ProgramResult
runProgram(const QString& program, const QStringList& arguments, int timeoutMs = 60000,
           const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

} // namespace testsupport
