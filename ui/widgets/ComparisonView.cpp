#include "ui/widgets/ComparisonView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double keyStep = 0.02;
constexpr int captionMargin = 8;

/// Readable on any picture.
void drawCaption(QPainter& painter, const QRect& area, Qt::Alignment alignment, const QString& text)
{
    const QRect inside = area.adjusted(captionMargin, captionMargin, -captionMargin, 0);
    QRect box = painter.boundingRect(inside, int(alignment | Qt::AlignTop), text);
    box.adjust(-captionMargin / 2, -2, captionMargin / 2, 2);
    if (box.width() > area.width()) {
        return;
    }
    painter.fillRect(box, QColor(0, 0, 0, 150));
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

ComparisonView::ComparisonView(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SplitHCursor);
    setMinimumSize(320, 180);
}

void ComparisonView::setPictures(const QImage& before, const QImage& after)
{
    m_before = before;
    m_after = after;
    update();
}

void ComparisonView::setDivider(double divider)
{
    m_divider = std::clamp(divider, 0.0, 1.0);
    update();
}

QRect ComparisonView::pictureRect() const
{
    const QSize fitted = m_before.size().scaled(size(), Qt::KeepAspectRatio);
    return {QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted};
}

void ComparisonView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (m_before.isNull() || m_after.isNull()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect whole = pictureRect();
    const int line = whole.left() + qRound(m_divider * whole.width());
    const QRect left(whole.topLeft(), QPoint(line - 1, whole.bottom()));
    const QRect right(QPoint(line, whole.top()), whole.bottomRight());
    const auto draw = [&](const QRect& part, const QImage& image) {
        painter.setClipRect(part);
        painter.drawImage(whole, image);
    };
    draw(left, m_before);
    draw(right, m_after);
    painter.setClipping(false);
    drawCaption(painter, left, Qt::AlignLeft, tr("Before"));
    drawCaption(painter, right, Qt::AlignRight, tr("After"));
    painter.fillRect(QRect(line - 1, whole.top(), 2, whole.height()),
                     hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::white));
}

void ComparisonView::mousePressEvent(QMouseEvent* event)
{
    followMouse(*event);
}

void ComparisonView::mouseMoveEvent(QMouseEvent* event)
{
    followMouse(*event);
}

void ComparisonView::followMouse(const QMouseEvent& event)
{
    const QRect whole = pictureRect();
    if (event.buttons().testFlag(Qt::LeftButton) && whole.width() > 0) {
        setDivider((event.pos().x() - whole.left()) / double(whole.width()));
    }
}

void ComparisonView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        setDivider(m_divider - keyStep);
        break;
    case Qt::Key_Right:
        setDivider(m_divider + keyStep);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}
