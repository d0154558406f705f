#pragma once

#include <QByteArray>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// How a child process ended.
struct ChildEnd
{
    int signal = 0;    ///< The signal that ended it; 0 when it went to its own end.
    QByteArray output; ///< What it wrote to standard error.
};

/// Runs the function in a child process, so that a test can watch it abort.
template <typename Function>
ChildEnd runInChild(Function function)
{
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0) {
        return {-1, "no pipe"};
    }
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit noCoreFile{0, 0};
        ::setrlimit(RLIMIT_CORE, &noCoreFile);
        // The test program's own handlers would write a report of a crash.
        ::signal(SIGABRT, SIG_DFL);
        qInstallMessageHandler(nullptr);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        function();
        ::_exit(0);
    }
    ::close(ends[1]);
    ChildEnd end;
    char buffer[256];
    for (ssize_t count = 0; (count = ::read(ends[0], buffer, sizeof buffer)) > 0;) {
        end.output.append(buffer, static_cast<int>(count));
    }
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    end.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return end;
}
