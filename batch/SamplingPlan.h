#pragma once

#include <QtGlobal>

class BatchWorkerConfig;

/// Which positions of a video a batch job takes. All times are in milliseconds. A plain value, made
/// in the thread that runs the job.
struct SamplingPlan
{
    /// Determines the positions in a video of length `duration`. The job is not const because
    /// invalid values are corrected in it first: a distance below 1 becomes 1000, and one or no
    /// spread images turn the job into a single shot.
    static SamplingPlan make(BatchWorkerConfig& config, qint64 duration);

    /// How many images the job takes of a video of that length. Does not change the job.
    [[nodiscard]] static int imageCount(const BatchWorkerConfig& config, qint64 duration);

    /// Whether the job results in a single image, also after correction.
    [[nodiscard]] static bool isSingleShot(const BatchWorkerConfig& config);

    /// Whether the plan takes an image at `position` as its image number `number`, from 1 up.
    bool takes(qint64 position, int number) const;

    /// The BatchWorkerConfig::IntervalType after correction.
    int intervalType = 0;
    /// The first position. It never lies behind `end`, so it is negative if the skips are longer
    /// than the video.
    qint64 start = 0;
    /// Distance between positions; -1 if there is no next one.
    qint64 step = -1;
    /// Start of the skipped stretch at the back. It limits only the images at fixed intervals.
    qint64 end = 0;
    /// Number of spread images.
    int images = 0;
    /// Estimated number of images, for the progress.
    int expectedImages = 0;
};
