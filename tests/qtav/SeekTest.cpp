#include "tests/qtav/Decoding.h"
#include "tests/support/Sanitizers.h"

#include <QSet>
#include <QTest>

#include <algorithm>
#include <random>

using namespace decoding;
using testsupport::Sample;
using testsupport::Trait;

/// Seeking, for every format: the key frame on which the demuxer lands, and what follows.
class SeekTest : public QObject
{
    Q_OBJECT

private slots:
    void wholeFile_comesOutFrameByFrame_whenNobodySeeks_data()
    {
        addSamples(testsupport::videoSamplesToRepeat());
    }
    void wholeFile_comesOutFrameByFrame_whenNobodySeeks();
    void seek_landsOnTheKeyFrameAtOrBefore_andAllFramesFollow_data()
    {
        addSamples(testsupport::videoSamplesToRepeat());
    }
    void seek_landsOnTheKeyFrameAtOrBefore_andAllFramesFollow();

private:
    static void addSamples(const QList<Sample>& samples);
};

void SeekTest::addSamples(const QList<Sample>& samples)
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : samples) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

namespace {

/// The frame, counted from 0, with which decoding from a position begins.
int firstFrameFor(const Sample& sample, const QList<int>& keyFrames, qint64 ms)
{
    // Before its first key frame such a sample shows the rest of a group with a hidden key frame.
    const bool isInCutGroup = sample.has(Trait::StartsInsideGop) &&
                              ms < testsupport::frameTimeMs(sample, keyFrames.constFirst());
    int found = isInCutGroup ? 0 : keyFrames.constFirst();
    for (const int key : keyFrames) {
        if (testsupport::frameTimeMs(sample, key) <= ms) {
            found = key;
        }
    }
    return found;
}

/// 0, each key frame and a millisecond to either side, between them, the last frame, past the end.
QList<qint64> positions(const Sample& sample, const QList<int>& keyFrames)
{
    constexpr int mostKeyFrames = 8;
    const qint64 last = testsupport::frameTimeMs(sample, sample.frames - 1);
    QList<qint64> all{0, last - 1, last, last + 1, last + 60000};
    const int stride = std::max(1, int(keyFrames.size()) / mostKeyFrames);
    for (int i = 0; i < keyFrames.size(); i += stride) {
        const qint64 key = testsupport::frameTimeMs(sample, keyFrames.at(i));
        const qint64 next =
            i + 1 < keyFrames.size() ? testsupport::frameTimeMs(sample, keyFrames.at(i + 1)) : last;
        all << key - 1 << key << key + 1 << (key + next) / 2;
    }
    std::sort(all.begin(), all.end());
    return all;
}

/// Forwards, backwards, and at random with a fixed seed; with sanitizers only at random.
QList<QList<qint64>> inEveryOrder(const QList<qint64>& forwards)
{
    QList<qint64> backwards = forwards;
    std::reverse(backwards.begin(), backwards.end());
    QList<qint64> random = forwards;
    std::shuffle(random.begin(), random.end(), std::mt19937(20));
    if (testsupport::isSanitized) {
        return {random};
    }
    return {forwards, backwards, random};
}

/// Compares what was shown from the n-th frame on with what was expected.
bool areAllFramesFrom(const Sample& sample, int n, const QList<Shown>& got)
{
    QList<Shown> expected = expectedFrom(sample, n);
    // A stream with gradual refresh has complete pictures only some time after its key packets.
    if (sample.has(Trait::IntraRefresh) && !got.isEmpty()) {
        expected = expected.mid(expected.size() - got.size());
    }
    return got == expected;
}

} // namespace

void SeekTest::wholeFile_comesOutFrameByFrame_whenNobodySeeks()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    QCOMPARE(player.showRest(), expectedFrom(sample, 0));
    QVERIFY(player.demuxer.atEnd());
}

void SeekTest::seek_landsOnTheKeyFrameAtOrBefore_andAllFramesFollow()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    QVERIFY(!keyFrames.isEmpty());
    Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    QSet<int> decodedFrom;
    for (const QList<qint64>& order : inEveryOrder(positions(sample, keyFrames))) {
        // Large pictures take long to decode: once from each key frame is enough.
        if (!sample.has(Trait::Large)) {
            decodedFrom.clear();
        }
        for (const qint64 ms : order) {
            const QByteArray context = "seek to " + QByteArray::number(ms);
            QVERIFY(player.demuxer.seek(ms));
            const auto packet = player.nextVideoPacket();
            QVERIFY(packet.has_value());
            QVERIFY(packet->hasKeyFrame);
            const int first = firstFrameFor(sample, keyFrames, ms);
            QVERIFY2(static_cast<qint64>(packet->pts * 1000.0) ==
                         testsupport::frameTimeMs(sample, first),
                     (context + " landed on " + QByteArray::number(packet->pts)).constData());
            if (decodedFrom.contains(first)) {
                continue;
            }
            decodedFrom.insert(first);
            player.decoder->flush();
            const QtAV::VideoFrame frame = player.decodeKeyFrame(*packet);
            QList<Shown> got = frame.isValid() ? QList<Shown>{shown(frame)} : QList<Shown>{};
            got += player.showRest();
            QVERIFY2(areAllFramesFrom(sample, first, got), context.constData());
        }
    }
}

QTEST_GUILESS_MAIN(SeekTest)
#include "SeekTest.moc"
