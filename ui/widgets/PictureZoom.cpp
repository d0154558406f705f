#include "ui/widgets/PictureZoom.h"

#include <algorithm>
#include <cmath>

namespace {

/// The nearest centre, relative to the picture, at which there is no gap beside the picture.
double keptInside(double middle, double picture, double screen)
{
    if (picture <= screen) {
        return 0.5;
    }
    const double half = screen / picture / 2.0;
    return std::clamp(middle, half, 1.0 - half);
}

} // namespace

double PictureZoom::fittedScale() const
{
    if (m_picture.isEmpty() || m_screen.isEmpty()) {
        return 0.0;
    }
    return std::min(static_cast<double>(m_screen.width()) / m_picture.width(),
                    static_cast<double>(m_screen.height()) / m_picture.height());
}

double PictureZoom::scale() const
{
    return m_scale && fittedScale() > 0.0 ? *m_scale : fittedScale();
}

QSize PictureZoom::size() const
{
    if (isFitted()) {
        return m_picture.scaled(m_screen, Qt::KeepAspectRatio);
    }
    return QSize(static_cast<int>(std::lround(m_picture.width() * *m_scale)),
                 static_cast<int>(std::lround(m_picture.height() * *m_scale)))
        .expandedTo({1, 1});
}

QPointF PictureZoom::centreOfScreen() const
{
    return {m_screen.width() / 2.0, m_screen.height() / 2.0};
}

void PictureZoom::setScale(double scale, const QPointF& at)
{
    const double fitted = fittedScale();
    if (fitted <= 0.0) {
        return;
    }
    const QRect before = place();
    constexpr double nothing = 0.001;
    if (scale < std::min(fitted, 1.0) - nothing || std::abs(scale - fitted) < nothing) {
        fit();
        return;
    }
    const QPointF under((at.x() - before.x()) / std::max(1, before.width()),
                        (at.y() - before.y()) / std::max(1, before.height()));
    m_scale = std::min(scale, largestScale);
    const QPointF offset = at - centreOfScreen();
    const QSize after = size();
    m_centre = {under.x() - offset.x() / after.width(), under.y() - offset.y() / after.height()};
    keepInside();
}

void PictureZoom::pan(const QPointF& distance)
{
    if (!isFitted() && fittedScale() > 0.0) {
        m_centre -= QPointF(distance.x() / size().width(), distance.y() / size().height());
        keepInside();
    }
}

void PictureZoom::keepInside()
{
    m_centre = {keptInside(m_centre.x(), size().width(), m_screen.width()),
                keptInside(m_centre.y(), size().height(), m_screen.height())};
}

QRect PictureZoom::place() const
{
    if (m_picture.isEmpty() || m_screen.isEmpty()) {
        return {};
    }
    const QSize whole = size();
    if (isFitted()) {
        return {QPoint((m_screen.width() - whole.width()) / 2,
                       (m_screen.height() - whole.height()) / 2),
                whole};
    }
    const double x = keptInside(m_centre.x(), whole.width(), m_screen.width());
    const double y = keptInside(m_centre.y(), whole.height(), m_screen.height());
    const QPointF corner = centreOfScreen() - QPointF(x * whole.width(), y * whole.height());
    return {QPoint(static_cast<int>(std::lround(corner.x())),
                   static_cast<int>(std::lround(corner.y()))),
            whole};
}

bool PictureZoom::canPan() const
{
    return !isFitted() &&
           (size().width() > m_screen.width() || size().height() > m_screen.height());
}
