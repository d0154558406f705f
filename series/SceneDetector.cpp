#include "series/SceneDetector.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace {

/// The mean difference of two pictures' samples, 0 to 1.
double difference(const QImage& a, const QImage& b)
{
    qint64 sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        const uchar* const lineOfA = a.constScanLine(y);
        const uchar* const lineOfB = b.constScanLine(y);
        for (int x = 0; x < a.width(); ++x) {
            sum += std::abs(lineOfA[x] - lineOfB[x]);
        }
    }
    return static_cast<double>(sum) / (255.0 * a.width() * a.height());
}

} // namespace

double SceneDetector::add(const QImage& picture)
{
    const QImage last = std::exchange(m_last, picture);
    if (last.isNull() || picture.isNull() || last.size() != picture.size()) {
        m_lastDifference = 0.0;
        return 0.0;
    }
    const double now = difference(last, picture);
    const double growth = std::abs(now - std::exchange(m_lastDifference, now));
    // Whole pictures are hardly ever negatives of each other: a tenth of that is a cut.
    constexpr double scale = 2.55;
    return std::min(1.0, std::min(now, growth) * scale);
}
