#include "ui/mainwindow/TypedPosition.h"

#include "series/PositionTexts.h"

#include <string>

namespace {

std::optional<TypedPosition> movedBy(const std::string& text, double sign)
{
    const positions::Result<double> time = positions::parseTime(text);
    if (!time.isGood()) {
        return std::nullopt;
    }
    const FramePosition by{FramePosition::Kind::Milliseconds, sign * *time.value};
    return TypedPosition{TypedPosition::Way::By, by};
}

std::optional<TypedPosition> frame(const std::string& number)
{
    const auto frames = positions::parseFrames(number);
    if (!frames.isGood() || frames.value->size() != 1) {
        return std::nullopt;
    }
    return TypedPosition{TypedPosition::Way::To, frames.value->front()};
}

} // namespace

std::optional<TypedPosition> typedPosition(const QString& text)
{
    const std::string typed = text.trimmed().toLower().toStdString();
    if (typed.empty()) {
        return std::nullopt;
    }
    const std::string rest = typed.substr(1);
    switch (typed.front()) {
    case '+':
        return movedBy(rest, 1.0);
    case '-':
        return movedBy(rest, -1.0);
    case 'f':
        return frame(rest);
    default:
        break;
    }
    const auto position = positions::parsePosition(typed);
    if (!position.isGood()) {
        return std::nullopt;
    }
    return TypedPosition{TypedPosition::Way::To, *position.value};
}
