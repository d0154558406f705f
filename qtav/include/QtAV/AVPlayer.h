#pragma once

#include <QtAV/AudioOutput.h>
#include <QtAV/Deinterlacing.h>
#include <QtAV/MediaFacts.h>
#include <QtAV/Statistics.h>
#include <QtAV/VideoCapture.h>
#include <QtAV/VideoFrame.h>
#include <QtAV/VideoRenderer.h>

#include <QObject>
#include <QString>

#include <memory>

namespace QtAV {

/// State of the player's file.
enum MediaStatus {
    NoMedia,      ///< nothing is loaded
    LoadingMedia, ///< the file is being opened
    LoadedMedia,  ///< its frames can be requested
    EndOfMedia,   ///< playback reached the end, and the last frame is on screen
    InvalidMedia, ///< the file cannot be played, see AVPlayer::errorString()
};

/// What the player does when playback reaches the end.
enum MediaEndAction {
    MediaEndAction_Stop,
    MediaEndAction_Pause, ///< the last frame stays on screen; play() starts over
};

/// Plays one video file, with exact seeking and stepping in both directions.
///
/// No function here waits for decoding, disk or sound. Threads of the player carry out the
/// requests, and signals report the results. Requests made before an answer arrives are merged: the
/// newest seek wins, steps add up to a limit, and steps in opposite directions cancel each other.
///
/// Positions are milliseconds on the timeline that starts at 0 where the file starts. The frame on
/// screen is the one that is captured, and it is the frame that a VideoDecoder gives for its time.
///
/// User-interface thread only. Needs an event loop.
class AVPlayer : public QObject
{
    Q_OBJECT

public:
    enum State {
        StoppedState, ///< no file is open
        PlayingState, ///< also while the file requested by play() is being opened
        PausedState,
    };
    Q_ENUM(State)

    /// Limits of the speed, and the limits within which there is sound. The pitch of the sound is
    /// kept.
    static constexpr qreal slowest = 0.1;
    static constexpr qreal fastest = 8.0;
    static constexpr qreal slowestSound = 0.5;
    static constexpr qreal fastestSound = 2.0;

    explicit AVPlayer(QObject* parent = nullptr);
    ~AVPlayer() override;

    /// Names the file for the next play(). Stops playback if it is another file.
    void setFile(const QString& path);
    QString file() const;

    /// True when the file is open: its length is known and its frames can be requested.
    bool isLoaded() const;
    State state() const;
    bool isPlaying() const { return state() == PlayingState; }
    bool isPaused() const { return state() == PausedState; }
    MediaStatus mediaStatus() const;

    /// Why the file cannot be played, or not beyond this place, as a text for people; empty if it
    /// can.
    QString errorString() const;

    /// Length in milliseconds; 0 while no file is loaded. It grows, with durationChanged(), when
    /// frames turn up behind the stated end.
    qint64 duration() const;

    /// What the file states about itself; empty while none is loaded.
    MediaFacts facts() const;

    /// The current position: the target of a pending seek, otherwise displayPosition().
    qint64 position() const;

    /// The time of the frame on screen in milliseconds, truncated; 0 if there is none.
    qint64 displayPosition() const;

    /// Time between two frames in milliseconds, and so the expected interval of positionChanged().
    int notifyInterval() const;

    /// Seconds of video played per second, from slowest to fastest; initially 1. It applies to
    /// every file that is played.
    qreal speed() const;

    void setMediaEndAction(MediaEndAction action);
    MediaEndAction mediaEndAction() const;

    /// Maximum memory for decoded frames that are kept for stepping back, in bytes; 224 MiB by
    /// default. Only the few frames around the one on screen are kept in full size, the others at
    /// the size at which they are shown. Takes effect with the next play() of a stopped player.
    void setFrameCacheSize(qint64 bytes);
    qint64 frameCacheSize() const;

    /// Memory limit for one picture, in bytes; see usualPictureBytes. Takes effect with the next
    /// file that is opened.
    void setPictureMemory(qint64 bytes);

    /// How interlaced pictures are treated, both on screen and when captured. The frame on screen
    /// is shown again.
    void setDeinterlacing(Deinterlacing deinterlacing);

    /// Renderer for the frames; null for none. Not owned, and may be deleted before the player.
    void setRenderer(VideoRenderer* renderer);
    VideoRenderer* renderer() const;

    /// The frame on screen; an invalid frame if there is none.
    VideoFrame displayedFrame() const;

    /// Owned by the player.
    VideoCapture* videoCapture() const;
    AudioOutput* audio() const;

    const Statistics& statistics() const;

public Q_SLOTS:
    /// Resumes playback. Opens the file first when stopped, and starts over from the last frame,
    /// regardless of how that came on screen. Does nothing without a file.
    void play();
    /// Plays another file, or the same file from its start.
    void play(const QString& path);
    /// Pauses or resumes. Does nothing when stopped.
    void pause(bool pause = true);
    /// Closes the file; the screen turns black.
    void stop();

    /// Shows the first frame at or after a position, clamped to the video; behind the last frame,
    /// the last one. Continues playback if the player was playing. Ends in one seekFinished(),
    /// unless a newer seek, stop() or a read error comes first. Does nothing when stopped.
    void setPosition(qint64 ms);
    void seek(qint64 ms) { setPosition(ms); }

    /// Sets the playback speed, clamped to the limits. A machine that cannot decode fast enough
    /// drops frames or plays slower.
    void setSpeed(qreal speed);

    /// Pause and show the next or the previous frame. Do nothing at the ends of the video and where
    /// the next frame cannot be read.
    void stepForward();
    void stepBackward();

    /// Step by single moments, of which a combing interlaced picture shows two. They step by frames
    /// where a picture has no second moment, and where frames are kept only at the size of the
    /// screen. A step requested while a step to another frame is pending is dropped.
    void stepFieldForward();
    void stepFieldBackward();

Q_SIGNALS:
    /// The first frame is on screen and playback begins.
    void started();
    void stopped();
    void paused(bool isPaused);
    void stateChanged(QtAV::AVPlayer::State state);
    void mediaStatusChanged(QtAV::MediaStatus status);
    void durationChanged(qint64 ms);
    /// Another frame is on screen; `ms` is its time.
    void positionChanged(qint64 ms);
    void notifyIntervalChanged();
    void speedChanged(qreal speed);
    /// The frame of the newest seek is on screen; `ms` is its time.
    void seekFinished(qint64 ms);
    /// The next or previous frame cannot be read. The player pauses and the frame on screen stays.
    /// The reason is a text for people and equals errorString().
    void failed(const QString& reason);

private Q_SLOTS:
    void handleEngine();
    void presentDue();

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace QtAV

Q_DECLARE_METATYPE(QtAV::MediaStatus)
