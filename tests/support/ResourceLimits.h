#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

namespace testsupport {

/// During its lifetime, no file of the process can grow beyond the size, as on a full disk.
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

/// During its lifetime, the process gets only this much additional memory.
///
/// Leave some room for small allocations of the code under test and of the test itself. Large
/// blocks freed before might be reused, so call prepare() when the test program starts.
class MemoryLimit
{
public:
    explicit MemoryLimit(rlim_t moreBytes);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

    /// False if a case must be skipped: sanitizers end a program that gets no memory, and the
    /// memory of a process is known only on Linux.
    [[nodiscard]] static bool isPossible();

    /// Makes the process return large blocks of memory to the system as soon as they are freed.
    static void prepare();

private:
    rlimit m_before{};
};

} // namespace testsupport
