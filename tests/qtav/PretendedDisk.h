#pragma once

/// Makes reading in this process behave as on other disks.
namespace pretended {

/// During its lifetime, nothing is cached in memory.
class UncachedDisk
{
public:
    UncachedDisk();
    ~UncachedDisk();
    UncachedDisk(const UncachedDisk&) = delete;
    UncachedDisk& operator=(const UncachedDisk&) = delete;
};

/// During its lifetime, nothing is cached in memory and the disk does not answer.
class HangingDisk
{
public:
    HangingDisk();
    ~HangingDisk();
    HangingDisk(const HangingDisk&) = delete;
    HangingDisk& operator=(const HangingDisk&) = delete;

private:
    const UncachedDisk m_uncached;
};

} // namespace pretended
