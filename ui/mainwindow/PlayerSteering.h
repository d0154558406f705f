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

/// Navigation to a frame besides playing and stepping: the marks and the preview of the slider,
/// typed times, the marked stretch and the speed. Also the line that describes the frame on screen.
///
/// It follows the player from video to video: data of one video is dropped with it, and the speed
/// is reset. User-interface thread only; no function waits for the disk or a decoder.
class PlayerSteering : public QObject
{
    Q_OBJECT

public:
    /// The objects that it uses; all must outlive it.
    struct Parts
    {
        QtAV::AVPlayer& player;
        TimeSlider& slider;
        TimecodeField& field;
        QLabel& factsLabel;
    };

    explicit PlayerSteering(const Parts& parts, QObject* parent = nullptr);

    /// The marked stretch of the open video.
    const MarkedStretch& stretch() const { return m_stretch; }

    /// The number of the frame on screen, if known.
    [[nodiscard]] std::optional<VideoFactsText::FrameNumber> frameOnScreen() const;

    void slower();
    void faster();
    void playNormally();

    /// Mark the frame on screen as an end of the stretch.
    void markStart();
    void markEnd();
    void clearStretch();
    void setLooping(bool on);

    /// Pause and show the first or the last frame.
    void goToStart();
    void goToEnd();

    /// Goes to the position described by the text. If it is invalid or outside the video, the field
    /// is marked and the position does not change.
    void goToTyped(const QString& text);

Q_SIGNALS:
    /// A message for the status bar.
    void message(const QString& text);
    /// The typed position has been reached or is being sought.
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
    std::optional<qint64> m_previewed;    ///< the position of the preview
    std::optional<TypedPosition> m_typed; ///< waits until the frames are counted
    QString m_typedText;                  ///< the text of m_typed
};
