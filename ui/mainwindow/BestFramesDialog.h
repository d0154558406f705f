#pragma once

#include "series/BestFrames.h"

#include <QDialog>
#include <QString>

#include <optional>

class BestFramesFinder;
class QLabel;
class QListWidget;
class QPushButton;

/// Proposes the best frames of a stretch as small pictures: a click shows the frame, another action
/// takes the snapshot. It stays open beside the window. User-interface thread only.
class BestFramesDialog : public QDialog
{
    Q_OBJECT

public:
    /// Number of proposals.
    static constexpr int proposals = 5;

    explicit BestFramesDialog(QWidget* parent = nullptr);
    ~BestFramesDialog() override;

    /// Shows the dialog and searches a stretch of a video for its best frames, which replace those
    /// shown.
    void propose(const QString& video, QtAV::Deinterlacing deinterlacing,
                 const VideoStretch& stretch);

    /// Shows nothing, for example after a video was closed.
    void reset();

Q_SIGNALS:
    /// The user requests the frame at that position of the video, in milliseconds.
    void frameChosen(qint64 ms);
    /// The user requests a snapshot of it.
    void snapshotWanted(qint64 ms);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void layOut();
    void showProposals(const BestFrames& best);
    void takeCurrent();
    [[nodiscard]] std::optional<qint64> currentMs() const;

    BestFramesFinder* const m_finder;
    QLabel* const m_label;
    QListWidget* const m_list;
    QPushButton* const m_takeButton;
};
