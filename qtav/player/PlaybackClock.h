#pragma once

#include <QElapsedTimer>

namespace QtAV {

/// The time of playback in seconds, by a monotonic clock: what the pictures follow where no sound
/// leads. Stands still until it is started. Goes as fast as real time times a speed.
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
