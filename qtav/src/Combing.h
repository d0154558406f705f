#pragma once

#include "qtav/src/FFmpegHandles.h"

namespace QtAV {

/// A picture between its neighbours in presentation order. A neighbour is null if it does not
/// exist, is unknown, or has another size or format.
struct FieldPictures
{
    const AVFrame* before = nullptr;
    const AVFrame* picture = nullptr;
    const AVFrame* after = nullptr;
};

/// How the two fields of a picture, its even and its odd lines, belong together.
///
/// A mark as interlaced tells how a picture was stored, not whether it combs: film is often stored
/// like that. And lines that differ from their neighbours may be fine detail. So the fields are
/// compared with those of the neighbouring pictures. Where something moves, fields of two moments
/// differ from each other about as much as from a field of the next moment, while the fields of one
/// moment match each other better than any other.
namespace combing {

enum class Fields {
    Whole,           ///< of one moment, or nothing moves: the picture is good as it is
    FirstWithBefore, ///< film: the first field belongs to the second one of the previous picture
    SecondWithAfter, ///< film: the second field belongs to the first one of the next picture
    Apart,           ///< of two moments, and no other field belongs to either
};

/// True for the formats that fieldsOf() and woven() support: luma in a plane of its own, with 8 to
/// 16 bits in native byte order.
[[nodiscard]] bool reads(AVPixelFormat format);

/// @param pictures    in a format that reads() supports, all of one size and format
/// @param isTopFirst  the even lines belong to the earlier moment
[[nodiscard]] Fields fieldsOf(const FieldPictures& pictures, bool isTopFirst);

/// Combines the first field of one picture with the second field of another of the same size and
/// format. The result has the properties of the first picture. Null when memory runs out.
[[nodiscard]] FramePtr woven(const AVFrame& first, const AVFrame& second, bool isTopFirst);

} // namespace combing

} // namespace QtAV
