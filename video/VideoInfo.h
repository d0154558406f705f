#pragma once

#include "video/VideoFacts.h"

#include <QtAV/FrameResult.h>

#include <QObject>
#include <QString>

/// The basic facts of a video file, read once without decoding anything.
///
/// Held by value by whoever plans work on the video. Tied to no thread: one thread at a time may
/// use it.
class VideoInfo : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asked often while a file is read, and while the disk does not answer. Once it says true, the
    /// load fails within a moment and changes nothing. Empty, as at first, for none.
    void setInterrupt(QtAV::IsCancelled isCancelled);

    /// Reads the facts of the file at `path`, which takes minutes for some large damaged files.
    /// What went wrong is written to the message log, and `loaded` then keeps its value: nothing
    /// else is reported.
    void loadFromVideo(QString path);

    /// The reading itself: true when the file has a usable video stream. A file without one fills
    /// `duration` alone, a file that cannot be opened changes nothing.
    [[nodiscard]] bool internalLoadFromVideo(QString path);

    /// What is known, to be handed to another thread.
    VideoFacts facts() const { return {duration, width, height, loaded}; }
    /// Takes over what was read elsewhere.
    void setFacts(const VideoFacts& facts);

    /// Length in milliseconds.
    qint64 duration = 0;
    /// Size of the stored picture in pixels, before turning it upright and making its pixels
    /// square.
    qint32 width = 0;
    qint32 height = 0;
    /// True once a load succeeded; no later failure resets it.
    bool loaded = false;

private:
    QtAV::IsCancelled m_isCancelled;
};
