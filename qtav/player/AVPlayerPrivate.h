#pragma once

#include <QtAV/AVPlayer.h>

#include "qtav/player/PlaybackClock.h"
#include "qtav/player/PlaybackEngine.h"
#include "qtav/player/SoundPlayer.h"

#include <QPointer>
#include <QTimer>

#include <optional>

namespace QtAV {

/// State of a player and the transitions between its states. User-interface thread only.
class AVPlayer::Private
{
public:
    explicit Private(AVPlayer* player);

    void setState(State newState);
    void setStatus(MediaStatus newStatus);
    void setDuration(qint64 ms);
    void show(const VideoFrame& frame);

    void openFile();
    void handle(const PlaybackEngine::Answer& answer);
    void opened(const PlaybackEngine::Answer& answer);
    void sought(const PlaybackEngine::Answer& answer);
    void stepped(const PlaybackEngine::Answer& answer);
    void fail(const QString& reason);
    void close(MediaStatus statusAfterwards);
    qint64 clamped(qint64 ms) const;
    void seek(qint64 ms);
    void step(PlaybackEngine::Direction direction);
    void stepField(PlaybackEngine::Direction direction);
    [[nodiscard]] bool showOtherField(PlaybackEngine::Direction direction);

    void resumeTime();
    void haltTime();
    double now();
    bool plays() const { return state == PlayingState && isLoaded && !soughtMs; }
    double endTime(bool hasSound) const;
    void schedule(double playedSeconds);
    bool playsSound() const;
    void presentDue();
    void finish();
    void halt(const QString& reason);

    AVPlayer* const q;
    QString file;
    QString error;
    State state = StoppedState;
    MediaStatus status = NoMedia;
    MediaEndAction endAction = MediaEndAction_Stop;
    qint64 cacheBytes = FrameCache::defaultBytes;
    bool isLoaded = false;
    bool hasSound = false;
    bool hasStarted = false; ///< started() has been sent since opening
    /// play() was called on a frame; if no frame follows it, playback starts over.
    bool startsOverAtEnd = false;
    qint64 duration = 0;
    int interval = 0;
    qreal speed = 1.0;
    MediaFacts facts;
    VideoFrame frame;
    QPointer<VideoRenderer> renderer;
    Statistics statistics;

    std::optional<qint64> soughtMs; ///< the target of the pending seek
    quint64 seekSerial = 0;         ///< of the newest seek; answers to older seeks and steps are
                                    ///< dropped
    quint64 fieldStepSerial = 0;    ///< of the newest step by fields that went to another frame
    bool isFieldStepUnderWay = false;
    bool wantsSecondField = false; ///< show the second field of the frame that this step gives
    quint64 openSerial = 0;        ///< of the newest opening or closing; older answers are dropped

    PlaybackClock clock;
    QTimer timer;
    VideoCapture* const capture;
    AudioOutput* const audio;
    SoundPlayer sound;
    PlaybackEngine engine; ///< last, since its thread calls the other members
};

} // namespace QtAV
