#include "tests/support/FramePositions.h"

#include <algorithm>
#include <random>

namespace testsupport {

namespace {

constexpr qint64 pixelsOfSmallPicture = 320 * 240;
constexpr int namedMistakes = 8;

/// Total number of small pictures to decode for reaching each frame from its key frame.
qint64 decodedInAll(const Sample& sample, const QList<int>& keys)
{
    qint64 frames = 0;
    for (int n = 0, key = 0; n < sample.frames; ++n) {
        if (keys.contains(n)) {
            key = n;
        }
        frames += n - (sample.has(Trait::IntraRefresh) ? 0 : key) + 1;
    }
    const qint64 pixels = qint64(sample.codedSize.width()) * sample.codedSize.height();
    return std::max<qint64>(frames, frames * pixels / pixelsOfSmallPicture);
}

} // namespace

int frameFrom(const Sample& sample, qint64 ms)
{
    int n = 0;
    while (n + 1 < sample.frames && frameTimeMs(sample, n) < ms) {
        ++n;
    }
    return n;
}

QList<int> framesToAskFor(const Sample& sample, int mostDecoded)
{
    const QList<int> keys = keyFrames(sample);
    const int stride = int((decodedInAll(sample, keys) + mostDecoded - 1) / mostDecoded);
    QList<int> frames;
    for (int n = 0; n < sample.frames; ++n) {
        const bool isAtEnd = n == 0 || n == sample.frames - 1;
        const bool isAtKey = keys.contains(n) || keys.contains(n + 1);
        // In all-key videos every frame is near one.
        const bool isSpecial = isAtEnd || (isAtKey && keys.size() * 6 < sample.frames);
        if (n % stride == 0 || isSpecial) {
            frames.append(n);
        }
    }
    std::shuffle(frames.begin(), frames.end(), std::mt19937(20));
    return frames;
}

void Mistakes::compare(const QString& question, const QString& got, const QString& expected)
{
    ++m_compared;
    if (got != expected) {
        m_wrong.append(QStringLiteral("%1: %2 instead of %3").arg(question, got, expected));
    }
}

QString Mistakes::text() const
{
    const QStringList first = m_wrong.mid(0, namedMistakes);
    return QStringLiteral("%1 of %2 wrong: %3%4")
        .arg(m_wrong.size())
        .arg(m_compared)
        .arg(first.join(QStringLiteral("; ")),
             m_wrong.size() > namedMistakes ? QStringLiteral("; …") : QString());
}

} // namespace testsupport
