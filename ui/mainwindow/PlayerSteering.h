#pragma once

#include "ui/mainwindow/MarkedStretch.h"
#include "ui/mainwindow/SliderPreview.h"
#include "ui/mainwindow/StretchLoop.h"
#include "ui/mainwindow/TypedPosition.h"
#include "ui/mainwindow/VideoFactsText.h"
#include "video/FrameCounter.h"
#include "video/Thumbnails.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <optional>

class QLabel;
class TimecodeField;
class TimeSlider;

namespace QtAV {
class AVPlayer;
} // namespace QtAV

/// What leads to a frame beside playing and stepping: the marks and the preview of the slider, the
/// time that is typed, the marked stretch, the speed; and the line that tells what is on screen.
///
/// It follows the player from video to video: what belongs to one goes with it, and the speed is
/// the normal one again. User-interface thread only; nothing here waits for the disk or a decoder.
class PlayerSteering : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all are to outlive it.
    struct Parts
    {
        QtAV::AVPlayer& player;
        TimeSlider& slider;
        TimecodeField& field;
        QLabel& factsLabel;
    };

    explicit PlayerSteering(const Parts& parts, QObject* parent = nullptr);

    /// What is marked in the open video.
    const MarkedStretch& stretch() const { return m_stretch; }

    /// The number of the frame on screen, as far as it is known.
    [[nodiscard]] std::optional<VideoFactsText::FrameNumber> frameOnScreen() const;

    void slower();
    void faster();
    void playNormally();

    /// Each marks the frame on screen as an end of the stretch.
    void markStart();
    void markEnd();
    void clearStretch();
    void setLooping(bool on);

    /// Pause and show the first frame, and the last.
    void goToStart();
    void goToEnd();

    /// Goes where the text says. Where it says nothing that there is in the video, the field is
    /// marked and nothing moves.
    void goToTyped(const QString& text);

Q_SIGNALS:
    /// Something to be told in the status bar.
    void message(const QString& text);
    /// What was typed has been reached, or is on its way.
    void typedPositionTaken();

private:
    void followVideo();
    void leaveVideo();
    void showFacts();
    void showChapters();
    void showStretch();
    void setSpeed(qreal speed);

    void preview(qint64 ms, int x);
    void hidePreview();
    void showThumbnail(qint64 ms);
    [[nodiscard]] QString previewText(qint64 ms) const;

    void step(int frames);
    [[nodiscard]] std::optional<qint64> timeOf(const TypedPosition& typed) const;
    void goTo(const TypedPosition& typed, const QString& text);
    void countForTyped(const TypedPosition& typed, const QString& text);
    void noticeCounted();
    void refuse(const QString& text, const QString& reason);

    QtAV::AVPlayer& m_player;
    TimeSlider& m_slider;
    TimecodeField& m_field;
    QLabel& m_factsLabel;
    SliderPreview* const m_preview; ///< a child of the slider
    Thumbnails m_thumbnails;
    FrameCounter m_counter;
    StretchLoop m_loop;
    MarkedStretch m_stretch;
    bool m_isFollowing = false;           ///< the player has a video
    std::optional<qint64> m_previewed;    ///< what the preview is of
    std::optional<TypedPosition> m_typed; ///< waits until the frames are counted
    QString m_typedText;                  ///< of m_typed
};
