#include "ui/widgets/ColorLabel.h"

#include <QPainter>

namespace {
constexpr int swatchWidth = 40;
}

ColorLabel::ColorLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{}

QColor ColorLabel::colorValue() const
{
    return m_colorValue;
}

void ColorLabel::setColorValue(const QColor& color)
{
    m_colorValue = color;
}

void ColorLabel::paintEvent(QPaintEvent* /*event*/)
{
    // An invalid colour would be painted black, as if it had been chosen.
    if (m_colorValue.isValid()) {
        QPainter(this).fillRect(0, 0, swatchWidth, height(), m_colorValue);
    }
}
