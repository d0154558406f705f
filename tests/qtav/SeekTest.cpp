#include "tests/qtav/Decoding.h"

#include <QTest>

#include <algorithm>
#include <random>

using namespace decoding;
using testsupport::Sample;
using testsupport::Trait;

/// Seeking, for every format: which key frame the demuxer lands on, and what follows from there.
class SeekTest : public QObject
{
    Q_OBJECT

private slots:
    void wholeFile_comesOutFrameByFrame_whenNobodySeeks_data() { addSamples(); }
    void wholeFile_comesOutFrameByFrame_whenNobodySeeks();
    void seek_landsOnTheKeyFrameAtOrBefore_fromAnywhere_data() { addSamples(); }
    void seek_landsOnTheKeyFrameAtOrBefore_fromAnywhere();
    void decodingOn_meetsEveryFrameOnce_afterSeeksInRandomOrder_data() { addSamples(); }
    void decodingOn_meetsEveryFrameOnce_afterSeeksInRandomOrder();

private:
    static void addSamples();
};

void SeekTest::addSamples()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::allVideoSamples())
        QTest::newRow(qPrintable(sample.file)) << sample.file;
}

namespace {

/// The frames at which a decoder can start: key frames, or what the container shows before them.
int expectedKeyFrame(const Sample& sample, const QList<int>& keyFrames, qint64 ms)
{
    int found = keyFrames.constFirst();
    for (const int key : keyFrames) {
        if (testsupport::frameTimeMs(sample, key) <= ms)
            found = key;
    }
    return found;
}

/// 0, each key frame and a millisecond to either side, between them, the last frame, past the end.
QList<qint64> positions(const Sample& sample, const QList<int>& keyFrames)
{
    constexpr int MostKeyFrames = 8;
    const qint64 last = testsupport::frameTimeMs(sample, sample.frames - 1);
    QList<qint64> all{0, last - 1, last, last + 1, last + 60000};
    const int stride = std::max(1, int(keyFrames.size()) / MostKeyFrames);
    for (int i = 0; i < keyFrames.size(); i += stride) {
        const qint64 key = testsupport::frameTimeMs(sample, keyFrames.at(i));
        const qint64 next =
            i + 1 < keyFrames.size() ? testsupport::frameTimeMs(sample, keyFrames.at(i + 1)) : last;
        all << key - 1 << key << key + 1 << (key + next) / 2;
    }
    std::sort(all.begin(), all.end());
    return all;
}

/// Forwards, backwards, and at random with a fixed seed.
QList<qint64> inEveryOrder(const QList<qint64>& forwards)
{
    QList<qint64> backwards = forwards;
    std::reverse(backwards.begin(), backwards.end());
    QList<qint64> random = forwards;
    std::shuffle(random.begin(), random.end(), std::mt19937(20));
    return forwards + backwards + random;
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

void SeekTest::seek_landsOnTheKeyFrameAtOrBefore_fromAnywhere()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    QVERIFY(!keyFrames.isEmpty());
    Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    for (const qint64 ms : inEveryOrder(positions(sample, keyFrames))) {
        QVERIFY(player.demuxer.seek(ms));
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet.has_value());
        QVERIFY(packet->hasKeyFrame);
        const int key = sample.has(Trait::StartsInsideGop) &&
                                ms < testsupport::frameTimeMs(sample, keyFrames.constFirst())
                            ? 0
                            : expectedKeyFrame(sample, keyFrames, ms);
        const QByteArray context = "seek to " + QByteArray::number(ms);
        QVERIFY2(static_cast<qint64>(packet->pts * 1000.0) == testsupport::frameTimeMs(sample, key),
                 (context + " landed on " + QByteArray::number(packet->pts) + " s").constData());
    }
}

void SeekTest::decodingOn_meetsEveryFrameOnce_afterSeeksInRandomOrder()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const QList<int> keyFrames = testsupport::keyFrames(sample);
    Player player(testsupport::samplePath(file));
    QVERIFY(player.isReady());
    // On which key frame each position lands is tested above: this needs no more than a few of
    // them.
    const int most = sample.has(Trait::Large) ? 2 : 8;
    QList<qint64> all = positions(sample, keyFrames);
    std::shuffle(all.begin(), all.end(), std::mt19937(20));
    all = all.mid(0, most);
    for (const qint64 ms : all) {
        QVERIFY(player.demuxer.seek(ms));
        player.decoder->flush();
        const QList<Shown> got = player.showRest();
        const int key = expectedKeyFrame(sample, keyFrames, ms);
        const bool startsBefore = sample.has(Trait::StartsInsideGop) &&
                                  ms < testsupport::frameTimeMs(sample, keyFrames.constFirst());
        const QList<Shown> expected = expectedFrom(sample, startsBefore ? 0 : key);
        // A stream that refreshes bit by bit has whole pictures only some time after its key
        // packets.
        if (sample.has(Trait::IntraRefresh) && !got.isEmpty())
            QCOMPARE(got, expected.mid(expected.size() - got.size()));
        else
            QCOMPARE(got, expected);
    }
}

QTEST_GUILESS_MAIN(SeekTest)
#include "SeekTest.moc"
