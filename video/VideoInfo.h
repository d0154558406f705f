#pragma once

#include "video/VideoFacts.h"

#include <QtAV/FrameResult.h>

#include <QObject>
#include <QString>

/// Basic properties of a video file, read once without decoding anything.
///
/// A QObject that is held by value. Tied to no thread: one thread at a time may use it.
class VideoInfo : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Sets a callback that is polled while a file is read and while the disk does not answer. Once
    /// it returns true, the load fails within a moment and changes nothing. Empty, the initial
    /// value, disables it.
    void setInterrupt(QtAV::IsCancelled isCancelled);

    /// Reads the properties of the file at `path`, which takes minutes for some large damaged
    /// files. On failure a message is logged and `loaded` keeps its value; there is no other
    /// report.
    void loadFromVideo(QString path);

    /// Does the reading: returns true if the file has a usable video stream. A file without one
    /// sets only `duration`; a file that cannot be opened changes nothing.
    [[nodiscard]] bool internalLoadFromVideo(QString path);

    /// A copy of the properties for another thread.
    VideoFacts facts() const { return {duration, width, height, loaded}; }
    /// Takes over properties that were read elsewhere.
    void setFacts(const VideoFacts& facts);

    /// Length in milliseconds.
    qint64 duration = 0;
    /// Size of the stored picture in pixels, before rotation and before its pixels are made square.
    qint32 width = 0;
    qint32 height = 0;
    /// True once a load succeeded; a later failure does not reset it.
    bool loaded = false;

private:
    QtAV::IsCancelled m_isCancelled;
};
