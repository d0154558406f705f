#include "qtav/widgets/FrameWidget.h"

namespace QtAV {

void FrameWidget::noteScreen(const QSize& screen)
{
    if (screen == m_screen) {
        return;
    }
    m_screen = screen;
    if (m_handleScreen) {
        m_handleScreen();
    }
}

void FrameWidget::setPlace(const QRect& place)
{
    if (place == m_place) {
        return;
    }
    m_place = place;
    repaintAll();
}

QRect FrameWidget::target(const Picture& picture) const
{
    if (picture.image.isNull()) {
        return {};
    }
    const QRect whole = m_place.isNull() ? letterboxed(picture.proportions, m_screen) : m_place;
    return partOf(whole, picture.part);
}

QRect partOf(const QRect& whole, const QRectF& part)
{
    const int left = qRound(whole.width() * part.left());
    const int top = qRound(whole.height() * part.top());
    const int right = qRound(whole.width() * part.right());
    const int bottom = qRound(whole.height() * part.bottom());
    return {whole.left() + left, whole.top() + top, right - left, bottom - top};
}

QRect letterboxed(const QSize& picture, const QSize& screen)
{
    if (picture.isEmpty() || screen.isEmpty()) {
        return {};
    }
    const QSize size = picture.scaled(screen, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2),
            size};
}

} // namespace QtAV
