#include "qtav/player/FrameCache.h"

#include "tests/qtav/Decoding.h"

#include <QTest>

using namespace QtAV;

/// The cache of decoded frames, with the frames of a sample at 25 a second.
class FrameCacheTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void insertedFrame_isFound_byItsTime();
    void neighbour_isGiven_whenKnownAndCached();
    void neighbour_isNotGiven_whenAFrameBetweenIsNotCached();
    void neighbour_isGiven_whenItBecomesKnownLater();
    void atOrAfter_givesTheFirstSuchFrame_onlyWhenCertain();
    void atOrAfter_givesTheFirstFrame_beforeIt();
    void fullCache_dropsTheFramesFurthestFromTheFocus();
    void fullCache_keepsOneFrame_largerThanItself();
    void smallerCache_letsGoOfTheFramesFurthestFromTheFocus();
    void frameInsertedTwice_isCountedOnce();
    void run_endsWhereANeighbourIsUnknown();
    void run_reachesTheStart_whenTheFirstFrameIsKnown();
    void clear_leavesNothing();
    void farFrames_areScaledDown_andTheNearestStay();
    void farFrames_areDropped_whenToldSo();
    void smallerFrames_leaveRoomForMore();
    void decodedFrame_replacesASmallOne_nearTheFocus_butNotFarFromIt();
    void decodedFrame_replacesASmallOne_ofAnotherSize();

private:
    double time(int n) const { return m_frames.at(n).timestamp(); }
    void insert(FrameCache& cache, int from, int to) const;

    QList<VideoFrame> m_frames;
};

void FrameCacheTest::initTestCase()
{
    decoding::Player player(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(player.isReady());
    while (m_frames.size() < 12) {
        const auto packet = player.nextVideoPacket();
        QVERIFY(packet && player.decoder->decode(*packet));
        const VideoFrame frame = player.decoder->frame();
        if (frame.isValid()) {
            m_frames.append(frame);
        }
    }
}

/// Frames that were decoded one after another.
void FrameCacheTest::insert(FrameCache& cache, int from, int to) const
{
    for (int n = from; n <= to; ++n) {
        cache.insert(m_frames.at(n), n > from ? std::optional(time(n - 1)) : std::nullopt);
    }
}

void FrameCacheTest::insertedFrame_isFound_byItsTime()
{
    FrameCache cache;
    insert(cache, 3, 3);
    QCOMPARE(cache.at(time(3)).timestamp(), time(3));
    QVERIFY(!cache.at(time(4)).isValid());
    QCOMPARE(cache.byteCount(), m_frames.at(3).byteCount());
    QVERIFY(cache.byteCount() >= 320 * 240 * 3 / 2);
}

void FrameCacheTest::neighbour_isGiven_whenKnownAndCached()
{
    FrameCache cache;
    insert(cache, 2, 4);
    QCOMPARE(cache.after(time(2)).timestamp(), time(3));
    QCOMPARE(cache.before(time(4)).timestamp(), time(3));
    QVERIFY(!cache.after(time(4)).isValid());
    QVERIFY(!cache.before(time(2)).isValid());
}

void FrameCacheTest::neighbour_isNotGiven_whenAFrameBetweenIsNotCached()
{
    FrameCache cache;
    insert(cache, 2, 3);
    insert(cache, 5, 6);
    QVERIFY(!cache.after(time(3)).isValid());
    QVERIFY(!cache.before(time(5)).isValid());
}

void FrameCacheTest::neighbour_isGiven_whenItBecomesKnownLater()
{
    FrameCache cache;
    insert(cache, 4, 5);
    insert(cache, 2, 4);
    QCOMPARE(cache.before(time(4)).timestamp(), time(3));
    QCOMPARE(cache.frameCount(), 4);
    // Known facts are kept when decoding starts at the frame again.
    insert(cache, 4, 4);
    QCOMPARE(cache.before(time(4)).timestamp(), time(3));
}

void FrameCacheTest::atOrAfter_givesTheFirstSuchFrame_onlyWhenCertain()
{
    FrameCache cache;
    insert(cache, 2, 4);
    QCOMPARE(cache.atOrAfter(120).timestamp(), time(3));
    QCOMPARE(cache.atOrAfter(81).timestamp(), time(3));
    QVERIFY(!cache.atOrAfter(80).isValid()); // what precedes frame 2 is unknown
    QVERIFY(!cache.atOrAfter(161).isValid());
}

void FrameCacheTest::atOrAfter_givesTheFirstFrame_beforeIt()
{
    FrameCache cache;
    insert(cache, 2, 3);
    cache.setFirst(time(2));
    QCOMPARE(cache.atOrAfter(0).timestamp(), time(2));
}

void FrameCacheTest::fullCache_dropsTheFramesFurthestFromTheFocus()
{
    FrameCache cache(5 * m_frames.at(0).byteCount());
    cache.setFocus(time(8));
    insert(cache, 0, 11);
    QVERIFY(cache.byteCount() <= cache.mostBytes());
    QVERIFY(cache.frameCount() >= 4);
    QVERIFY(cache.at(time(8)).isValid());
    QVERIFY(cache.at(time(7)).isValid());
    QVERIFY(cache.at(time(9)).isValid());
    QVERIFY(!cache.at(time(0)).isValid());
    QVERIFY(!cache.at(time(11)).isValid());
}

void FrameCacheTest::fullCache_keepsOneFrame_largerThanItself()
{
    FrameCache cache(1);
    cache.setFocus(time(5));
    insert(cache, 4, 5);
    QCOMPARE(cache.frameCount(), 1);
    QVERIFY(cache.at(time(5)).isValid());
}

void FrameCacheTest::smallerCache_letsGoOfTheFramesFurthestFromTheFocus()
{
    FrameCache cache;
    cache.setFocus(time(5));
    insert(cache, 0, 5);
    const qint64 bytes = 2 * m_frames.at(5).byteCount();
    cache.setMostBytes(bytes);
    QCOMPARE(cache.mostBytes(), bytes);
    QCOMPARE(cache.frameCount(), 2);
    QVERIFY(cache.at(time(5)).isValid());
    QVERIFY(cache.at(time(4)).isValid());
}

void FrameCacheTest::frameInsertedTwice_isCountedOnce()
{
    FrameCache cache;
    insert(cache, 0, 3);
    const qint64 bytes = cache.byteCount();
    insert(cache, 0, 3);
    QCOMPARE(cache.byteCount(), bytes);
    QCOMPARE(cache.frameCount(), 4);
}

void FrameCacheTest::run_endsWhereANeighbourIsUnknown()
{
    FrameCache cache;
    cache.setFirst(time(0));
    insert(cache, 0, 1);
    insert(cache, 3, 6);
    const auto run = cache.runAround(time(5));
    QVERIFY(run.has_value());
    QCOMPARE(run->start, time(3));
    QVERIFY(!run->isAtStart);
    QCOMPARE(run->end, time(6));
    QCOMPARE(run->framesBefore, 2);
    QVERIFY(!cache.runAround(time(2)).has_value());
}

void FrameCacheTest::run_reachesTheStart_whenTheFirstFrameIsKnown()
{
    FrameCache cache;
    cache.setFirst(time(0));
    insert(cache, 0, 4);
    const auto run = cache.runAround(time(4));
    QVERIFY(run.has_value());
    QVERIFY(run->isAtStart);
}

void FrameCacheTest::clear_leavesNothing()
{
    FrameCache cache;
    insert(cache, 0, 4);
    cache.setFirst(time(0));
    cache.clear();
    QCOMPARE(cache.frameCount(), 0);
    QCOMPARE(cache.byteCount(), qint64(0));
    QVERIFY(!cache.first().has_value());
    QVERIFY(!cache.at(time(2)).isValid());
}

/// Room for four decoded frames, half of which may stay unscaled.
void FrameCacheTest::farFrames_areScaledDown_andTheNearestStay()
{
    FrameCache cache(4 * m_frames.at(0).byteCount());
    cache.setScreen({80, 60});
    cache.setFocus(time(5));
    insert(cache, 0, 11);
    QCOMPARE(cache.frameCount(), 12);
    QVERIFY(cache.byteCount() <= cache.mostBytes());
    int whole = 0;
    for (int n = 0; n < 12; ++n) {
        const VideoFrame frame = cache.at(time(n));
        QVERIFY(frame.isValid());
        QCOMPARE(frame.displaySize(), QSize(320, 240));
        whole += frame.isScaledDown() ? 0 : 1;
        if (frame.isScaledDown()) {
            QCOMPARE(QSize(frame.width(), frame.height()), QSize(80, 60));
        }
    }
    QCOMPARE(whole, 2);
    QVERIFY(!cache.at(time(5)).isScaledDown());
    QCOMPARE(cache.runAround(time(5))->framesBefore, 5);
    QCOMPARE(cache.runAround(time(5))->framesAfter, 6);
}

void FrameCacheTest::farFrames_areDropped_whenToldSo()
{
    FrameCache cache(4 * m_frames.at(0).byteCount());
    cache.setScreen({80, 60});
    cache.setFarFrames(FrameCache::FarFrames::Drop);
    cache.setFocus(time(5));
    insert(cache, 0, 11);
    QCOMPARE(cache.frameCount(), 2);
    QVERIFY(!cache.at(time(5)).isScaledDown());
}

void FrameCacheTest::smallerFrames_leaveRoomForMore()
{
    FrameCache cache(8 * m_frames.at(0).byteCount());
    QCOMPARE(cache.roomBefore(), qint64(0));
    insert(cache, 0, 0);
    const qint64 whole = cache.roomBefore();
    QVERIFY(whole >= 4);
    FrameCache small(8 * m_frames.at(0).byteCount());
    small.setScreen({80, 60});
    insert(small, 0, 0);
    QVERIFY(small.roomBefore() > 4 * whole);
}

void FrameCacheTest::decodedFrame_replacesASmallOne_nearTheFocus_butNotFarFromIt()
{
    FrameCache cache(4 * m_frames.at(0).byteCount());
    cache.setScreen({80, 60});
    cache.setFocus(time(11));
    insert(cache, 0, 11);
    QVERIFY(cache.at(time(1)).isScaledDown());
    insert(cache, 1, 1);
    QVERIFY(cache.at(time(1)).isScaledDown());
    cache.setFocus(time(1));
    insert(cache, 1, 1);
    QVERIFY(!cache.at(time(1)).isScaledDown());
    QCOMPARE(cache.frameCount(), 12);
    QCOMPARE(cache.before(time(2)).timestamp(), time(1));
    QVERIFY(cache.byteCount() <= cache.mostBytes());
}

void FrameCacheTest::decodedFrame_replacesASmallOne_ofAnotherSize()
{
    FrameCache cache(4 * m_frames.at(0).byteCount());
    cache.setScreen({80, 60});
    cache.setFocus(time(11));
    insert(cache, 0, 11);
    cache.setScreen({120, 200});
    QCOMPARE(cache.at(time(1)).width(), 80); // usable still
    insert(cache, 1, 1);
    QCOMPARE(cache.at(time(1)).width(), 120);
    QCOMPARE(cache.at(time(1)).height(), 90);
}

QTEST_GUILESS_MAIN(FrameCacheTest)
#include "FrameCacheTest.moc"
