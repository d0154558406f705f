#include "video/FrameGrabber.h"

#include "tests/support/FramePositions.h"
#include "tests/support/Samples.h"
#include "tests/video/Extraction.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using extraction::Extractor;
using testsupport::frameFrom;
using testsupport::frameTimeMs;
using testsupport::Mistakes;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::Trait;

namespace {

/// The key frame that a seek finds, as an index of shown frames; -1 for one that is never shown.
int keyFrameFor(const Sample& sample, qint64 target)
{
    const QList<int> keys = testsupport::keyFrames(sample);
    int found = -1;
    for (const int key : keys) {
        if (frameTimeMs(sample, key) <= target) {
            found = key;
        }
    }
    const bool hiddenKey = sample.has(Trait::StartsInsideGop);
    return found < 0 && !hiddenKey && !keys.isEmpty() ? keys.first() : found;
}

/// The expected frame, as an index of shown frames.
int expectedFrame(const Sample& sample, qint64 target, int precision)
{
    const int key = keyFrameFor(sample, target);
    const bool isWhole = !sample.has(Trait::IntraRefresh) || key == 0;
    if (key >= 0 && isWhole && std::abs(frameTimeMs(sample, key) - target) <= precision) {
        return key;
    }
    return frameFrom(sample, target);
}

QString expectedAnswer(const Sample& sample, qint64 target, int precision)
{
    return text(decoding::expected(sample, expectedFrame(sample, target, precision)));
}

/// An intra-refresh stream has no complete picture near most of its key packets: the first one may
/// come later, within tolerance or not, but never before the target.
bool isAnswer(const Sample& sample, const Extractor& extractor, qint64 target, int precision)
{
    if (extractor.answer() == expectedAnswer(sample, target, precision)) {
        return true;
    }
    if (!sample.has(Trait::IntraRefresh)) {
        return false;
    }
    if (!extractor.frame()) {
        return extractor.answer().contains(QLatin1String("out pts out of range"));
    }
    const qint64 late = extractor.frame()->ms - target;
    return late >= 0 && late <= precision;
}

/// The most relevant frames: the first and last ones, and those around the key frames.
QList<int> interestingFrames(const Sample& sample)
{
    QSet<int> frames{0, 1, sample.frames / 2, sample.frames - 2, sample.frames - 1};
    const QList<int> keys = testsupport::keyFrames(sample);
    const bool isSlow = sample.has(Trait::Large);
    const int stride = std::max(1, int(keys.size()) / (isSlow ? 1 : 3));
    const QList<int> offsets = isSlow ? QList<int>{1} : QList<int>{-1, 0, 1, 7, 13};
    for (int i = 0; i < keys.size(); i += stride) {
        for (const int offset : offsets) {
            frames.insert(keys.at(i) + offset);
        }
    }
    QList<int> list;
    for (const int frame : qAsConst(frames)) {
        if (frame >= 0 && frame < sample.frames) {
            list.append(frame);
        }
    }
    std::sort(list.begin(), list.end());
    return list;
}

/// Positions at and just before these frames; each has a frame within reach.
QList<qint64> interestingTargets(const Sample& sample, int precision)
{
    QList<qint64> targets;
    for (const int frame : interestingFrames(sample)) {
        const qint64 time = frameTimeMs(sample, frame);
        targets.append(time);
        targets.append(std::max<qint64>(0, time - 1));
        targets.append(std::max<qint64>(0, time - precision / 2));
    }
    return targets;
}

/// Every fourth of the positions, alternating between both ends.
QList<qint64> shuffled(const QList<qint64>& targets)
{
    QList<qint64> result;
    const int half = targets.size() / 2;
    for (int i = 0; i < half; i += 4) {
        result.append(targets.at(i + half));
        result.append(targets.at(half - 1 - i));
    }
    return result;
}

} // namespace

class FrameGrabberSamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void extract_givesTheRightFrame_atRisingPositions_data() { addSamples(); }
    void extract_givesTheRightFrame_atRisingPositions();
    void extract_givesTheRightFrame_jumpingToAndFro_data() { addSamples(); }
    void extract_givesTheRightFrame_jumpingToAndFro();
    void extract_givesTheRightFrame_withSmallPrecision_data() { addSamples(); }
    void extract_givesTheRightFrame_withSmallPrecision();

private:
    static void addSamples();
    static void checkTargets(const Sample& sample, FrameGrabber& grabber,
                             const QList<qint64>& targets);
};

void FrameGrabberSamplesTest::addSamples()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::allVideoSamples()) {
        QTest::newRow(qUtf8Printable(sample.file)) << sample.file;
    }
}

void FrameGrabberSamplesTest::checkTargets(const Sample& sample, FrameGrabber& grabber,
                                           const QList<qint64>& targets)
{
    Extractor extractor(grabber);
    Mistakes mistakes;
    for (const qint64 target : targets) {
        extractor.extract(target);
        const int precision = grabber.getPrecision();
        const QString right = expectedAnswer(sample, target, precision);
        const bool isRight = isAnswer(sample, extractor, target, precision);
        mistakes.compare(QStringLiteral("%1 ms").arg(target), isRight ? right : extractor.answer(),
                         right);
    }
    QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.text()));
}

void FrameGrabberSamplesTest::extract_givesTheRightFrame_atRisingPositions()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameGrabber grabber;
    grabber.setSource(samplePath(file));
    QVERIFY(grabber.checkAndOpen());
    checkTargets(sample, grabber, interestingTargets(sample, grabber.getPrecision()));
}

void FrameGrabberSamplesTest::extract_givesTheRightFrame_jumpingToAndFro()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameGrabber grabber;
    grabber.setSource(samplePath(file));
    QVERIFY(grabber.checkAndOpen());
    checkTargets(sample, grabber, shuffled(interestingTargets(sample, grabber.getPrecision())));
}

void FrameGrabberSamplesTest::extract_givesTheRightFrame_withSmallPrecision()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameGrabber grabber;
    grabber.setPrecision(8);
    grabber.setSource(samplePath(file));
    checkTargets(sample, grabber, shuffled(interestingTargets(sample, 8)));
}

QTEST_GUILESS_MAIN(FrameGrabberSamplesTest)
#include "FrameGrabberSamplesTest.moc"
