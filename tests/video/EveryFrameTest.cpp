#include "video/FrameGrabber.h"

#include "tests/qtav/Cores.h"
#include "tests/support/FramePositions.h"
#include "tests/support/Samples.h"
#include "tests/video/Extraction.h"

#include <QTest>

#include <algorithm>
#include <limits>

using decoding::expected;
using decoding::PretendedCores;
using decoding::text;
using extraction::Extractor;
using testsupport::framesToAskFor;
using testsupport::frameTimeMs;
using testsupport::Mistakes;
using testsupport::Sample;

namespace {

/// Limit on decoding for one row, in frames of 320x240, when each frame is requested at its time:
/// all frames of most samples, some of those with long groups of pictures.
constexpr int mostDecoded = 1700;
constexpr int mostDecodedOnManyCores = 150;
/// Divisor of that limit for the other requests.
constexpr int restShare = 5;

constexpr int manyCores = 8;

/// A grabber in a sample, and its wrong answers.
struct Grabbing
{
    explicit Grabbing(const Sample& asked)
        : sample(asked)
    {
        grabber.setPrecision(0);
        grabber.setSource(testsupport::samplePath(sample.file));
    }

    /// Requests a position at which only the n-th frame is right.
    void expectFrame(qint64 ms, int n)
    {
        extractor.extract(ms);
        mistakes.compare(QStringLiteral("%1 ms").arg(ms), extractor.answer(),
                         text(expected(sample, n)));
    }

    Sample sample;
    FrameGrabber grabber;
    Extractor extractor{grabber};
    Mistakes mistakes;
};

} // namespace

/// Whether any frame of any sample cannot be had, or another one comes out in its place, however
/// many threads decode. FrameGrabberSamplesTest has the tolerances.
class EveryFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extract_givesEachFrame_atItsTime_data() { addSamples(); }
    void extract_givesEachFrame_atItsTime();
    void extract_givesEachFrame_shortlyBeforeItsTime_data() { addSamples(); }
    void extract_givesEachFrame_shortlyBeforeItsTime();
    void extract_givesTheLastFrame_behindIt_data() { addSamples(); }
    void extract_givesTheLastFrame_behindIt();

private:
    static void addSamples();
    static QList<int> framesOfRow(const Sample& sample, int share = 1);
};

void EveryFrameTest::addSamples()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("cores");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        for (const int cores : {1, manyCores}) {
            QTest::addRow("%s, %d cores", qPrintable(sample.file), cores) << sample.file << cores;
        }
    }
}

QList<int> EveryFrameTest::framesOfRow(const Sample& sample, int share)
{
    QFETCH(const int, cores);
    return framesToAskFor(sample, (cores == 1 ? mostDecoded : mostDecodedOnManyCores) / share);
}

void EveryFrameTest::extract_givesEachFrame_atItsTime()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    const PretendedCores pretended(cores);
    Grabbing grabbing(testsupport::sampleNamed(file));
    for (const int n : framesOfRow(grabbing.sample)) {
        grabbing.expectFrame(frameTimeMs(grabbing.sample, n), n);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

/// Alternately the first millisecond behind its predecessor, and the last one before it.
void EveryFrameTest::extract_givesEachFrame_shortlyBeforeItsTime()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    const PretendedCores pretended(cores);
    Grabbing grabbing(testsupport::sampleNamed(file));
    const Sample& sample = grabbing.sample;
    for (const int n : framesOfRow(sample, restShare)) {
        const qint64 earliest = n > 0 ? frameTimeMs(sample, n - 1) + 1 : 0;
        const qint64 latest = std::max(earliest, frameTimeMs(sample, n) - 1);
        grabbing.expectFrame(n % 2 == 0 ? earliest : latest, n);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

/// Whatever was extracted before, since later extractions decode less before their target.
void EveryFrameTest::extract_givesTheLastFrame_behindIt()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    const PretendedCores pretended(cores);
    Grabbing grabbing(testsupport::sampleNamed(file));
    const int last = grabbing.sample.frames - 1;
    const qint64 lastMs = frameTimeMs(grabbing.sample, last);
    constexpr qint64 farBehind = std::numeric_limits<qint32>::max();
    for (const qint64 ms : {farBehind, qint64(0), lastMs + 1, lastMs + 5000}) {
        grabbing.expectFrame(ms, ms == 0 ? 0 : last);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

QTEST_GUILESS_MAIN(EveryFrameTest)
#include "EveryFrameTest.moc"
