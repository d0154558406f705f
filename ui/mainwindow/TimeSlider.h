#pragma once

#include "ui/mainwindow/MarkedStretch.h"
#include "ui/mainwindow/SeekSlider.h"

#include <QVector>

/// The slider of the player. It shows the snapshots, the chapters, the marked stretch and the time
/// under the pointer. Dragging with Shift, and the wheel, move frame by frame, for videos too long
/// for the slider's resolution.
///
/// The owner sets the length of its steps; all times are in milliseconds. User-interface thread
/// only.
class TimeSlider : public SeekSlider
{
    Q_OBJECT

public:
    explicit TimeSlider(QWidget* parent = nullptr);

    void setStepMs(qint64 ms) { m_stepMs = ms; }

    /// Times of the snapshots, in any order. Those behind the end are not shown.
    void setSnapshotTicks(const QVector<qint64>& times);
    const QVector<qint64>& snapshotTicks() const { return m_snapshots; }
    void setChapterTicks(const QVector<qint64>& times);
    const QVector<qint64>& chapterTicks() const { return m_chapters; }

    void setStretch(const MarkedStretch& stretch);
    const MarkedStretch& stretch() const { return m_stretch; }

    /// The time that a click at this place selects, in pixels from the left.
    [[nodiscard]] qint64 timeAt(int x) const;
    /// The place of a time, in pixels from the left.
    [[nodiscard]] int placeOf(qint64 ms) const;

Q_SIGNALS:
    /// The pointer is at this place, in pixels from the left, or has left the slider.
    void pointedAt(qint64 ms, int x);
    void pointedAway();
    /// The user moves by this many frames, negative for back.
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
    /// The range of the handle's middle, in pixels.
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
    bool m_scrubs = false; ///< being dragged frame by frame
    int m_scrubbedTo = 0;  ///< the place up to which steps have been made
    int m_wheelAngle = 0;  ///< remaining rotation of the wheel, in eighths of a degree
};
