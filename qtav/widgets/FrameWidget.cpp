#include "qtav/widgets/FrameWidget.h"

namespace QtAV {

void FrameWidget::noteScreen(const QSize& screen)
{
    if (screen == m_screen)
        return;
    m_screen = screen;
    if (m_handleScreen)
        m_handleScreen();
}

QRect letterboxed(const QSize& picture, const QSize& screen)
{
    if (picture.isEmpty() || screen.isEmpty())
        return {};
    const QSize size = picture.scaled(screen, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {QPoint((screen.width() - size.width()) / 2, (screen.height() - size.height()) / 2),
            size};
}

} // namespace QtAV
