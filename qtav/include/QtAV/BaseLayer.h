#pragma once

#include <QString>

namespace QtAV {

/// Which part of a high dynamic range video the pictures show. Some videos carry additional
/// instructions for each picture that only proprietary decoders apply.
enum class BaseLayer {
    Whole, ///< there is nothing more
    OfHdr10Plus,
    OfDolbyVision,
    OfDolbyVisionAlone, ///< only proprietary decoders can show it correctly: the colours are wrong
};

/// A sentence for people; empty if the whole range is shown. Callable from any thread.
[[nodiscard]] QString textOf(BaseLayer layer);

} // namespace QtAV
