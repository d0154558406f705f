#pragma once

#include <QRect>
#include <QSize>

namespace stills {

/// Where the parts of a contact sheet lie, in pixels.
struct SheetLayout
{
    /// What a sheet is made of.
    struct Parts
    {
        int pictures = 0;
        QSize picture;         ///< the largest one
        int columns = 0;       ///< 0: as many as make it about square
        int gap = 0;           ///< between the pictures
        int captionHeight = 0; ///< below each picture; 0 for none
        int titleHeight = 0;   ///< above all; 0 for none
    };

    explicit SheetLayout(const Parts& parts);

    /// The number of columns that makes about as many rows; one more or less where that leaves no
    /// place in the last row empty.
    [[nodiscard]] static int usualColumns(int pictures);

    /// Where a picture may be drawn, by its place from 0 on.
    [[nodiscard]] QRect pictureArea(int place) const;
    [[nodiscard]] QRect captionArea(int place) const;
    [[nodiscard]] QRect titleArea() const;
    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] int columns() const { return m_columns; }

    /// Whether such an image can be made and written.
    [[nodiscard]] bool isPossible() const;

private:
    Parts m_parts;
    int m_columns = 1;
    int m_margin = 0;
    QSize m_size;
};

} // namespace stills
