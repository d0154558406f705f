#include "tests/qtav/PretendedDisk.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <dlfcn.h>
#include <sys/uio.h>
#include <thread>

namespace {

std::atomic<bool> diskHangs{false};
std::atomic<bool> isUncached{false};

template <typename Function>
Function* systemsOwn(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

// These functions replace the system's in this program.
extern "C" ssize_t pread(int file, void* buffer, size_t bytes, off_t position)
{
    static const auto original = systemsOwn<decltype(pread)>("pread");
    while (diskHangs) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return original(file, buffer, bytes, position);
}

extern "C" ssize_t preadv2(int file, const iovec* parts, int count, off_t position, int flags)
{
    static const auto original = systemsOwn<decltype(preadv2)>("preadv2");
    if (isUncached) {
        errno = EAGAIN;
        return -1;
    }
    return original(file, parts, count, position, flags);
}

pretended::UncachedDisk::UncachedDisk()
{
    isUncached = true;
}

pretended::UncachedDisk::~UncachedDisk()
{
    isUncached = false;
}

pretended::HangingDisk::HangingDisk()
{
    diskHangs = true;
}

pretended::HangingDisk::~HangingDisk()
{
    diskHangs = false;
}
