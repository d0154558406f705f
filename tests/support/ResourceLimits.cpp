#include "tests/support/ResourceLimits.h"

#include "tests/support/Sanitizers.h"

#include <QFile>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <unistd.h>

namespace testsupport {

namespace {

/// Writable bytes that the process does not share with others. (Not its whole address space, much
/// of which the C library reserves beforehand.)
rlim_t takenMemory()
{
    constexpr int dataField = 5;
    QFile file(QStringLiteral("/proc/self/statm"));
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const rlim_t pages = isOpen ? file.readLine().split(' ').value(dataField).toULongLong() : 0;
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
    ::getrlimit(RLIMIT_DATA, &m_before);
    const rlimit limit{takenMemory() + moreBytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_DATA, &limit);
}

MemoryLimit::~MemoryLimit()
{
    ::setrlimit(RLIMIT_DATA, &m_before);
}

bool MemoryLimit::isPossible()
{
#ifdef Q_OS_LINUX
    return !isSanitized;
#else
    return false;
#endif
}

void MemoryLimit::prepare()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 1 << 20);
#endif
}

} // namespace testsupport
