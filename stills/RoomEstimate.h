#pragma once

#include <QString>
#include <QtGlobal>

namespace stills {

/// How many pictures of a run are still to be written.
struct PicturesLeft
{
    int count = 0;
    bool isOfVideoAlone = false; ///< nobody knows how many the videos behind it give
};

/// What a run needs on a disk that is full, estimated from the pictures that it has written. A
/// plain value.
class RoomEstimate
{
public:
    void addWritten(qint64 bytes)
    {
        ++m_count;
        m_bytes += bytes;
    }

    /// How much more room all pictures that are left need, in bytes. A picture is taken to be as
    /// large as those that were made are on average.
    ///
    /// @param bytes     of the picture for which there was no room
    /// @param missing   of these bytes
    /// @param left      pictures, with that one; 1 or more
    /// @param prepared  bytes of pictures behind it that are on the disk already
    [[nodiscard]] qint64 missingFor(int left, qint64 bytes, qint64 missing, qint64 prepared) const;

    /// For people, behind the text that names the file: "and about 1.2 MB for the 38 pictures
    /// left".
    [[nodiscard]] static QString text(qint64 missing, const PicturesLeft& left);

private:
    int m_count = 0;
    qint64 m_bytes = 0;
};

} // namespace stills
