#include "qtav/player/FrameSource.h"

#include "tests/qtav/Cores.h"
#include "tests/qtav/Decoding.h"
#include "tests/support/FramePositions.h"

#include <QTest>

#include <algorithm>
#include <limits>

using namespace decoding;
using QtAV::FrameAnswer;
using QtAV::FrameResult;
using QtAV::FrameSource;
using testsupport::frameTimeMs;
using testsupport::Mistakes;
using testsupport::Sample;

namespace {

/// Limit on decoding for one row of seeks, in frames of 320x240.
constexpr int mostDecoded = 500;
constexpr int mostDecodedOnManyCores = 150;

constexpr int manyCores = 8;

/// Number of frames decoded ahead between two steps, as while the player is idle.
constexpr int fillsBetweenSteps = 3;

const QString theEnd = QStringLiteral("the end");

enum class StepDirection { Forwards, Backwards };

/// For messages and comparisons.
QString text(const FrameResult& result)
{
    switch (result.answer) {
    case FrameAnswer::Frame:
        return decoding::text(shown(result.frame));
    case FrameAnswer::End:
        return theEnd;
    case FrameAnswer::Failed:
        return QStringLiteral("failure: ") + result.error;
    case FrameAnswer::Cancelled:
        return QStringLiteral("cancelled");
    }
    return {};
}

/// With one core, few frames are cached, so that most of them are decoded again.
qint64 cacheBytes(const Sample& sample, int cores)
{
    constexpr int fewFrames = 12;
    const QSize size = sample.codedSize;
    const qint64 few = qint64(size.width()) * size.height() * 3 / 2 * fewFrames;
    return cores == 1 ? few : QtAV::FrameCache::defaultBytes;
}

/// A source in a sample, and its wrong answers.
class Asking
{
public:
    Asking(const Sample& asked, int cores)
        : sample(asked)
        , pretended(cores)
    {
        const QString path = testsupport::samplePath(sample.file);
        isOpen = source.open(path, cacheBytes(sample, cores), never, error);
    }

    /// Requests a position at which only the n-th frame is right.
    void expectFrameAt(qint64 ms, int n)
    {
        const FrameResult result = source.frameAt(ms, never);
        mistakes.compare(QStringLiteral("%1 ms").arg(ms), text(result),
                         decoding::text(expected(sample, n)));
        show(result);
    }

    /// Steps through the video from one of its ends, and beyond the other one.
    void expectAllFrames(StepDirection direction)
    {
        const bool forwards = direction == StepDirection::Forwards;
        const int last = sample.frames - 1;
        FrameResult result = source.frameAt(forwards ? 0 : frameTimeMs(sample, last), never);
        for (int i = 0; i < sample.frames; ++i) {
            const int n = forwards ? i : last - i;
            mistakes.compare(QStringLiteral("step %1").arg(i), text(result),
                             decoding::text(expected(sample, n)));
            if (result.answer != FrameAnswer::Frame) {
                return;
            }
            show(result);
            const double seconds = result.frame.timestamp();
            result = forwards ? source.after(seconds, never) : source.before(seconds, never);
        }
        mistakes.compare(QStringLiteral("step %1").arg(sample.frames), text(result), theEnd);
    }

    Sample sample;
    PretendedCores pretended;
    FrameSource source;
    QString error;
    bool isOpen = false;
    Mistakes mistakes;

private:
    void show(const FrameResult& result)
    {
        if (result.answer != FrameAnswer::Frame) {
            return;
        }
        source.setFocus(result.frame.timestamp());
        for (int i = 0; i < fillsBetweenSteps && source.fillBehind(never); ++i) {
        }
    }
};

} // namespace

/// Checks that the player cannot miss any frame of any sample, with any number of decoding threads.
class FrameSourceEveryFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void steps_meetEveryFrame_forwards_data() { addSamples(); }
    void steps_meetEveryFrame_forwards();
    void steps_meetEveryFrame_backwards_data() { addSamples(); }
    void steps_meetEveryFrame_backwards();
    void frameAt_givesEachFrame_atItsTimeAndBefore_data() { addSamples(); }
    void frameAt_givesEachFrame_atItsTimeAndBefore();
    void frameAt_givesTheLastFrame_behindIt_data() { addSamples(); }
    void frameAt_givesTheLastFrame_behindIt();

private:
    static void addSamples();
};

void FrameSourceEveryFrameTest::addSamples()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("cores");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        for (const int cores : {1, manyCores}) {
            QTest::addRow("%s, %d cores", qPrintable(sample.file), cores) << sample.file << cores;
        }
    }
}

void FrameSourceEveryFrameTest::steps_meetEveryFrame_forwards()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    Asking asking(testsupport::sampleNamed(file), cores);
    QVERIFY2(asking.isOpen, qPrintable(asking.error));
    asking.expectAllFrames(StepDirection::Forwards);
    QVERIFY2(asking.mistakes.isEmpty(), qPrintable(asking.mistakes.text()));
}

void FrameSourceEveryFrameTest::steps_meetEveryFrame_backwards()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    Asking asking(testsupport::sampleNamed(file), cores);
    QVERIFY2(asking.isOpen, qPrintable(asking.error));
    asking.expectAllFrames(StepDirection::Backwards);
    QVERIFY2(asking.mistakes.isEmpty(), qPrintable(asking.mistakes.text()));
}

/// At its time, and alternately at the first millisecond behind its predecessor and at the last one
/// before it.
void FrameSourceEveryFrameTest::frameAt_givesEachFrame_atItsTimeAndBefore()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    Asking asking(testsupport::sampleNamed(file), cores);
    QVERIFY2(asking.isOpen, qPrintable(asking.error));
    const Sample& sample = asking.sample;
    const int most = cores == 1 ? mostDecoded : mostDecodedOnManyCores;
    for (const int n : testsupport::framesToAskFor(sample, most)) {
        const qint64 time = frameTimeMs(sample, n);
        const qint64 earliest = n > 0 ? frameTimeMs(sample, n - 1) + 1 : 0;
        asking.expectFrameAt(n % 2 == 0 ? earliest : std::max(earliest, time - 1), n);
        asking.expectFrameAt(time, n);
    }
    QVERIFY2(asking.mistakes.isEmpty(), qPrintable(asking.mistakes.text()));
}

void FrameSourceEveryFrameTest::frameAt_givesTheLastFrame_behindIt()
{
    QFETCH(const QString, file);
    QFETCH(const int, cores);
    Asking asking(testsupport::sampleNamed(file), cores);
    QVERIFY2(asking.isOpen, qPrintable(asking.error));
    const int last = asking.sample.frames - 1;
    const qint64 lastMs = frameTimeMs(asking.sample, last);
    constexpr qint64 farBehind = std::numeric_limits<qint32>::max();
    for (const qint64 ms : {lastMs + 1, qint64(0), farBehind, qint64(0), lastMs + 5000}) {
        asking.expectFrameAt(ms, ms == 0 ? 0 : last);
    }
    QVERIFY2(asking.mistakes.isEmpty(), qPrintable(asking.mistakes.text()));
}

QTEST_GUILESS_MAIN(FrameSourceEveryFrameTest)
#include "FrameSourceEveryFrameTest.moc"
