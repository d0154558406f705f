#pragma once

#include "tests/support/Samples.h"

#include <QStringList>

/// Positions to request, and the frames to expect.
namespace testsupport {

/// The first shown frame at or after a position in milliseconds, counted from 0; the last one for
/// positions behind it.
[[nodiscard]] int frameFrom(const Sample& sample, qint64 ms);

/// Shown frames in random order, the same in every run. All frames or, if reaching each from its
/// key frame would take longer than decoding this many frames of 320x240, every n-th. The first,
/// the last, key frames and their predecessors are always included.
[[nodiscard]] QList<int> framesToAskFor(const Sample& sample, int mostDecoded);

/// Collects mistakes, so that a failing row reports all of them.
class Mistakes
{
public:
    /// Records a mistake unless both are equal.
    void compare(const QString& question, const QString& got, const QString& expected);

    [[nodiscard]] bool isEmpty() const { return m_wrong.isEmpty(); }
    /// The number of mistakes, and the first few of them.
    [[nodiscard]] QString text() const;

private:
    QStringList m_wrong;
    int m_compared = 0;
};

} // namespace testsupport
