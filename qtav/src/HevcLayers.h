#pragma once

#include <QtGlobal>

namespace QtAV {

/// True when an HEVC stream has temporal sub-layers, by its extradata (hvcC or parameter sets) or
/// by one of its packets.
///
/// In such a stream, a picture that its own layer never refers to can still be referred to by a
/// higher layer. So FFmpeg's notion of a non-reference picture is too wide.
bool hevcHasSubLayers(const uint8_t* data, qsizetype size);

} // namespace QtAV
