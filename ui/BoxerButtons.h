#pragma once

#include "ui/boxer.h"

#include <vector>

/// Shared by boxer's two back ends: the buttons of a box, and the result of each.
namespace BoxerButtons {

/// A button of a box and its result.
struct Button
{
    const char* title;
    boxer::Selection selection;
};

/// The buttons, in the order in which they are added.
[[nodiscard]] std::vector<Button> of(boxer::Buttons buttons);

} // namespace BoxerButtons
