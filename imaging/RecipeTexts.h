#pragma once

#include "imaging/ImageRecipe.h"

#include <QMap>
#include <QSize>
#include <QString>

/// Converts a recipe to texts, for storing it in a picture's file and reading it back.
///
/// Only settings that affected the picture are stored: two recipes that give the same result for a
/// frame have the same texts.
namespace RecipeTexts {

using Texts = QMap<QString, QString>;

/// The texts by their names, such as "Contrast".
/// @param frame        the size of the frame that the recipe was for
/// @param keepsQuality whether the quality affected the picture
[[nodiscard]] Texts of(const ImageRecipe& recipe, const QSize& frame, bool keepsQuality);

/// The recipe for the texts. They may come from any file: missing and invalid values keep their
/// defaults. A picture watermark is not included, see hasPictureWatermark().
[[nodiscard]] ImageRecipe recipeFrom(const Texts& texts);

/// Whether the picture described by the texts had another picture drawn on it.
[[nodiscard]] bool hasPictureWatermark(const Texts& texts);

} // namespace RecipeTexts
