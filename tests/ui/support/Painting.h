#pragma once

#include <QEvent>
#include <QImage>
#include <QObject>
#include <QRect>

class QWidget;

namespace testsupport {

/// What the widget itself paints, on transparent ground: neither its background nor its children.
[[nodiscard]] QImage paintedBy(QWidget& widget);

/// The smallest rectangle around all pixels that are not wholly transparent.
[[nodiscard]] QRect paintedBounds(const QImage& image);

/// Counts the events of one type that a widget gets.
class EventCounter : public QObject
{
public:
    EventCounter(QObject& watched, QEvent::Type type);
    [[nodiscard]] int count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QEvent::Type m_type;
    int m_count = 0;
};

} // namespace testsupport
