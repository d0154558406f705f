#include "ui/mainwindow/SliderPreview.h"

#include "video/Thumbnails.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int margin = 4;
/// Between the popup and the slider.
constexpr int distance = 6;

} // namespace

SliderPreview::SliderPreview(QWidget* parent)
    : QFrame(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput |
                         Qt::WindowDoesNotAcceptFocus)
    , m_picture(new QLabel(this))
    , m_text(new QLabel(this))
{
    setObjectName(QStringLiteral("sliderPreview"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    m_picture->setObjectName(QStringLiteral("sliderPreviewPicture"));
    m_picture->setFixedSize(Thumbnails::largest);
    m_picture->setAlignment(Qt::AlignCenter);
    m_text->setObjectName(QStringLiteral("sliderPreviewText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignCenter);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_picture);
    layout->addWidget(m_text);
}

void SliderPreview::showAt(const QPoint& place, const QString& text)
{
    m_place = place;
    const int widest = m_picture->width();
    m_text->setText(m_text->fontMetrics().elidedText(text, Qt::ElideRight, widest));
    stand();
    show();
}

void SliderPreview::setPicture(const QImage& picture)
{
    m_picture->setPixmap(QPixmap::fromImage(picture));
}

void SliderPreview::stand()
{
    adjustSize();
    QPoint corner(m_place.x() - width() / 2, m_place.y() - height() - distance);
    if (const QScreen* const screen = QGuiApplication::screenAt(m_place)) {
        const QRect area = screen->availableGeometry();
        const int rightmost = std::max(area.left(), area.right() - width());
        corner.setX(std::clamp(corner.x(), area.left(), rightmost));
    }
    move(corner);
}
