#pragma once

#include "imaging/Metadata.h"
#include "stills/Options.h"
#include "stills/Result.h"

namespace stills {

/// The result of --like: how the picture was made, and the options, completed with the video, the
/// position and the type of the picture where they name none.
struct Likeness
{
    imaging::StillOrigin origin;
    Options options;
};

/// Reads the picture named by options.like, and finds its video unless other videos are named. The
/// error is a text for people that starts with the option. Needs the FileNameCodec.
[[nodiscard]] Result<Likeness> likenessOf(const Options& options);

} // namespace stills
