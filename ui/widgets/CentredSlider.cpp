#include "ui/widgets/CentredSlider.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int grooveHeight = 4;
constexpr int markHeight = 12;
constexpr int markWidth = 2;

} // namespace

CentredSlider::CentredSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setToolTip(tr("Double-click to reset"));
}

void CentredSlider::setNeutral(int value)
{
    m_neutral = value;
    update();
}

int CentredSlider::centreOfHandleAt(int value) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.sliderPosition = value;
    option.sliderValue = value;
    return style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
        .center()
        .x();
}

void CentredSlider::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    // The frame that shows the focus.
    option.subControls = QStyle::SC_None;
    painter.drawComplexControl(QStyle::CC_Slider, option);

    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int zero = centreOfHandleAt(m_neutral);
    const int position = handle.center().x();
    const int middle = handle.center().y();
    const int left = centreOfHandleAt(minimum());
    const int right = centreOfHandleAt(maximum());
    const int top = middle - grooveHeight / 2 + 1;
    QColor quiet = palette().color(QPalette::WindowText);
    quiet.setAlphaF(isEnabled() ? 0.3 : 0.15);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(quiet);
    painter.drawRoundedRect(
        QRect(QPoint(std::min(left, right), top), QSize(std::abs(right - left) + 1, grooveHeight)),
        grooveHeight / 2.0, grooveHeight / 2.0);
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (isEnabled()) {
        painter.fillRect(std::min(zero, position), top, std::abs(position - zero), grooveHeight,
                         palette().color(QPalette::Highlight));
    }
    QColor mark = palette().color(QPalette::WindowText);
    mark.setAlphaF(isEnabled() ? 0.7 : 0.3);
    painter.fillRect(zero - markWidth / 2, middle - markHeight / 2 + 1, markWidth, markHeight,
                     mark);

    // A style sheet would fill one side of the groove together with the handle.
    painter.setClipRect(handle);
    option.subControls = QStyle::SC_SliderHandle;
    painter.drawComplexControl(QStyle::CC_Slider, option);
}

void CentredSlider::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        QSlider::mouseDoubleClickEvent(event);
        return;
    }
    setSliderDown(false);
    setValue(m_neutral);
    Q_EMIT sliderMoved(m_neutral);
    event->accept();
}
