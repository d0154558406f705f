#include "video/FrameGrabber.h"

#include "tests/qtav/Cores.h"
#include "tests/support/FramePositions.h"
#include "tests/video/Extraction.h"

#include <QTest>

#include <algorithm>
#include <iterator>
#include <limits>

using decoding::expected;
using decoding::PretendedCores;
using extraction::Extractor;
using testsupport::frameTimeMs;
using testsupport::Mistakes;
using testsupport::Sample;

namespace {

/// A second between two frames is a gap, as in the slowest videos with a constant rate.
constexpr qint64 longGapMs = 900;
/// Typical settings, from exact to nearly arbitrary, and automatic.
constexpr int precisions[] = {0, 8, -1};

/// At this distance from a key frame it is not the answer, in milliseconds.
constexpr qint64 beyond(int precision)
{
    constexpr int widestAutomatic = 500;
    return (precision < 0 ? widestAutomatic : precision) + 1;
}

/// The longest time without a frame in a sample, in milliseconds, including before its first one.
qint64 longestGap(const Sample& sample)
{
    qint64 longest = frameTimeMs(sample, 0);
    for (int n = 1; n < sample.frames; ++n) {
        longest = std::max(longest, frameTimeMs(sample, n) - frameTimeMs(sample, n - 1));
    }
    return longest;
}

} // namespace

/// Results at positions far away from any frame: a still of what follows is better than none,
/// however far away that is.
class FrameGrabberGapsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extract_givesTheFirstFrameBehind_insideAGap_data();
    void extract_givesTheFirstFrameBehind_insideAGap();
    void extract_givesTheLastFrame_whileSoundGoesOn_data();
    void extract_givesTheLastFrame_whileSoundGoesOn();

private:
    static void addSamples(bool (*isMeant)(const Sample&, int precision));
};

/// Rows for 1 to 16 threads, which hold back 0 to 15 frames each.
void FrameGrabberGapsTest::addSamples(bool (*isMeant)(const Sample&, int precision))
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("cores");
    QTest::addColumn<int>("precision");
    for (const int precision : precisions) {
        QList<Sample> meant;
        std::copy_if(testsupport::allVideoSamples().cbegin(), testsupport::allVideoSamples().cend(),
                     std::back_inserter(meant),
                     [&](const Sample& sample) { return isMeant(sample, precision); });
        for (const Sample& sample : testsupport::samplesToRepeat(meant)) {
            for (const int cores : {1, 2, 4, 15}) {
                QTest::addRow("%s, %d cores, precision %d", qPrintable(sample.file), cores,
                              precision)
                    << sample.file << cores << precision;
            }
        }
    }
}

void FrameGrabberGapsTest::extract_givesTheFirstFrameBehind_insideAGap_data()
{
    addSamples([](const Sample& sample, int precision) {
        return longestGap(sample) >= std::max(longGapMs, 2 * beyond(precision));
    });
}

void FrameGrabberGapsTest::extract_givesTheFirstFrameBehind_insideAGap()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    QFETCH(const int, precision);
    const PretendedCores pretended(cores);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameGrabber grabber;
    grabber.setPrecision(precision);
    grabber.setSource(testsupport::samplePath(file));
    Extractor extractor(grabber);
    Mistakes mistakes;
    const qint64 clear = beyond(precision);
    for (int n = 0; n < sample.frames; ++n) {
        const qint64 start = n > 0 ? frameTimeMs(sample, n - 1) : 0;
        const qint64 end = frameTimeMs(sample, n);
        if (end - start < std::max(longGapMs, 2 * clear)) {
            continue;
        }
        for (const qint64 ms : {start + clear, (start + end) / 2, end - clear}) {
            extractor.extract(ms);
            mistakes.compare(QStringLiteral("%1 ms").arg(ms), extractor.answer(),
                             text(expected(sample, n)));
        }
    }
    QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.text()));
}

void FrameGrabberGapsTest::extract_givesTheLastFrame_whileSoundGoesOn_data()
{
    addSamples([](const Sample& sample, int) { return sample.soundEndMs > 0; });
}

void FrameGrabberGapsTest::extract_givesTheLastFrame_whileSoundGoesOn()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    QFETCH(const int, precision);
    const PretendedCores pretended(cores);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameGrabber grabber;
    grabber.setPrecision(precision);
    grabber.setSource(testsupport::samplePath(file));
    Extractor extractor(grabber);
    Mistakes mistakes;
    const int last = sample.frames - 1;
    const qint64 lastMs = frameTimeMs(sample, last);
    constexpr qint64 farBehind = std::numeric_limits<qint32>::max();
    for (const qint64 ms : {lastMs + 1000, (lastMs + sample.soundEndMs) / 2, sample.soundEndMs,
                            sample.soundEndMs + 1000, farBehind}) {
        extractor.extract(ms);
        mistakes.compare(QStringLiteral("%1 ms").arg(ms), extractor.answer(),
                         text(expected(sample, last)));
    }
    QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.text()));
}

QTEST_GUILESS_MAIN(FrameGrabberGapsTest)
#include "FrameGrabberGapsTest.moc"
