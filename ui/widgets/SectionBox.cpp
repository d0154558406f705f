#include "ui/widgets/SectionBox.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include <algorithm>

SectionBox::SectionBox(QWidget* parent)
    : QGroupBox(parent)
{}

SectionBox::SectionBox(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{}

/// The group box's own font would apply to its contents as well.
QFont SectionBox::headingFont() const
{
    QFont heading = font();
    heading.setWeight(QFont::DemiBold);
    return heading;
}

QSize SectionBox::minimumSizeHint() const
{
    const QSize hint = QGroupBox::minimumSizeHint();
    const int extra = QFontMetrics(headingFont()).horizontalAdvance(title()) -
                      fontMetrics().horizontalAdvance(title());
    return {hint.width() + std::max(extra, 0), hint.height()};
}

void SectionBox::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    option.subControls &= ~QStyle::SC_GroupBoxFrame;
    option.fontMetrics = QFontMetrics(headingFont());
    QStylePainter painter(this);
    painter.setFont(headingFont());
    painter.drawComplexControl(QStyle::CC_GroupBox, option);
}
