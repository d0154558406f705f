#include "video/FrameGrabber.h"

#include "tests/qtav/Cores.h"
#include "tests/support/FramePositions.h"
#include "tests/support/Samples.h"
#include "tests/video/Extraction.h"

#include <QTest>

#include <cstdlib>
#include <limits>

using decoding::expected;
using decoding::PretendedCores;
using decoding::text;
using extraction::Extractor;
using testsupport::frameFrom;
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
    Grabbing(const Sample& asked, int precision)
        : sample(asked)
    {
        grabber.setPrecision(precision);
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

/// Checks that every frame of every sample can be extracted, and that no other frame comes instead,
/// with any number of decoding threads. FrameGrabberSamplesTest covers the frames near key frames
/// in more ways.
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
    void extract_staysWithinThePrecision_whenItIsAutomatic_data() { addSamples({1}); }
    void extract_staysWithinThePrecision_whenItIsAutomatic();

private:
    static void addSamples(const QList<int>& ofCores = {1, manyCores});
    static QList<int> framesOfRow(const Sample& sample, int share = 1);
    static bool isAllowed(const Grabbing& grabbing, qint64 ms);
};

void EveryFrameTest::addSamples(const QList<int>& ofCores)
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("cores");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        for (const int cores : ofCores) {
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
    Grabbing grabbing(testsupport::sampleNamed(file), 0);
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
    Grabbing grabbing(testsupport::sampleNamed(file), 0);
    const Sample& sample = grabbing.sample;
    for (const int n : framesOfRow(sample, restShare)) {
        const qint64 earliest = n > 0 ? frameTimeMs(sample, n - 1) + 1 : 0;
        const qint64 latest = std::max(earliest, frameTimeMs(sample, n) - 1);
        grabbing.expectFrame(n % 2 == 0 ? earliest : latest, n);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

void EveryFrameTest::extract_givesTheLastFrame_behindIt()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    const PretendedCores pretended(cores);
    Grabbing grabbing(testsupport::sampleNamed(file), 0);
    const int last = grabbing.sample.frames - 1;
    const qint64 lastMs = frameTimeMs(grabbing.sample, last);
    constexpr qint64 farBehind = std::numeric_limits<qint32>::max();
    for (const qint64 ms : {lastMs + 1, lastMs + 5000, farBehind, lastMs + 1}) {
        grabbing.expectFrame(ms, last);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

/// A key frame is accepted on either side; any other frame must be the first one from there on.
bool EveryFrameTest::isAllowed(const Grabbing& grabbing, qint64 ms)
{
    const auto got = grabbing.extractor.frame();
    if (!got) {
        return false;
    }
    const Sample& sample = grabbing.sample;
    const int n = got->number - sample.firstNumber;
    if (n < 0 || n >= sample.frames || got->ms != frameTimeMs(sample, n)) {
        return false;
    }
    const bool isNear = std::abs(got->ms - ms) <= grabbing.grabber.getPrecision();
    return n == frameFrom(sample, ms) || (isNear && testsupport::keyFrames(sample).contains(n));
}

void EveryFrameTest::extract_staysWithinThePrecision_whenItIsAutomatic()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    const PretendedCores pretended(cores);
    Grabbing grabbing(testsupport::sampleNamed(file), -1);
    const Sample& sample = grabbing.sample;
    for (const int n : framesOfRow(sample, restShare)) {
        const qint64 next = frameTimeMs(sample, std::min(n + 1, sample.frames - 1));
        const qint64 ms = (frameTimeMs(sample, n) + next) / 2;
        grabbing.extractor.extract(ms);
        const QString right = text(expected(sample, frameFrom(sample, ms)));
        const bool allowed = isAllowed(grabbing, ms);
        grabbing.mistakes.compare(QStringLiteral("%1 ms").arg(ms),
                                  allowed ? right : grabbing.extractor.answer(), right);
    }
    QVERIFY2(grabbing.mistakes.isEmpty(), qPrintable(grabbing.mistakes.text()));
}

QTEST_GUILESS_MAIN(EveryFrameTest)
#include "EveryFrameTest.moc"
