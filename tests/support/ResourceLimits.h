#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

namespace testsupport {

/// While it lives, no file of the process can grow beyond the size: what a full disk is like.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before{};
    sighandler_t m_handler = SIG_DFL;
};

/// While it lives, the process gets only so much memory beside what it has.
///
/// Leave some room for the small things that the code under test and the test itself need. Large
/// blocks freed before might still be found, so call prepare() when the test program starts.
class MemoryLimit
{
public:
    explicit MemoryLimit(rlim_t moreBytes);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

    /// False where a case has to be skipped: sanitizers end the program that gets no memory, and
    /// what a process has is known on Linux only.
    [[nodiscard]] static bool isPossible();

    /// Makes the process give large blocks of memory back to the system as soon as they are freed.
    static void prepare();

private:
    rlimit m_before{};
};

} // namespace testsupport
