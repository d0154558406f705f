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
    QString title;      ///< empty if the file gives none
};

/// What a video file states about itself, for storing it with extracted pictures. A plain value.
///
/// Nothing here has been checked: a file may contain any text, in any encoding.
struct MediaFacts
{
    /// Texts by FFmpeg's keys in lower case, such as "creation_time": the tags of the file,
    /// supplemented by those of its video stream. Long texts are truncated, and only the first of
    /// very many are kept.
    QMap<QString, QString> tags;

    /// Duration of one tick of the video stream's times, as a fraction of a second; 0/1 without a
    /// video stream.
    int tickNumerator = 0;
    int tickDenominator = 1;

    /// Stated frame rate of the video stream in frames per second, as a fraction; 0/1 if the file
    /// does not state it. The duration of single frames may differ.
    int rateNumerator = 0;
    int rateDenominator = 1;

    /// The short name of the video stream's codec, such as "h264"; empty without one.
    QString codec;

    /// In the order of their starts; only the first of very many are kept.
    QVector<Chapter> chapters;

    /// Taken from the first picture if one has been decoded, otherwise from the container.
    BaseLayer baseLayer = BaseLayer::Whole;
};

} // namespace QtAV
