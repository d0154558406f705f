#include "ui/theme/TextSize.h"

#include <QApplication>
#include <QGroupBox>
#include <QVariant>
#include <QWidget>

namespace {

constexpr double captionScale = 0.9;
constexpr double titleScale = 1.3;

QFont scaled(QFont font, double scale)
{
    if (font.pointSizeF() > 0.0) {
        font.setPointSizeF(font.pointSizeF() * scale);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * scale));
    }
    return font;
}

} // namespace

QFont theme::font(TextSize size, const QFont& base)
{
    QFont font = base;
    switch (size) {
    case TextSize::Caption:
        return scaled(font, captionScale);
    case TextSize::Heading:
        font.setWeight(QFont::DemiBold);
        return font;
    case TextSize::Title:
        font.setWeight(QFont::DemiBold);
        return scaled(font, titleScale);
    case TextSize::Body:
        break;
    }
    return font;
}

std::optional<theme::TextSize> theme::textSizeNamed(const QString& name)
{
    if (name == QLatin1String("caption")) {
        return TextSize::Caption;
    }
    if (name == QLatin1String("body")) {
        return TextSize::Body;
    }
    if (name == QLatin1String("heading")) {
        return TextSize::Heading;
    }
    if (name == QLatin1String("title")) {
        return TextSize::Title;
    }
    return std::nullopt;
}

void theme::applyHeading(QWidget& widget)
{
    QFont font; // only the properties set here take effect
    if (qobject_cast<QGroupBox*>(&widget) != nullptr) {
        font.setWeight(QFont::DemiBold);
        widget.setFont(font);
        return;
    }
    const bool isInGroup = qobject_cast<QGroupBox*>(widget.parentWidget()) != nullptr;
    if (isInGroup && !widget.testAttribute(Qt::WA_SetFont)) {
        font.setWeight(QFont::Normal);
        widget.setFont(font);
    }
}

void theme::applyTextSize(QWidget& widget)
{
    const auto size = textSizeNamed(widget.property(textSizeProperty).toString());
    if (size) {
        widget.setFont(font(*size, QApplication::font(&widget)));
    }
}
