#include "ui/BoxerButtons.h"

std::vector<BoxerButtons::Button> BoxerButtons::of(boxer::Buttons buttons)
{
    using boxer::Selection;
    switch (buttons) {
    case boxer::Buttons::OK:
        return {{"OK", Selection::OK}};
    case boxer::Buttons::OKCancel:
        return {{"OK", Selection::OK}, {"Cancel", Selection::Cancel}};
    case boxer::Buttons::YesNo:
        return {{"Yes", Selection::Yes}, {"No", Selection::No}};
    case boxer::Buttons::Quit:
        return {{"Quit", Selection::Quit}};
    }
    return {{"OK", Selection::None}};
}
