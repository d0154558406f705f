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

/// Finds boxes in an MP4 or MOV file whose contents FFmpeg does not provide. Ignores sizes that
/// exceed the enclosing box, and examines at most a thousand boxes side by side.
class Mp4Boxes
{
public:
    explicit Mp4Boxes(FileInput& input)
        : m_input(input)
    {}

    /// Reads this many bytes; returns none if not all can be read.
    [[nodiscard]] QByteArray read(qint64 position, int bytes);

    /// The next box with a name at or behind a position. `after` receives the end of that box.
    [[nodiscard]] std::optional<Mp4Box> find(const char* name, const Mp4Box& within,
                                             qint64* after = nullptr);

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

/// Whether a video track of an MP4 or MOV file declares more pictures than the file can hold.
/// FFmpeg allocates memory for each declared picture, and a kilobyte can declare many millions.
[[nodiscard]] bool declaresTooManyPictures(FileInput& input);

} // namespace QtAV
