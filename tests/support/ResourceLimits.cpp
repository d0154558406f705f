#include "tests/support/ResourceLimits.h"

#include <QFile>

#include <unistd.h>

namespace testsupport {

namespace {

/// The address space that the process takes, in bytes.
rlim_t takenMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const rlim_t pages = isOpen ? file.readLine().split(' ').value(0).toULongLong() : 0;
    if (pages == 0) {
        qFatal("It is not known how much memory the process takes");
    }
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

} // namespace

FileSizeLimit::FileSizeLimit(rlim_t bytes)
{
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    m_handler = ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    ::signal(SIGXFSZ, m_handler);
}

MemoryLimit::MemoryLimit(rlim_t moreBytes)
{
    ::getrlimit(RLIMIT_AS, &m_before);
    const rlimit limit{takenMemory() + moreBytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_AS, &limit);
}

MemoryLimit::~MemoryLimit()
{
    ::setrlimit(RLIMIT_AS, &m_before);
}

bool MemoryLimit::isPossible()
{
#if defined(Q_OS_LINUX) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    return true;
#else
    return false;
#endif
}

} // namespace testsupport
