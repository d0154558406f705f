#pragma once

#include "tests/support/Samples.h"

#include <QStringList>

/// Which frames to ask for, and which ones must come.
namespace testsupport {

/// The first shown frame at or after a position in milliseconds, counted from 0; the last one for
/// positions behind it.
[[nodiscard]] int frameFrom(const Sample& sample, qint64 ms);

/// Shown frames in random order, the same on every run: all of them, or, where reaching each from
/// its key frame would take longer than decoding so many frames of 320x240, every n-th. The first,
/// the last, key frames and those before them are always there.
[[nodiscard]] QList<int> framesToAskFor(const Sample& sample, int mostDecoded);

/// Collects what came out wrong, so that a row that fails names all of it.
class Mistakes
{
public:
    /// Notes a mistake unless both are the same.
    void compare(const QString& question, const QString& got, const QString& expected);

    [[nodiscard]] bool isEmpty() const { return m_wrong.isEmpty(); }
    /// How many there are, and the first few of them.
    [[nodiscard]] QString text() const;

private:
    QStringList m_wrong;
    int m_compared = 0;
};

} // namespace testsupport
