#pragma once

#include "ui/boxer.h"

#include <vector>

/// What boxer's two back ends share: which buttons a box has, and what each one answers.
namespace BoxerButtons {

struct Button
{
    const char* title;
    boxer::Selection selection;
};

/// The buttons in the order in which they are added.
[[nodiscard]] std::vector<Button> of(boxer::Buttons buttons);

} // namespace BoxerButtons
