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

/// One video of a series: what is extracted and how.
struct SeriesJob
{
    QString video; ///< the file's path
    FramePositions positions;
    ImageRecipe recipe;
    /// Type of the encoded pictures: a suffix without dot; empty for none.
    QString type = QStringLiteral("jpeg");
    /// The size that additional thumbnails fit into; empty for none.
    QSize thumbnail;
    /// Also provide the image itself.
    bool keepsImage = false;
    /// Provide frame numbers where available: the video is read through first.
    bool numbersFrames = false;
};

/// What is known about a video before its pictures.
struct SeriesFacts
{
    int video = 0; ///< index of its job, from 0
    qint64 durationMs = 0;
    /// Expected number of pictures; unknown for key frames and scenes.
    std::optional<int> expected = {};
};

/// The result for one position.
struct SeriesPicture
{
    int video = 0;                         ///< index of its job, from 0
    int number = 0;                        ///< of the position within its video, from 1
    std::optional<qint64> askedMs = {};    ///< the requested position; not set if the video
                                           ///< determines it
    std::optional<qint64> timeMs = {};     ///< of the frame; nothing on failure
    std::optional<qint64> frame = {};      ///< its number, if known
    QSize size = {};                       ///< of the picture, in pixels
    QByteArray content = {};               ///< the encoded picture; empty on failure
    std::shared_ptr<HiddenFile> file = {}; ///< holds the content instead if SeriesOutput::store()
                                           ///< put it there
    QImage image = {};                     ///< null unless requested
    QImage thumbnail = {};                 ///< null unless requested
    QtAV::BaseLayer baseLayer = QtAV::BaseLayer::Whole; ///< of the frame
    QString error = {};                                 ///< a text for people; empty on success
};

/// Receives the results of a series in order: videos in the order of the jobs, pictures by time.
/// The functions without another note are called from several threads, but never two at once.
class SeriesOutput
{
public:
    SeriesOutput() = default;
    virtual ~SeriesOutput() = default;
    SeriesOutput(const SeriesOutput&) = delete;
    SeriesOutput& operator=(const SeriesOutput&) = delete;

    /// Announces the positions of a video in rising order, before needs() is called for each of
    /// them, so that needs() can consider their neighbours. From any thread, also concurrently with
    /// the other calls.
    virtual void announce(int video, const QVector<SeriesTarget>& targets);

    /// Whether a position is needed; called before anything is decoded for it. From any thread,
    /// also concurrently with the other calls. Not called for key frames and scenes; for best
    /// frames, called once they have been found.
    virtual bool needs(int video, const SeriesTarget& target);

    /// Called when a picture has to wait for its predecessors. May put its content into a file so
    /// that it takes no memory. From any thread, also concurrently with the other calls.
    virtual void store(SeriesPicture& picture);

    /// Called before the first picture of a video that could be opened.
    virtual void begin(const SeriesFacts& facts);

    /// Receives a picture, or the reason why there is none. Several positions that mean the same
    /// frame give one picture.
    virtual void take(SeriesPicture picture) = 0;

    /// Called after a video's last picture. `error` is a text for people if the video could not be
    /// opened or read further, otherwise empty.
    virtual void end(int video, const QString& error);
};

namespace series {

/// Enough for a position a few thousand frames behind a key frame of a large video.
constexpr std::chrono::milliseconds usualPositionTimeout{60000};

} // namespace series

/// Resources and limits of a run.
struct SeriesOptions
{
    int lanes = 0; ///< how many decoders work side by side; 0 for one a core
    /// For pictures that wait for their turn; 0 for the default. Where pictures are so large that
    /// one of each lane takes more than that and than pictureBytes, fewer lanes work at once.
    qint64 memoryBytes = 0;
    /// Memory limit for one picture of a video in bytes, see QtAV::usualPictureBytes.
    qint64 pictureBytes = QtAV::usualPictureBytes;
    /// Time limit for one position and for opening a video; 0 for none. Reading a video through may
    /// take longer for each megabyte of its file. A video with several positions beyond the limit
    /// is given up.
    std::chrono::milliseconds positionTimeout = series::usualPositionTimeout;
};

/// Extracts series of pictures from videos on all cores. Each lane decodes with its own reader, and
/// makes and encodes the pictures. No frame is decoded twice if that can be known.
namespace series {

/// A quarter of the machine's memory, at most 2 GiB.
[[nodiscard]] qint64 defaultMemoryBytes();

/// Runs until everything is done or cancelled. After cancellation, pictures that the output has not
/// received are dropped. The calling thread, which may be any, works, too. Returns true unless
/// cancelled.
[[nodiscard]] bool run(const QVector<SeriesJob>& jobs, SeriesOutput& output,
                       const QtAV::IsCancelled& isCancelled, const SeriesOptions& options = {});

} // namespace series
