#include "stills/SheetLayout.h"

#include <algorithm>
#include <cmath>

namespace stills {

namespace {

constexpr int smallestMargin = 16;
constexpr int longestSide = 65500; // what a JPEG file can hold

} // namespace

int SheetLayout::usualColumns(int pictures)
{
    const int square =
        std::max(1, static_cast<int>(std::ceil(std::sqrt(static_cast<double>(pictures)))));
    for (const int columns : {square, square + 1, square - 1}) {
        if (columns > 0 && pictures % columns == 0) {
            return columns;
        }
    }
    return square;
}

SheetLayout::SheetLayout(const Parts& parts)
    : m_parts(parts)
    , m_columns(parts.columns > 0 ? parts.columns : usualColumns(parts.pictures))
    , m_margin(std::max(2 * parts.gap, smallestMargin))
{
    const int columns = std::min(m_columns, std::max(parts.pictures, 1));
    const int rows = (parts.pictures + m_columns - 1) / m_columns;
    const int width = columns * parts.picture.width() + (columns - 1) * parts.gap;
    const int rowHeight = parts.picture.height() + parts.captionHeight;
    const int height = rows * rowHeight + (rows - 1) * parts.gap;
    m_size = QSize(width + 2 * m_margin, parts.titleHeight + height + 2 * m_margin);
}

QRect SheetLayout::pictureArea(int place) const
{
    const int column = place % m_columns;
    const int row = place / m_columns;
    const int x = m_margin + column * (m_parts.picture.width() + m_parts.gap);
    const int rowHeight = m_parts.picture.height() + m_parts.captionHeight + m_parts.gap;
    return {QPoint(x, m_margin + m_parts.titleHeight + row * rowHeight), m_parts.picture};
}

QRect SheetLayout::captionArea(int place) const
{
    const QRect picture = pictureArea(place);
    return {picture.left(), picture.top() + picture.height(), picture.width(),
            m_parts.captionHeight};
}

QRect SheetLayout::titleArea() const
{
    return {m_margin, m_margin, m_size.width() - 2 * m_margin, m_parts.titleHeight};
}

bool SheetLayout::isPossible() const
{
    return m_size.width() <= longestSide && m_size.height() <= longestSide &&
           qint64(m_size.width()) * m_size.height() <= mostPixels;
}

} // namespace stills
