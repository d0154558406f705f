#pragma once

#include "imaging/ImageRecipe.h"

#include <QMap>
#include <QSize>
#include <QString>

/// A recipe as texts, so that it can be kept in a picture's file and read back from there.
///
/// Only what mattered for the picture is kept: two recipes that make the same of a frame have the
/// same texts.
namespace RecipeTexts {

using Texts = QMap<QString, QString>;

/// The texts by their names, such as "Contrast".
/// @param frame        the size of the frame that the recipe was for
/// @param keepsQuality the quality mattered
[[nodiscard]] Texts of(const ImageRecipe& recipe, const QSize& frame, bool keepsQuality);

/// The recipe that the texts stand for. They come from a file that anybody may have written: what
/// is missing or makes no sense keeps its default. A watermark that is a picture is not among them,
/// see hasPictureWatermark().
[[nodiscard]] ImageRecipe recipeFrom(const Texts& texts);

/// The picture that the texts are about had another picture drawn on it.
[[nodiscard]] bool hasPictureWatermark(const Texts& texts);

} // namespace RecipeTexts
