#pragma once

/// Simulates other machines.
namespace decoding {

/// During its lifetime, decoders that are opened detect this number of cores: with one they decode
/// in one thread, otherwise in one thread more than cores, at most 16.
///
/// Only one object at a time.
class PretendedCores
{
public:
    explicit PretendedCores(int cores);
    ~PretendedCores();
    PretendedCores(const PretendedCores&) = delete;
    PretendedCores& operator=(const PretendedCores&) = delete;
};

} // namespace decoding
