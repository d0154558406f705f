#pragma once

#include <QtAV/BaseLayer.h>

#include <QMap>
#include <QString>
#include <QVector>

namespace QtAV {

/// A part of a video that the file marks.
struct Chapter
{
    qint64 startMs = 0; ///< on the timeline that starts at 0 where the file starts
    QString title;      ///< empty where the file gives none
};

/// What a video file says of itself, for those who keep it with its pictures. A plain value.
///
/// Nothing here has been checked: files say what they like, also in the wrong encoding.
struct MediaFacts
{
    /// Texts by FFmpeg's keys in small letters, such as "creation_time": those of the file, and of
    /// its video stream where the file has none of that key. Long ones are cut, and of very many
    /// only the first are there.
    QMap<QString, QString> tags;

    /// How long one tick of the video stream's times is, as a fraction of a second; 0/1 without a
    /// video stream.
    int tickNumerator = 0;
    int tickDenominator = 1;

    /// How many frames a second the video stream is said to show, as a fraction; 0/1 where the file
    /// does not say. Single frames may be shown for another time.
    int rateNumerator = 0;
    int rateDenominator = 1;

    /// The short name of the video stream's codec, such as "h264"; empty without one.
    QString codec;

    /// In the order of their starts; of very many only the first are there.
    QVector<Chapter> chapters;

    /// Of the first picture, where the file has been decoded so far; what the container says else.
    BaseLayer baseLayer = BaseLayer::Whole;
};

} // namespace QtAV
