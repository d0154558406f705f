#pragma once

#include "imaging/Metadata.h"
#include "stills/Options.h"
#include "stills/Result.h"

namespace stills {

/// What --like asks for: how its picture came about, and the options with the video, the position
/// and the type of the picture where they name none themselves.
struct Likeness
{
    imaging::StillOrigin origin;
    Options options;
};

/// Reads the picture that options.like names, and finds its video unless other videos are named.
/// The error is for people and starts with the option. Needs the FileNameCodec.
[[nodiscard]] Result<Likeness> likenessOf(const Options& options);

} // namespace stills
