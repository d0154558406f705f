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

/// How far the player is with its file.
enum MediaStatus {
    NoMedia,      ///< nothing is loaded
    LoadingMedia, ///< the file is being opened
    LoadedMedia,  ///< its frames can be had
    EndOfMedia,   ///< playback came to the end, and the last frame is on screen
    InvalidMedia, ///< the file cannot be played, see AVPlayer::errorString()
};

/// What the player does when playback comes to the end.
enum MediaEndAction {
    MediaEndAction_Stop,
    MediaEndAction_Pause, ///< the last frame stays on screen; play() starts over
};

/// Plays one video file, with exact seeking and stepping in both directions.
///
/// Nothing here waits for decoding, disk or sound: what is asked for is done by threads of the
/// player's own, and the answers come as signals. Calls that come before an answer are merged: the
/// newest seek wins, steps add up to a limit, and those in opposite directions cancel each other.
///
/// Positions are milliseconds on the timeline that starts at 0 where the file starts. The frame on
/// screen is the frame captured, and it is the same that a VideoDecoder gives for its time.
///
/// User-interface thread only, which needs an event loop.
class AVPlayer : public QObject
{
    Q_OBJECT

public:
    enum State {
        StoppedState, ///< no file is open
        PlayingState, ///< also while the file that play() was called for is being opened
        PausedState,
    };
    Q_ENUM(State)

    /// The limits of the speed, and those within which there is sound; its pitch goes with it.
    static constexpr qreal slowest = 0.1;
    static constexpr qreal fastest = 8.0;
    static constexpr qreal slowestSound = 0.5;
    static constexpr qreal fastestSound = 2.0;

    explicit AVPlayer(QObject* parent = nullptr);
    ~AVPlayer() override;

    /// Names the file for the next play(). Stops when it is another one.
    void setFile(const QString& path);
    QString file() const;

    /// The file is open: its length is known and its frames can be had.
    bool isLoaded() const;
    State state() const;
    bool isPlaying() const { return state() == PlayingState; }
    bool isPaused() const { return state() == PausedState; }
    MediaStatus mediaStatus() const;

    /// Why the file cannot be played, or not from here on, for people; empty when it can.
    QString errorString() const;

    /// In milliseconds, 0 while no file is loaded. It grows, with a durationChanged(), when frames
    /// show up behind the end that the file states.
    qint64 duration() const;

    /// What the file says of itself; nothing while none is loaded.
    MediaFacts facts() const;

    /// Where the player is: the target of a seek that runs, else displayPosition().
    qint64 position() const;

    /// The time of the frame on screen in milliseconds, cut off; 0 when there is none.
    qint64 displayPosition() const;

    /// How far apart two frames are, in milliseconds: how often positionChanged() may be expected.
    int notifyInterval() const;

    /// How many seconds of the video are played in one, from slowest to fastest; 1 at first. It
    /// holds for every file that is played.
    qreal speed() const;

    void setMediaEndAction(MediaEndAction action);
    MediaEndAction mediaEndAction() const;

    /// Most memory that decoded frames may take for stepping back, in bytes; 224 MiB unless said.
    /// Only the few frames around the one on screen are kept in full size, the others at that at
    /// which they are shown. Holds from the next play() of a stopped player on.
    void setFrameCacheSize(qint64 bytes);
    qint64 frameCacheSize() const;

    /// What one picture may take in memory, in bytes, see usualPictureBytes. Holds from the next
    /// file that is opened on.
    void setPictureMemory(qint64 bytes);

    /// What becomes of interlaced pictures, on screen and captured; the frame on screen is shown
    /// anew.
    void setDeinterlacing(Deinterlacing deinterlacing);

    /// Where frames are shown; not owned, and may go before the player. Null for nowhere.
    void setRenderer(VideoRenderer* renderer);
    VideoRenderer* renderer() const;

    /// The frame on screen; an invalid one when there is none.
    VideoFrame displayedFrame() const;

    /// Owned by the player.
    VideoCapture* videoCapture() const;
    AudioOutput* audio() const;

    const Statistics& statistics() const;

public Q_SLOTS:
    /// Plays on: opens the file first when stopped, starts over from the last frame, however that
    /// came on screen. Does nothing without a file.
    void play();
    /// The same for another file, or for the same one from its start.
    void play(const QString& path);
    /// Pauses or goes on. Does nothing when stopped.
    void pause(bool pause = true);
    /// Closes the file; the screen turns black.
    void stop();

    /// Shows the first frame at or after a position, clamped to the video; behind the last frame,
    /// that one. Plays on if it was playing. Ends in one seekFinished(), unless a newer seek,
    /// stop() or a file that cannot be read comes between. Does nothing when stopped.
    void setPosition(qint64 ms);
    void seek(qint64 ms) { setPosition(ms); }

    /// Plays faster or slower from now on; what lies outside of the limits is clamped. A machine
    /// that cannot decode so fast leaves frames out, or plays slower.
    void setSpeed(qreal speed);

    /// Show the very next frame or the one before, and pause. Stay at the video's ends, and where
    /// the next frame cannot be read.
    void stepForward();
    void stepBackward();

    /// The same by single moments: an interlaced picture that combs shows two. Where one has no
    /// second moment, and where frames are kept at the size of the screen only, these go by frames.
    /// A step that comes while one to another frame is under way is dropped.
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
    /// Another frame is on screen; its time.
    void positionChanged(qint64 ms);
    void notifyIntervalChanged();
    void speedChanged(qreal speed);
    /// The newest seek's frame is on screen; its time.
    void seekFinished(qint64 ms);
    /// The next frame, or the one before, cannot be read: the player pauses and the frame on screen
    /// stays. The reason is for people, and that of errorString().
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
