#include "ui/mainwindow/TimeSlider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>
#include <limits>

namespace {

/// Large enough to be hit without aiming.
constexpr int leastHeight = 32;

constexpr int pixelsPerFrame = 6;
constexpr int wheelAnglePerFrame = 120;

constexpr int tickHeight = 7;
constexpr int stretchHeight = 14;

} // namespace

TimeSlider::TimeSlider(QWidget* parent)
    : SeekSlider(parent)
{
    setMinimumHeight(leastHeight);
    setMouseTracking(true);
}

void TimeSlider::setSnapshotTicks(const QVector<qint64>& times)
{
    m_snapshots = times;
    update();
}

void TimeSlider::setChapterTicks(const QVector<qint64>& times)
{
    m_chapters = times;
    update();
}

void TimeSlider::setStretch(const MarkedStretch& stretch)
{
    m_stretch = stretch;
    update();
}

TimeSlider::Way TimeSlider::way() const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = [this, &option](QStyle::SubControl control) {
        return style()->subControlRect(QStyle::CC_Slider, &option, control, this);
    };
    const QRect groove = part(QStyle::SC_SliderGroove);
    const int handle = part(QStyle::SC_SliderHandle).width();
    return {groove.left() + (handle - 1) / 2, std::max(0, groove.width() - handle)};
}

qint64 TimeSlider::timeAt(int x) const
{
    const Way way = this->way();
    const int value =
        QStyle::sliderValueFromPosition(minimum(), maximum(), x - way.begin, way.length);
    return value * m_stepMs;
}

int TimeSlider::placeOf(qint64 ms) const
{
    const Way way = this->way();
    const qint64 step = std::clamp<qint64>(ms / m_stepMs, 0, std::numeric_limits<int>::max());
    return way.begin + QStyle::sliderPositionFromValue(minimum(), maximum(), int(step), way.length);
}

/// The time beside the pointer replaces the tool tip, which would cover it.
bool TimeSlider::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && isEnabled()) {
        event->accept();
        return true;
    }
    return SeekSlider::event(event);
}

/// The handle and the progress stay on top.
void TimeSlider::paintEvent(QPaintEvent* event)
{
    if (isEnabled() && maximum() > minimum()) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintStretch(painter);
        paintTicks(painter);
    }
    SeekSlider::paintEvent(event);
}

void TimeSlider::paintStretch(QPainter& painter) const
{
    if (m_stretch.isEmpty()) {
        return;
    }
    const Way way = this->way();
    const int left = m_stretch.fromMs ? placeOf(*m_stretch.fromMs) : way.begin;
    const int right = m_stretch.toMs ? placeOf(*m_stretch.toMs) : way.begin + way.length;
    QRectF band(left, 0, right - left, stretchHeight);
    band.moveCenter({band.center().x(), height() / 2.0});
    QColor colour = palette().color(QPalette::Highlight);
    painter.setPen(QPen(colour, 2.0));
    const auto bracket = [&](double x, double inward) {
        const QPointF top(x, band.top());
        const QPointF bottom(x, band.bottom());
        const QPointF hook(inward, 0.0);
        const QPointF points[] = {top + hook, top, bottom, bottom + hook};
        painter.drawPolyline(points, int(std::size(points)));
    };
    constexpr double hook = 4.0;
    if (m_stretch.fromMs) {
        bracket(left, hook);
    }
    if (m_stretch.toMs) {
        bracket(right, -hook);
    }
    colour.setAlpha(70);
    painter.fillRect(band, colour);
}

void TimeSlider::paintTicks(QPainter& painter) const
{
    const qint64 end = (maximum() + qint64(1)) * m_stepMs;
    const auto isShown = [end](qint64 ms) { return ms >= 0 && ms < end; };
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1.0));
    for (const qint64 ms : m_chapters) {
        if (isShown(ms)) {
            const double x = placeOf(ms) + 0.5;
            painter.drawLine(QPointF(x, height() - tickHeight), QPointF(x, height() - 1.0));
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    for (const qint64 ms : m_snapshots) {
        if (isShown(ms)) {
            const double x = placeOf(ms) + 0.5;
            const QPointF down[] = {{x - 4.0, 1.0}, {x + 4.0, 1.0}, {x, 1.0 + tickHeight}};
            painter.drawConvexPolygon(down, int(std::size(down)));
        }
    }
}

void TimeSlider::mousePressEvent(QMouseEvent* event)
{
    const bool isFine = event->modifiers().testFlag(Qt::ShiftModifier);
    if (!isFine || event->button() != Qt::LeftButton) {
        SeekSlider::mousePressEvent(event);
        return;
    }
    m_scrubs = true;
    m_scrubbedTo = event->x();
    event->accept();
}

void TimeSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_scrubs) {
        scrubTo(event->x());
        event->accept();
        return;
    }
    SeekSlider::mouseMoveEvent(event);
    if (maximum() > minimum()) {
        Q_EMIT pointedAt(timeAt(event->x()), event->x());
    }
}

/// Relative to the video's position, whatever place on the slider that is.
void TimeSlider::scrubTo(int x)
{
    const int frames = (x - m_scrubbedTo) / pixelsPerFrame;
    if (frames != 0) {
        m_scrubbedTo += frames * pixelsPerFrame;
        Q_EMIT stepped(frames);
    }
}

void TimeSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_scrubs && event->button() == Qt::LeftButton) {
        m_scrubs = false;
        event->accept();
        return;
    }
    SeekSlider::mouseReleaseEvent(event);
}

/// Up is forward. Fine wheels and touchpads turn by less than a frame at a time.
void TimeSlider::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->angleDelta();
    m_wheelAngle += angle.y() != 0 ? angle.y() : -angle.x();
    const int frames = m_wheelAngle / wheelAnglePerFrame;
    m_wheelAngle -= frames * wheelAnglePerFrame;
    if (frames != 0) {
        Q_EMIT stepped(frames);
    }
    event->accept();
}

void TimeSlider::leaveEvent(QEvent* event)
{
    SeekSlider::leaveEvent(event);
    m_wheelAngle = 0;
    Q_EMIT pointedAway();
}

void TimeSlider::changeEvent(QEvent* event)
{
    SeekSlider::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        m_scrubs = false;
        Q_EMIT pointedAway();
    }
}
