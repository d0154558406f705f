#include "ui/widgets/FontLabel.h"

namespace {
constexpr int displayPointSize = 14;
}

FontLabel::FontLabel(QWidget* parent, Qt::WindowFlags flags)
    : QLabel(parent, flags)
{}

QFont FontLabel::fontValue() const
{
    return m_fontValue;
}

void FontLabel::setFontValue(const QFont& font)
{
    m_fontValue = font;

    QFont display = font;
    display.setPointSize(displayPointSize);
    setFont(display);
    setText(font.family() + QStringLiteral(", ") + QString::number(font.pointSize()) +
            QStringLiteral("pt"));
}
