#pragma once

#include <QtGlobal>

class BatchWorkerConfig;

/// Which positions of a video a batch job takes. All times are in milliseconds.
struct SamplingPlan
{
    /// Works out the positions in a video of length `duration`. Not const on the job: values that
    /// make no sense are corrected in it first. A distance below 1 becomes 1000, and one or no
    /// spread images turn the job into a single shot.
    static SamplingPlan make(BatchWorkerConfig& config, qint64 duration);

    /// How many images the job takes of a video of that length, without a change to it.
    [[nodiscard]] static int imageCount(const BatchWorkerConfig& config, qint64 duration);

    /// Whether the job ends up with a single image, also where that is a correction.
    [[nodiscard]] static bool isSingleShot(const BatchWorkerConfig& config);

    /// Whether the plan takes an image at `position` as its image number `number`, from 1 up.
    bool takes(qint64 position, int number) const;

    /// The BatchWorkerConfig::IntervalType that the job ended up with.
    int intervalType = 0;
    /// The first position. It never lies behind `end`, which makes it negative where the skips are
    /// longer than the video.
    qint64 start = 0;
    /// From one position to the next; -1 where there is no next.
    qint64 step = -1;
    /// Where the stretch to skip at the back begins. Only images every so many milliseconds stop
    /// before it.
    qint64 end = 0;
    /// How many images spread images ask for.
    int images = 0;
    /// How many images are to be expected, for the progress: an estimate.
    int expectedImages = 0;
};
