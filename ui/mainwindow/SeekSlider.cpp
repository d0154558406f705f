#include "ui/mainwindow/SeekSlider.h"

#include <QProxyStyle>
#include <QWheelEvent>

namespace {

/// The application's style, except for clicks beside the handle.
class JumpStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_Slider_AbsoluteSetButtons
                   ? int(Qt::LeftButton)
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

} // namespace

SeekSlider::SeekSlider(QWidget* parent)
    : QSlider(parent)
{
    auto* const style = new JumpStyle;
    style->setParent(this);
    setStyle(style);
}

void SeekSlider::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
