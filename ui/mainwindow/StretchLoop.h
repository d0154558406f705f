#pragma once

#include "ui/mainwindow/MarkedStretch.h"

#include <QObject>

namespace QtAV {
class AVPlayer;
} // namespace QtAV

/// Makes a player repeat the marked stretch: at its end, playback continues at its start. Does
/// nothing while the player is paused, or without a stretch. User-interface thread only.
class StretchLoop : public QObject
{
    Q_OBJECT

public:
    /// @param player  must outlive the loop.
    explicit StretchLoop(QtAV::AVPlayer& player, QObject* parent = nullptr);

    void setStretch(const MarkedStretch& stretch) { m_stretch = stretch; }
    void setEnabled(bool on) { m_isEnabled = on; }
    bool isEnabled() const { return m_isEnabled; }

private:
    void noticePosition(qint64 ms);
    void noticeEnd();
    [[nodiscard]] bool loops() const { return m_isEnabled && !m_stretch.isEmpty(); }

    QtAV::AVPlayer& m_player;
    MarkedStretch m_stretch;
    bool m_isEnabled = false;
};
