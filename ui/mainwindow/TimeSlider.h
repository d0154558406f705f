#pragma once

#include "ui/mainwindow/MarkedStretch.h"
#include "ui/mainwindow/SeekSlider.h"

#include <QVector>

/// The slider of the player: it shows where snapshots were taken, where chapters begin and which
/// stretch is marked, tells which time the pointer is at, and goes frame by frame where the whole
/// video is too long for that: with Shift held down while dragging, and by the wheel.
///
/// Its steps are as long as it is told; all times are milliseconds. User-interface thread only.
class TimeSlider : public SeekSlider
{
    Q_OBJECT

public:
    explicit TimeSlider(QWidget* parent = nullptr);

    void setStepMs(qint64 ms) { m_stepMs = ms; }

    /// Times of the snapshots that were taken, in any order. Those behind the end are not shown.
    void setSnapshotTicks(const QVector<qint64>& times);
    const QVector<qint64>& snapshotTicks() const { return m_snapshots; }
    void setChapterTicks(const QVector<qint64>& times);
    const QVector<qint64>& chapterTicks() const { return m_chapters; }

    void setStretch(const MarkedStretch& stretch);
    const MarkedStretch& stretch() const { return m_stretch; }

    /// Where a click at this place, in pixels from the left, leads.
    [[nodiscard]] qint64 timeAt(int x) const;
    /// The place in pixels from the left where a time is.
    [[nodiscard]] int placeOf(qint64 ms) const;

Q_SIGNALS:
    /// The pointer is over the slider, at this place in pixels from the left, or left it.
    void pointedAt(qint64 ms, int x);
    void pointedAway();
    /// The user goes so many frames on, or back where it is negative.
    void stepped(int frames);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Where the middle of the handle can be, in pixels.
    struct Way
    {
        int begin = 0;
        int length = 0;
    };

    [[nodiscard]] Way way() const;
    void paintStretch(QPainter& painter) const;
    void paintTicks(QPainter& painter) const;
    void scrubTo(int x);

    qint64 m_stepMs = 1;
    QVector<qint64> m_snapshots;
    QVector<qint64> m_chapters;
    MarkedStretch m_stretch;
    bool m_scrubs = false; ///< it is being dragged frame by frame
    int m_scrubbedTo = 0;  ///< the place up to which the steps have been made
    int m_wheelAngle = 0;  ///< what is left of the wheel's turns, in eighths of a degree
};
