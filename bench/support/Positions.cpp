#include "bench/support/Positions.h"

#include <random>

namespace bench {

std::vector<qint64> randomPositions(qint64 duration, int count)
{
    constexpr std::mt19937::result_type seed = 20231;
    // The library's distributions differ from one standard library to the next; the engine does
    // not.
    std::mt19937 engine(seed);
    std::vector<qint64> positions;
    positions.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const double share = static_cast<double>(engine()) / std::mt19937::max();
        positions.push_back(static_cast<qint64>(share * 0.95 * static_cast<double>(duration)));
    }
    return positions;
}

} // namespace bench
