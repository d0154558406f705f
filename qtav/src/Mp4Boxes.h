#pragma once

#include "qtav/src/FileInput.h"

#include <QByteArray>

#include <optional>

namespace QtAV {

/// The content of a box of an MP4 or MOV file, as byte positions in the file.
struct Mp4Box
{
    qint64 begin = 0;
    qint64 end = 0;

    qint64 bytes() const { return end - begin; }
};

/// Finds boxes in an MP4 or MOV file whose contents FFmpeg does not provide. As in FFmpeg, a box
/// that exceeds the enclosing one ends with that.
class Mp4Boxes
{
public:
    explicit Mp4Boxes(FileInput& input)
        : m_input(input)
    {}

    /// Reads this many bytes; returns none if not all can be read.
    [[nodiscard]] QByteArray read(qint64 position, int bytes);

    /// A box with its name of four bytes.
    struct Named
    {
        QByteArray name;
        Mp4Box content;
    };

    /// The first box within another one; nothing if there is none. The next one begins where its
    /// content ends.
    [[nodiscard]] std::optional<Named> first(const Mp4Box& within);

    /// The first box with a name; nothing if it is not among the first thousand boxes.
    [[nodiscard]] std::optional<Mp4Box> find(const char* name, const Mp4Box& within);

    /// The first box with a name within the first box with another name, and so on.
    template <typename... Names>
    [[nodiscard]] std::optional<Mp4Box> find(const Mp4Box& within, const char* name, Names... names)
    {
        const std::optional<Mp4Box> found = find(name, within);
        if constexpr (sizeof...(names) == 0) {
            return found;
        } else {
            return found ? find(*found, names...) : std::nullopt;
        }
    }

private:
    FileInput& m_input;
};

/// Whether the tracks of an MP4 or MOV file together declare more pictures, or packets of sound,
/// than the file can hold. FFmpeg allocates memory for each of them, and a kilobyte can declare
/// many millions. Those in fragments are not counted: FFmpeg reads these one after another.
[[nodiscard]] bool declaresTooManyPictures(FileInput& input);

} // namespace QtAV
