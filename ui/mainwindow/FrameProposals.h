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

/// The way from proposals of the best frames to the frame on screen, and to a snapshot of it.
/// User-interface thread only.
class FrameProposals : public QObject
{
    Q_OBJECT

public:
    /// @param player  goes to the frames; must outlive this object
    /// @param window  the dialog stays in front of it, and owns this object
    FrameProposals(QtAV::AVPlayer& player, QWidget& window);

    /// Shows the best frames of a stretch of the open video as soon as they are found.
    void propose(const QString& video, QtAV::Deinterlacing deinterlacing,
                 const VideoStretch& stretch);
    /// What was proposed is of a video that is closed.
    void reset();

    /// A second before and behind a frame.
    [[nodiscard]] static VideoStretch around(qint64 ms);

Q_SIGNALS:
    /// The frame that the user wants a snapshot of is on screen.
    void snapshotWanted();

private:
    void goTo(qint64 ms);
    void noteShown();

    QtAV::AVPlayer& m_player;
    BestFramesDialog* const m_dialog;
    std::optional<qint64> m_takenWhenShown; ///< a snapshot is wanted as soon as this one is
};
