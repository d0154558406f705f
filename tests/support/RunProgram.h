#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace testsupport {

/// How a program run by a test ended.
struct ProgramResult
{
    enum class End {
        Exited,     ///< by itself; exitCode is valid
        Crashed,    ///< by a signal
        TimedOut,   ///< it was killed at the time limit
        NotStarted, ///< there is no such program, or it is not executable
    };

    End end = End::NotStarted;
    int exitCode = -1;
    QByteArray standardOutput;
    QByteArray standardError;

    /// True if the program exited by itself with status 0.
    [[nodiscard]] bool succeeded() const { return end == End::Exited && exitCode == 0; }
};

/// Runs a program without standard input, waits for its end and collects its output. Blocks at most
/// timeoutMs milliseconds, plus the time for killing it.
[[nodiscard]] ProgramResult
runProgram(const QString& program, const QStringList& arguments, int timeoutMs = 60000,
           const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());

} // namespace testsupport
