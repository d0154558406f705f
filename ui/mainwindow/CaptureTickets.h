#pragma once

/// Tells which answers of a background capture are still relevant.
///
/// Captures are answered in the order of the requests. After the video is closed, pending answers
/// belong to it and not to the next video.
class CaptureTickets
{
public:
    /// Call it when a capture is requested.
    void ask() { ++m_current; }

    /// Makes all pending answers irrelevant.
    void forgetAll()
    {
        m_stale += m_current;
        m_current = 0;
    }

    /// Call it when an answer arrives. Returns true if it is relevant, or was not requested here.
    [[nodiscard]] bool answer()
    {
        if (m_stale > 0) {
            --m_stale;
            return false;
        }
        if (m_current > 0) {
            --m_current;
        }
        return true;
    }

    /// Whether a relevant answer is still to come.
    [[nodiscard]] bool arePending() const { return m_current > 0; }

private:
    int m_current = 0;
    int m_stale = 0;
};
