#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/Metadata.h"
#include "profiles/OutputNaming.h"
#include "stills/Options.h"
#include "stills/Result.h"

#include <QString>

#include <optional>

namespace stills {

/// What becomes of each frame, and how files are named, once the names of profiles are looked up.
struct Look
{
    ImageRecipe recipe;
    std::optional<OutputNaming> naming; ///< of a file-name profile
    QString suffix;                     ///< of the pictures' files, and their type
};

/// Looks profiles up by their names, small and capital letters alike, and has the other options
/// change what they say. The error names the profiles that there are. Needs the application object.
/// @param like  the still that --like names; null without
[[nodiscard]] Result<Look> lookOf(const Options& options,
                                  const imaging::StillOrigin* like = nullptr);

} // namespace stills
