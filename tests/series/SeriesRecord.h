#pragma once

#include "series/SeriesRunner.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/FramePositions.h"
#include "tests/support/Samples.h"

#include <QList>
#include <QStringList>

#include <functional>
#include <initializer_list>
#include <optional>

/// Jobs for series in tests, and a record of their results.
namespace seriestests {

/// Stores everything it receives.
class Record : public SeriesOutput
{
public:
    bool needs(int video, const SeriesTarget& target) override
    {
        return !isNeeded || isNeeded(video, target);
    }

    void begin(const SeriesFacts& facts) override { begun.append(facts); }

    void store(SeriesPicture& picture) override
    {
        if (onWaiting) {
            onWaiting(picture);
        }
    }

    void take(SeriesPicture picture) override
    {
        if (onPicture) {
            onPicture();
        }
        pictures.append(picture);
    }

    void end(int video, const QString& error) override
    {
        ended.append(video);
        errors.append(error);
    }

    QList<SeriesPicture> of(int video) const
    {
        QList<SeriesPicture> own;
        for (const SeriesPicture& picture : pictures) {
            if (picture.video == video) {
                own.append(picture);
            }
        }
        return own;
    }

    std::function<bool(int, const SeriesTarget&)> isNeeded;
    std::function<void(SeriesPicture&)> onWaiting;
    std::function<void()> onPicture;
    QList<SeriesFacts> begun;
    QList<SeriesPicture> pictures;
    QList<int> ended;
    QStringList errors;
};

inline bool neverCancelled()
{
    return false;
}

/// A job that gives images instead of encoded files.
inline SeriesJob jobFor(const QString& file, const FramePositions& positions)
{
    SeriesJob job;
    job.video = testsupport::samplePath(file);
    job.positions = positions;
    job.type.clear();
    job.keepsImage = true;
    return job;
}

inline FramePositions every(qint64 ms)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::Every;
    positions.everyMs = ms;
    return positions;
}

inline FramePositions spread(int count)
{
    FramePositions positions;
    positions.count = count;
    return positions;
}

inline FramePositions ofKind(FramePositions::Kind kind)
{
    FramePositions positions;
    positions.kind = kind;
    return positions;
}

inline FramePositions numbers(const QList<int>& frames)
{
    FramePositions positions = ofKind(FramePositions::Kind::List);
    for (const int frame : frames) {
        positions.list.push_back({FramePosition::Kind::FrameNumber, static_cast<double>(frame)});
    }
    return positions;
}

/// The number in a picture, as text.
inline QString numberIn(const SeriesPicture& picture)
{
    const std::optional<int> number = testsupport::frameNumber(picture.image);
    return number ? QString::number(*number) : QStringLiteral("none, ") + picture.error;
}

inline QStringList numbersIn(const QList<SeriesPicture>& pictures)
{
    QStringList all;
    for (const SeriesPicture& picture : pictures) {
        all.append(numberIn(picture));
    }
    return all;
}

inline QStringList listed(std::initializer_list<int> frames)
{
    QStringList all;
    for (const int frame : frames) {
        all.append(QString::number(frame));
    }
    return all;
}

/// The numbers of the frames at or after the positions, without repetitions.
inline QStringList expectedAt(const testsupport::Sample& sample, const QList<qint64>& positions)
{
    QStringList all;
    for (const qint64 ms : positions) {
        const QString number =
            QString::number(sample.firstNumber + testsupport::frameFrom(sample, ms));
        if (all.isEmpty() || all.constLast() != number) {
            all.append(number);
        }
    }
    return all;
}

inline QList<qint64> positionsEvery(qint64 ms, qint64 durationMs)
{
    QList<qint64> all;
    for (qint64 position = 0; position < durationMs; position += ms) {
        all.append(position);
    }
    return all;
}

} // namespace seriestests
