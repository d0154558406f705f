#pragma once

#include "qtav/src/FileInput.h"

#include <QByteArray>

#include <optional>

namespace QtAV {

/// The content of a box of an MP4 or MOV file, as places in the file.
struct Mp4Box
{
    qint64 begin = 0;
    qint64 end = 0;

    qint64 bytes() const { return end - begin; }
};

/// Looks for boxes in an MP4 or MOV file, where FFmpeg does not tell what they hold. Believes no
/// size that goes beyond the box around it, and looks through a thousand boxes beside each other.
class Mp4Boxes
{
public:
    explicit Mp4Boxes(FileInput& input)
        : m_input(input)
    {}

    /// So many bytes; none where not all can be read.
    [[nodiscard]] QByteArray read(qint64 position, int bytes);

    /// The next box of a name at or behind a position; `after` is where it ends.
    [[nodiscard]] std::optional<Mp4Box> find(const char* name, const Mp4Box& within,
                                             qint64* after = nullptr);

    /// The first box of a name within the first of another one, and so on.
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

/// Whether a video track of an MP4 or MOV file declares more pictures than the file can hold.
/// FFmpeg takes memory for each picture that is declared, and a kilobyte can declare many millions.
[[nodiscard]] bool declaresTooManyPictures(FileInput& input);

} // namespace QtAV
