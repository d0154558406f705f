#pragma once

#include <QElapsedTimer>

namespace QtAV {

/// Playback time in seconds by a monotonic clock, used for the pictures where no sound leads. It
/// stands still until started, and runs at real time multiplied by a speed.
class PlaybackClock
{
public:
    void start()
    {
        if (!m_timer.isValid()) {
            m_timer.start();
        }
    }
    void stop()
    {
        m_base = now();
        m_timer.invalidate();
    }
    void set(double seconds)
    {
        m_base = seconds;
        if (m_timer.isValid()) {
            m_timer.restart();
        }
    }
    void setSpeed(double speed)
    {
        set(now());
        m_speed = speed;
    }
    double now() const
    {
        return m_timer.isValid() ? m_base + m_speed * double(m_timer.nsecsElapsed()) / 1e9 : m_base;
    }

private:
    double m_base = 0.0;
    double m_speed = 1.0;
    QElapsedTimer m_timer;
};

} // namespace QtAV
