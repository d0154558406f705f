#pragma once

#include <QtAV/BaseLayer.h>

#include <QMap>
#include <QString>

namespace QtAV {

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

    /// Of the first picture, where the file has been decoded so far; what the container says else.
    BaseLayer baseLayer = BaseLayer::Whole;
};

} // namespace QtAV
