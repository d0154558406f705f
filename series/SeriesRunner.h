#pragma once

#include "imaging/ImageRecipe.h"
#include "series/SeriesTargets.h"

#include <QtAV/FrameResult.h>
#include <QtAV/PictureMemory.h>

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QVector>

#include <chrono>
#include <memory>
#include <optional>

class HiddenFile;

/// One video of a series: what is taken out of it and what becomes of it.
struct SeriesJob
{
    QString video; ///< the file's path
    FramePositions positions;
    ImageRecipe recipe;
    /// Of the encoded pictures: a suffix without dot; empty for none.
    QString type = QStringLiteral("jpeg");
    /// The size that small pictures fit into, beside the encoded ones; empty for none.
    QSize thumbnail;
    /// Give the picture itself, too.
    bool keepsImage = false;
    /// Give the numbers of frames where they can be had: the video is read through first.
    bool numbersFrames = false;
};

/// What is known of a video before its pictures.
struct SeriesFacts
{
    int video = 0; ///< its place among the jobs, from 0
    qint64 durationMs = 0;
    /// How many pictures are expected; for key frames and scenes nobody knows.
    std::optional<int> expected = {};
};

/// What became of one position.
struct SeriesPicture
{
    int video = 0;                         ///< its place among the jobs, from 0
    int number = 0;                        ///< of the position within its video, from 1
    std::optional<qint64> askedMs = {};    ///< not where the video itself tells the position
    std::optional<qint64> timeMs = {};     ///< of the frame; nothing after an error
    std::optional<qint64> frame = {};      ///< its number, where known
    QSize size = {};                       ///< of the picture, in pixels
    QByteArray content = {};               ///< the encoded picture; empty after an error
    std::shared_ptr<HiddenFile> file = {}; ///< holds it instead, if SeriesOutput::store() says so
    QImage image = {};                     ///< null unless asked for
    QImage thumbnail = {};                 ///< null unless asked for
    QtAV::BaseLayer baseLayer = QtAV::BaseLayer::Whole; ///< what the frame is
    QString error = {};                                 ///< for people; empty after a success
};

/// Takes what a series gives. All is given in order: the videos in that of the jobs, their pictures
/// in that of the time. The calls come from several threads, but never two at once.
class SeriesOutput
{
public:
    SeriesOutput() = default;
    virtual ~SeriesOutput() = default;
    SeriesOutput(const SeriesOutput&) = delete;
    SeriesOutput& operator=(const SeriesOutput&) = delete;

    /// The positions of a video in rising order, before needs() is asked about each of them: so
    /// that what is needed can go by its neighbours. From any thread, also at once with the other
    /// calls.
    virtual void announce(int video, const QVector<SeriesTarget>& targets);

    /// Whether a position is needed at all; asked before anything is decoded for it, from any
    /// thread at any time, also at once with the other calls. Not asked for key frames and scenes;
    /// for best frames when they have been found.
    virtual bool needs(int video, const SeriesTarget& target);

    /// A picture will have to wait for those before it. Its content may be put into its file
    /// meanwhile, so that it takes no memory. From any thread, also at once with the other calls.
    virtual void store(SeriesPicture& picture);

    /// Before the first picture of a video that could be opened.
    virtual void begin(const SeriesFacts& facts);

    /// A picture, or why there is none. Several positions that mean the same frame give one.
    virtual void take(SeriesPicture picture) = 0;

    /// After a video's last picture, or where it could not be opened or read on: then with a text
    /// for people.
    virtual void end(int video, const QString& error);
};

namespace series {

/// Long enough for a position a few thousand frames behind a key frame of a large video.
constexpr std::chrono::milliseconds usualPositionTimeout{60000};

} // namespace series

struct SeriesOptions
{
    int lanes = 0; ///< how many decoders work side by side; 0 for one a core
    /// For pictures that wait for their turn; 0 for the default. Where pictures are so large that
    /// one of each lane takes more than that and than pictureBytes, fewer lanes work at once.
    qint64 memoryBytes = 0;
    /// What one picture of a video may take, see QtAV::usualPictureBytes.
    qint64 pictureBytes = QtAV::usualPictureBytes;
    /// How long one position may take, or the opening of a video; 0 for any time. Reading a video
    /// through may take longer for each megabyte of its file. A video with several such positions
    /// is given up.
    std::chrono::milliseconds positionTimeout = series::usualPositionTimeout;
};

/// Takes series of pictures out of videos, on all cores. Each of its lanes decodes with a reader of
/// its own and makes and encodes the pictures; no frame is decoded twice where that can be known.
namespace series {

/// A quarter of the machine's memory, at most 2 GiB.
[[nodiscard]] qint64 defaultMemoryBytes();

/// Runs to the end, or until cancelled: what was not taken by the output then is lost, and nothing
/// is taken any more. The calling thread works, too. True unless cancelled.
[[nodiscard]] bool run(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                       const QtAV::IsCancelled& isCancelled, const SeriesOptions& options = {});

} // namespace series
