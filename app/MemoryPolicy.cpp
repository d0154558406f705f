#include "app/MemoryPolicy.h"

#include <cstdlib> // says whether the C library is GNU's

#ifdef __GLIBC__
#include <malloc.h>
#endif

void MemoryPolicy::returnFreedMemory(int largeBytes)
{
#ifdef __GLIBC__
    // Otherwise the library raises this threshold whenever a large block is freed.
    mallopt(M_MMAP_THRESHOLD, largeBytes);
#else
    static_cast<void>(largeBytes);
#endif
}

void MemoryPolicy::keepFreedMemory()
{
#ifdef __GLIBC__
    constexpr int largestFrameBytes = 64 << 20;
    constexpr int mostKeptBytes = 1 << 30;
    mallopt(M_MMAP_THRESHOLD, largestFrameBytes);
    mallopt(M_TRIM_THRESHOLD, mostKeptBytes);
#endif
}
