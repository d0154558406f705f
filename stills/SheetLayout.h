#pragma once

#include <QRect>
#include <QSize>
#include <QtGlobal>

namespace stills {

/// Layout of a contact sheet, in pixels.
struct SheetLayout
{
    /// The parts of a sheet.
    struct Parts
    {
        int pictures = 0;
        QSize picture;         ///< the largest one
        int columns = 0;       ///< 0 for about square
        int gap = 0;           ///< between the pictures
        int captionHeight = 0; ///< height of the text below each picture; 0 for none
        int titleHeight = 0;   ///< height of the title; 0 for none
    };

    /// Maximum number of pixels of a sheet, which takes a gigabyte of memory then.
    static constexpr qint64 mostPixels = qint64(1) << 28;

    explicit SheetLayout(const Parts& parts);

    /// The number of columns that gives about as many rows; one more or less if that fills the last
    /// row.
    [[nodiscard]] static int usualColumns(int pictures);

    /// The area for a picture, by its index from 0.
    [[nodiscard]] QRect pictureArea(int place) const;
    [[nodiscard]] QRect captionArea(int place) const;
    [[nodiscard]] QRect titleArea() const;
    [[nodiscard]] QSize size() const { return m_size; }
    [[nodiscard]] int columns() const { return m_columns; }

    /// True if an image of this size can be created and written.
    [[nodiscard]] bool isPossible() const;

private:
    Parts m_parts;
    int m_columns = 1;
    int m_margin = 0;
    QSize m_size;
};

} // namespace stills
