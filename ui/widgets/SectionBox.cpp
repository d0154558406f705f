#include "ui/widgets/SectionBox.h"

#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include <algorithm>

namespace {

QRect partOf(const QStyleOptionGroupBox& option, QStyle::SubControl part, const QWidget& widget)
{
    return widget.style()->subControlRect(QStyle::CC_GroupBox, &option, part, &widget);
}

/// Style sheets leave a check box at the left of its text where writing runs from right to left,
/// and let the text stick out at the right.
bool isMisplaced(const QStyleOptionGroupBox& option, const QGroupBox& box)
{
    return box.layoutDirection() == Qt::RightToLeft &&
           (!box.isCheckable() || partOf(option, QStyle::SC_GroupBoxCheckBox, box).left() <
                                      partOf(option, QStyle::SC_GroupBoxLabel, box).left());
}

} // namespace

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
    if (isMisplaced(option, *this)) {
        paintMirrored(painter, option);
    } else {
        painter.drawComplexControl(QStyle::CC_GroupBox, option);
    }
}

void SectionBox::paintMirrored(QStylePainter& painter, const QStyleOptionGroupBox& option)
{
    const QRect text = partOf(option, QStyle::SC_GroupBoxLabel, *this);
    QRect both = text;
    if (isCheckable()) {
        const QRect box = partOf(option, QStyle::SC_GroupBoxCheckBox, *this);
        both = box.united(text);
        QStyleOptionButton indicator;
        indicator.QStyleOption::operator=(option);
        indicator.rect = QStyle::visualRect(Qt::RightToLeft, both, box);
        painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, indicator);
    }
    painter.drawItemText(QStyle::visualRect(Qt::RightToLeft, both, text),
                         int(Qt::AlignRight | Qt::AlignVCenter | Qt::TextShowMnemonic), palette(),
                         isEnabled(), title(), QPalette::WindowText);
}
