#include "ui/widgets/ZoomGestures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace {

/// Three notches of the wheel double the size.
constexpr double factorPerNotch = 1.2599;
constexpr double anglePerNotch = 120.0;

} // namespace

ZoomGestures::ZoomGestures(QWidget& area)
    : QObject(&area)
    , m_area(area)
{
    area.installEventFilter(this);
    m_zoom.setScreen(area.size() * area.devicePixelRatioF());
}

void ZoomGestures::setPicture(const QSize& size)
{
    if (size != m_zoom.picture()) {
        m_zoom.setPicture(size);
        Q_EMIT changed();
    }
}

void ZoomGestures::fit()
{
    m_zoom.fit();
    Q_EMIT changed();
}

void ZoomGestures::showActualSize()
{
    setScale(1.0);
}

void ZoomGestures::setScale(double scale)
{
    m_zoom.setScale(scale, m_zoom.centreOfScreen());
    Q_EMIT changed();
}

void ZoomGestures::toggleActualSize()
{
    toggle(m_zoom.centreOfScreen());
}

void ZoomGestures::toggle(const QPointF& at)
{
    if (m_zoom.isFitted()) {
        m_zoom.setScale(1.0, at);
    } else {
        m_zoom.fit();
    }
    Q_EMIT changed();
}

QPointF ZoomGestures::pixelAt(const QPointF& point) const
{
    return point * m_area.devicePixelRatioF();
}

bool ZoomGestures::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Resize:
        m_zoom.setScreen(m_area.size() * m_area.devicePixelRatioF());
        Q_EMIT changed();
        return false;
    case QEvent::Wheel:
        turnWheel(*static_cast<QWheelEvent*>(event));
        return !m_zoom.picture().isEmpty();
    case QEvent::MouseButtonPress:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick:
        return doubleClick(*static_cast<QMouseEvent*>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool ZoomGestures::press(const QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton) {
        m_isPressed = true;
        m_pressedAt = event.pos();
        m_draggedTo = event.pos();
        Q_EMIT pressed();
    }
    return false;
}

bool ZoomGestures::move(const QMouseEvent& event)
{
    const int distance = (event.pos() - m_pressedAt).manhattanLength();
    const bool isFar = distance >= QApplication::startDragDistance();
    m_isDragging = m_isDragging || (m_isPressed && isFar && m_zoom.canPan());
    if (!m_isDragging) {
        return false;
    }
    m_zoom.pan(pixelAt(event.pos() - m_draggedTo));
    m_draggedTo = event.pos();
    m_area.setCursor(Qt::ClosedHandCursor);
    Q_EMIT changed();
    return true;
}

/// The release behind a drag is no click.
bool ZoomGestures::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    m_isPressed = false;
    const bool isOurs = std::exchange(m_isDragging, false);
    if (isOurs) {
        m_area.unsetCursor();
        if (auto* const button = qobject_cast<QAbstractButton*>(&m_area)) {
            button->setDown(false);
        }
    }
    return std::exchange(m_swallowsRelease, false) || isOurs;
}

bool ZoomGestures::doubleClick(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || m_zoom.picture().isEmpty()) {
        return false;
    }
    m_swallowsRelease = true;
    Q_EMIT doubleClicked();
    toggle(pixelAt(event.localPos()));
    return true;
}

void ZoomGestures::turnWheel(const QWheelEvent& event)
{
    const double notches = event.angleDelta().y() / anglePerNotch;
    if (m_zoom.picture().isEmpty() || notches == 0.0) {
        return;
    }
    const double scale = m_zoom.scale() * std::pow(factorPerNotch, notches);
    m_zoom.setScale(scale, pixelAt(event.position()));
    Q_EMIT changed();
}
