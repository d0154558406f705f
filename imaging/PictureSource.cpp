#include "imaging/PictureSource.h"

#include <QFileInfo>

PictureSource PictureSource::of(const QString& path, const QMap<QString, QString>& tags,
                                int tickNumerator, int tickDenominator)
{
    PictureSource source;
    source.video = QFileInfo(path).absoluteFilePath();
    source.recording = Recording::of(tags);
    source.tickNumerator = tickNumerator;
    source.tickDenominator = tickDenominator;
    return source;
}

PictureSource PictureSource::at(double frameSeconds, const QSize& size,
                                std::optional<qint64> number) const
{
    PictureSource source = *this;
    source.seconds = frameSeconds;
    source.frameSize = size;
    source.frameNumber = number;
    return source;
}
