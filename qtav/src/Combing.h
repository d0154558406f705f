#pragma once

#include "qtav/src/FFmpegHandles.h"

namespace QtAV {

/// A picture between its neighbours in the order shown. Either of these may be null: where there is
/// none, where it is not known, or where it has another size or format.
struct FieldPictures
{
    const AVFrame* before = nullptr;
    const AVFrame* picture = nullptr;
    const AVFrame* after = nullptr;
};

/// How the two fields of a picture, its even and its odd lines, belong together.
///
/// That a picture is marked as interlaced says how it was stored, not that it combs: film is often
/// stored so. And what sticks out between its neighbours may be a fine detail. So the fields are
/// compared with those of the pictures around: where something moves, fields of two moments stick
/// out of each other about as much as out of a field of the next moment, while the fields of one
/// moment fit each other better than any other.
namespace combing {

enum class Fields {
    Whole,           ///< of one moment, or nothing moves: the picture is good as it is
    FirstWithBefore, ///< film: the first field goes with the second one of the picture before
    SecondWithAfter, ///< film: the second field goes with the first one of the picture after
    Apart,           ///< of two moments, and no other field goes with either
};

/// True for the formats that fieldsOf() and woven() take: luma in a plane of its own, of 8 to 16
/// bits in the machine's order.
[[nodiscard]] bool reads(AVPixelFormat format);

/// @param pictures    of a format that reads() takes, all of one size and format
/// @param isTopFirst  the even lines belong to the earlier moment
[[nodiscard]] Fields fieldsOf(const FieldPictures& pictures, bool isTopFirst);

/// A picture with the first field of one and the second field of another picture of the same size
/// and format, and the properties of the first one. Null when memory runs out.
[[nodiscard]] FramePtr woven(const AVFrame& first, const AVFrame& second, bool isTopFirst);

} // namespace combing

} // namespace QtAV
