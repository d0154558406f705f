#pragma once

#include "imaging/ImageRecipe.h"
#include "imaging/Metadata.h"
#include "profiles/OutputNaming.h"
#include "stills/Options.h"
#include "stills/Result.h"

#include <QString>

#include <optional>

namespace stills {

/// How each frame becomes a picture and how files are named, with profiles resolved.
struct Look
{
    ImageRecipe recipe;
    std::optional<OutputNaming> naming; ///< from a file-name profile
    QString suffix;                     ///< suffix and format of the pictures' files
};

/// Looks up profiles by name, case-insensitively, and applies the other options to them. The error
/// lists the existing profiles. Needs the application object.
/// @param like  the still named by --like; null without one
[[nodiscard]] Result<Look> lookOf(const Options& options,
                                  const imaging::StillOrigin* like = nullptr);

} // namespace stills
