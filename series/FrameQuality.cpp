#include "series/FrameQuality.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

/// Samples up to this value look black.
constexpr int darkestVisible = 32;
/// A picture with this fraction of black samples shows nothing.
constexpr double emptyPart = 0.98;
/// Neither does one whose samples deviate less than this from their mean.
constexpr double flatDeviation = 3.0;

/// Added to the variance, so that noise in a low-contrast picture does not count as detail.
constexpr double noiseVariance = 64.0;

/// A change of at least this begins a scene, as for series of scenes.
constexpr double cutChange = 0.3;
/// Frames this close to a cut are coded coarsely or belong to a cross-fade.
constexpr qint64 nearCutMs = 100;

/// Frames this close show about the same picture, unless something moves.
constexpr qint64 neighbourMs = 500;
/// A frame with less than this fraction of its neighbours' sharpness is blurred.
constexpr double blurredPart = 0.75;

struct Sums
{
    double samples = 0.0;
    double squares = 0.0;
    double across = 0.0; ///< squared differences of neighbours in a line
    double down = 0.0;   ///< squared differences of neighbours in a column
};

Sums sumsOf(const QImage& picture)
{
    Sums sums;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const line = picture.constScanLine(y);
        const uchar* const above = picture.constScanLine(std::max(0, y - 1));
        qint64 samples = 0;
        qint64 squares = 0;
        qint64 across = 0;
        qint64 down = 0;
        int before = line[0];
        for (int x = 0; x < picture.width(); ++x) {
            const int sample = line[x];
            samples += sample;
            squares += sample * sample;
            across += (sample - before) * (sample - before);
            down += (sample - above[x]) * (sample - above[x]);
            before = sample;
        }
        sums.samples += static_cast<double>(samples);
        sums.squares += static_cast<double>(squares);
        sums.across += static_cast<double>(across);
        sums.down += static_cast<double>(down);
    }
    return sums;
}

bool isDark(const QImage& picture)
{
    qint64 dark = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const line = picture.constScanLine(y);
        dark += std::count_if(line, line + picture.width(),
                              [](uchar sample) { return sample <= darkestVisible; });
    }
    const double all = static_cast<double>(picture.width()) * picture.height();
    return static_cast<double>(dark) >= emptyPart * all;
}

/// Calls `use` for the frames whose times are at most this far from that of a frame.
template <typename Use>
void forEachNear(const QVector<FrameQuality>& frames, int place, qint64 distanceMs, const Use& use)
{
    const qint64 ms = frames.at(place).ms;
    for (int i = place; i >= 0 && ms - frames.at(i).ms <= distanceMs; --i) {
        use(i);
    }
    for (int i = place + 1; i < frames.size() && frames.at(i).ms - ms <= distanceMs; ++i) {
        use(i);
    }
}

bool isCut(const FrameQuality& frame)
{
    return frame.change >= cutChange;
}

/// The cut lies between a frame with a large change and its predecessor.
bool isNearCut(const QVector<FrameQuality>& frames, int place)
{
    bool isNear = place + 1 < frames.size() && isCut(frames.at(place + 1));
    forEachNear(frames, place, nearCutMs, [&](int i) { isNear = isNear || isCut(frames.at(i)); });
    return isNear;
}

/// The maximum sharpness of nearby frames of the same scene, including the frame itself.
double sharpnessAround(const QVector<FrameQuality>& frames, int place)
{
    const qint64 ms = frames.at(place).ms;
    double best = frames.at(place).sharpness;
    for (int i = place; i > 0 && !isCut(frames.at(i)); --i) {
        const FrameQuality& before = frames.at(i - 1);
        if (ms - before.ms > neighbourMs) {
            break;
        }
        best = std::max(best, before.sharpness);
    }
    for (int i = place + 1; i < frames.size() && !isCut(frames.at(i)); ++i) {
        if (frames.at(i).ms - ms > neighbourMs) {
            break;
        }
        best = std::max(best, frames.at(i).sharpness);
    }
    return best;
}

bool isGood(const QVector<FrameQuality>& frames, int place)
{
    const FrameQuality& frame = frames.at(place);
    return !frame.isEmpty && !isNearCut(frames, place) &&
           frame.sharpness >= blurredPart * sharpnessAround(frames, place);
}

bool isSharper(const FrameQuality& a, const FrameQuality& b)
{
    return a.sharpness > b.sharpness;
}

bool isAwayFrom(const QVector<qint64>& chosen, qint64 ms, qint64 gapMs)
{
    return std::all_of(chosen.cbegin(), chosen.cend(),
                       [=](qint64 other) { return std::abs(other - ms) >= gapMs; });
}

} // namespace

FrameQuality FrameJudge::judge(qint64 ms, const QImage& picture)
{
    FrameQuality quality;
    quality.ms = ms;
    quality.isEmpty = true;
    if (picture.isNull()) {
        return quality;
    }
    quality.change = m_scenes.add(
        picture.scaled(SceneDetector::pictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_Grayscale8));
    const Sums sums = sumsOf(picture);
    const double count = static_cast<double>(picture.width()) * picture.height();
    const double mean = sums.samples / count;
    const double variance = std::max(0.0, sums.squares / count - mean * mean);
    quality.sharpness = std::sqrt(sums.across * sums.down) / count / (variance + noiseVariance);
    quality.isEmpty = std::sqrt(variance) < flatDeviation || isDark(picture);
    return quality;
}

QVector<qint64> bestOf(const QVector<FrameQuality>& frames, const VideoStretch& stretch, int count)
{
    QVector<FrameQuality> good;
    for (int i = 0; i < frames.size(); ++i) {
        const bool isInside = frames.at(i).ms >= stretch.fromMs && frames.at(i).ms < stretch.toMs;
        if (isInside && isGood(frames, i)) {
            good.append(frames.at(i));
        }
    }
    const double part = static_cast<double>(stretch.toMs - stretch.fromMs) / std::max(1, count);
    const qint64 gapMs = static_cast<qint64>(part / 2);
    std::stable_sort(good.begin(), good.end(), isSharper);
    QVector<qint64> chosen;
    QVector<bool> isTaken(std::max(1, count), false);
    for (const FrameQuality& frame : qAsConst(good)) {
        const int place = std::min(
            count - 1, static_cast<int>(static_cast<double>(frame.ms - stretch.fromMs) / part));
        if (chosen.size() < count && !isTaken.at(place) &&
            isAwayFrom(chosen, frame.ms, gapMs / 2)) {
            isTaken[place] = true;
            chosen.append(frame.ms);
        }
    }
    for (const FrameQuality& frame : qAsConst(good)) {
        if (chosen.size() < count && isAwayFrom(chosen, frame.ms, std::max<qint64>(1, gapMs))) {
            chosen.append(frame.ms);
        }
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}
