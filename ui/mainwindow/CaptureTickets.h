#pragma once

/// Tells which answers of a capture that runs in the background still matter.
///
/// Captures are answered in the order in which they were asked for. Once the video is closed, the
/// answers still to come belong to it and not to the one opened next.
class CaptureTickets
{
public:
    /// A capture was asked for.
    void ask() { ++m_current; }

    /// Nothing asked for so far matters any more.
    void forgetAll()
    {
        m_stale += m_current;
        m_current = 0;
    }

    /// An answer came. True when it matters; so does one that nobody here asked for.
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

private:
    int m_current = 0;
    int m_stale = 0;
};
