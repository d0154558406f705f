#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace QtAV {

/// The value added to samples before their fraction is truncated, so that the mean of neighbouring
/// pixels keeps the precision that a single pixel with fewer bits cannot. The pattern repeats every
/// eight lines and columns.
template <typename Value>
class Dither
{
public:
    static constexpr int size = 8;
    static constexpr int orders = size * size;

    /// Prepares lines of a width. `added` returns the value for a rank from 0 to 63 within eight by
    /// eight pixels.
    template <typename Added>
    Dither(int width, const Added& added)
    {
        for (int y = 0; y < size; ++y) {
            std::vector<Value>& line = m_lines[static_cast<size_t>(y)];
            line.resize(static_cast<size_t>(width));
            for (size_t x = 0; x < line.size(); ++x) {
                line[x] = added(orderAt(static_cast<int>(x % size), y));
            }
        }
    }

    const Value* line(int number) const
    {
        return m_lines[static_cast<size_t>(number % size)].data();
    }

private:
    /// Bayer's order: successive ranks lie far apart.
    static int orderAt(int x, int y)
    {
        int order = 0;
        for (int bit = 0; bit < 3; ++bit) {
            const int column = (x >> bit) & 1;
            const int row = (y >> bit) & 1;
            order = order << 2 | (column ^ row) << 1 | row;
        }
        return order;
    }

    std::array<std::vector<Value>, size> m_lines;
};

} // namespace QtAV
