#pragma once

#include "series/FrameQuality.h"

#include <QtAV/Deinterlacing.h>

#include <QObject>
#include <QString>

#include <optional>

class BestFramesDialog;
class QWidget;

namespace QtAV {
class AVPlayer;
} // namespace QtAV

/// Connects proposals of the best frames with the player and with taking a snapshot. User-interface
/// thread only.
class FrameProposals : public QObject
{
    Q_OBJECT

public:
    /// @param player  shows the frames; must outlive this object
    /// @param window  parent of the dialog; owns this object
    FrameProposals(QtAV::AVPlayer& player, QWidget& window);

    /// Shows the best frames of a stretch of the open video once they are found.
    void propose(const QString& video, QtAV::Deinterlacing deinterlacing,
                 const VideoStretch& stretch);
    /// Call it when the video of the proposals is closed.
    void reset();

    /// A stretch from a second before a frame to a second after it.
    [[nodiscard]] static VideoStretch around(qint64 ms);

Q_SIGNALS:
    /// The frame of which the user requested a snapshot is on screen.
    void snapshotWanted();

private:
    void goTo(qint64 ms);
    void noteShown();

    QtAV::AVPlayer& m_player;
    BestFramesDialog* const m_dialog;
    std::optional<qint64> m_takenWhenShown; ///< a snapshot is taken once this position is shown
};
