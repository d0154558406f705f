#pragma once

/// Lets a test see what happens on other machines.
namespace decoding {

/// As long as it lives, decoders that are opened take the machine for one with so many cores: with
/// one they decode in one thread, with more in a thread more than cores, 16 at most.
///
/// One at a time.
class PretendedCores
{
public:
    explicit PretendedCores(int cores);
    ~PretendedCores();
    PretendedCores(const PretendedCores&) = delete;
    PretendedCores& operator=(const PretendedCores&) = delete;
};

} // namespace decoding
