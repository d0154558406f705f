#pragma once

#include <QString>

namespace QtAV {

/// Which part of high dynamic range the pictures show, where the video has more of it: instructions
/// for each picture that only its inventor's decoders carry out.
enum class BaseLayer {
    Whole, ///< there is nothing more
    OfHdr10Plus,
    OfDolbyVision,
    OfDolbyVisionAlone, ///< which nobody else can show: the colours are not right
};

/// A sentence for people; empty where the whole is shown. Callable from any thread.
[[nodiscard]] QString textOf(BaseLayer layer);

} // namespace QtAV
