#include "qtav/player/BackwardFill.h"

#include "tests/qtav/Decoding.h"

#include <QTest>

using namespace decoding;
using QtAV::BackwardFill;
using QtAV::FrameAnswer;
using QtAV::FrameCache;
using QtAV::FrameReader;
using QtAV::FrameResult;

namespace {

/// A reader with a fill, its frames, and a clock that advances by 10 ms per frame.
struct Filled
{
    explicit Filled(const char* file)
    {
        QString error;
        if (!reader.open(testsupport::samplePath(QString::fromLatin1(file)), never, error)) {
            qFatal("%s", qPrintable(error));
        }
    }

    FrameReader reader;
    QList<int> numbers;
    std::chrono::steady_clock::time_point now{};
    BackwardFill fill{reader,
                      [this] {
                          numbers.append(shown(reader.lastFrame()).number);
                          now += std::chrono::milliseconds(10);
                      },
                      [this] { return now; }};
};

/// The frames of a run that begins at a time, with this many before the focus.
FrameCache::Run runFrom(double start, qint64 framesBefore)
{
    return {start, start + double(framesBefore) * 0.04, framesBefore, 0, false};
}

} // namespace

/// The frames that passes back decode, at 25 frames per second.
class BackwardFillTest : public QObject
{
    Q_OBJECT

private slots:
    void pass_endsWithTheFrameBefore_data();
    void pass_endsWithTheFrameBefore();
    void pass_endsWithoutAFrame_atTheStart();
    void pass_leadsThroughTheGroupBefore_whenTheTargetIsAKeyFrame();
    void pass_skipsFrames_thatNeedNotBeComplete();
    void pass_isNotNeeded_whenHalfOfTheRoomIsFilled();
    void pass_isNotRepeated_toTheSameTarget();
    void pass_staysUnderWay_whenCancelled();
    void pass_isOnTheWay_toWhatFollowsItsTarget();
    void remainingTime_isThatOfTheFramesToCome();
    void remainingTime_isKnownFromDecodingBefore();
    void reset_forgetsAll();
};

void BackwardFillTest::pass_endsWithTheFrameBefore_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"h264_gop250.mp4", "h264_open_gop_bframes.mp4", "hevc_open_gop.mp4",
                             "mpeg2.ts", "h264_bframes.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void BackwardFillTest::pass_endsWithTheFrameBefore()
{
    QFETCH(QString, file);
    const testsupport::Sample& sample = testsupport::sampleNamed(file);
    Filled filled(qPrintable(file));
    for (int n = 1; n < sample.frames; n += 7) {
        const double target = double(testsupport::frameTimeMs(sample, n)) / 1000.0;
        filled.reader.seek(qint64(target * 1000.0));
        QtAV::VideoFrame frame;
        while (frame.timestamp() < target - 0.0005 || !frame.isValid()) {
            frame = filled.reader.next(never).frame;
        }
        filled.fill.start(frame.timestamp(), 0);
        QVERIFY(filled.fill.isUnderWay());
        const FrameResult result = filled.fill.finish(never);
        QCOMPARE(result.answer, FrameAnswer::Frame);
        QCOMPARE(shown(result.frame), expectedFrom(sample, n - 1).constFirst());
        QVERIFY(!filled.fill.isUnderWay());
    }
}

void BackwardFillTest::pass_endsWithoutAFrame_atTheStart()
{
    Filled filled("h264_gop250.mp4");
    filled.fill.start(0.0, 0);
    QCOMPARE(filled.fill.finish(never).answer, FrameAnswer::End);
}

void BackwardFillTest::pass_leadsThroughTheGroupBefore_whenTheTargetIsAKeyFrame()
{
    Filled filled("h264_gop250.mp4");
    filled.fill.start(10.0, 0);
    const FrameResult result = filled.fill.finish(never);
    QCOMPARE(shown(result.frame).number, 249);
    QCOMPARE(filled.numbers.constFirst(), 0);
    QCOMPARE(filled.numbers.constLast(), 250);
    QCOMPARE(filled.numbers.size(), 251);
}

void BackwardFillTest::pass_skipsFrames_thatNeedNotBeComplete()
{
    Filled filled("h264_gop250.mp4");
    QVERIFY(filled.fill.startIfNeeded(runFrom(8.0, 10), 30, 40));
    QCOMPARE(filled.fill.target(), 8.0);
    QCOMPARE(shown(filled.fill.finish(never).frame).number, 199);
    QVERIFY(filled.numbers.size() < 180); // of 200
    // The remaining room is filled without a gap.
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(filled.numbers.at(filled.numbers.size() - 1 - i), 200 - i);
    }
}

void BackwardFillTest::pass_isNotNeeded_whenHalfOfTheRoomIsFilled()
{
    Filled filled("h264_gop250.mp4");
    QVERIFY(!filled.fill.startIfNeeded(runFrom(8.0, 15), 30, 40));
    FrameCache::Run start = runFrom(0.0, 3);
    start.isAtStart = true;
    QVERIFY(!filled.fill.startIfNeeded(start, 30, 40));
    QVERIFY(filled.fill.startIfNeeded(runFrom(8.0, 14), 30, 40));
}

void BackwardFillTest::pass_isNotRepeated_toTheSameTarget()
{
    Filled filled("h264_gop250.mp4");
    QVERIFY(filled.fill.startIfNeeded(runFrom(1.0, 3), 30, 40));
    QCOMPARE(filled.fill.finish(never).answer, FrameAnswer::Frame);
    QVERIFY(!filled.fill.startIfNeeded(runFrom(1.0, 3), 30, 40));
    filled.fill.leave();
    QVERIFY(filled.fill.startIfNeeded(runFrom(1.0, 3), 30, 40));
}

void BackwardFillTest::pass_staysUnderWay_whenCancelled()
{
    Filled filled("h264_gop250.mp4");
    filled.fill.start(2.0, 0);
    int left = 20;
    const FrameResult cancelled = filled.fill.finish([&left] { return left-- <= 0; });
    QCOMPARE(cancelled.answer, FrameAnswer::Cancelled);
    QVERIFY(filled.fill.isUnderWay());
    QCOMPARE(shown(filled.fill.finish(never).frame).number, 49);
    QCOMPARE(filled.numbers.size(), 51); // none of them twice
}

void BackwardFillTest::pass_isOnTheWay_toWhatFollowsItsTarget()
{
    Filled filled("h264_gop250.mp4");
    QVERIFY(!filled.fill.isOnTheWayTo(2.0));
    filled.fill.start(2.0, 0);
    QVERIFY(filled.fill.isOnTheWayTo(2.04));
    QVERIFY(!filled.fill.isOnTheWayTo(1.96));
    QVERIFY(!filled.fill.isOnTheWayTo(4.0));
    filled.fill.leave();
    // A key frame lies between, and from there it is not far.
    filled.reader.seek(10000);
    QCOMPARE(filled.reader.land(never), FrameAnswer::Frame);
    filled.fill.start(10.0, 0);
    QVERIFY(!filled.fill.isOnTheWayTo(10.04));
}

void BackwardFillTest::remainingTime_isThatOfTheFramesToCome()
{
    Filled filled("h264_gop250.mp4");
    QVERIFY(!filled.fill.remainingSeconds());
    filled.fill.start(8.0, 0);
    QVERIFY(!filled.fill.remainingSeconds()); // nothing has been measured
    while (filled.numbers.size() < 150) {
        QVERIFY(!filled.fill.advance(never));
    }
    // 51 frames to come, of 10 ms each.
    QVERIFY(filled.fill.remainingSeconds());
    QVERIFY(qAbs(*filled.fill.remainingSeconds() - 0.51) < 0.03);
}

void BackwardFillTest::remainingTime_isKnownFromDecodingBefore()
{
    Filled filled("h264_gop250.mp4");
    filled.fill.noteDecoded(10.0, 18.0, 1.0);
    filled.fill.start(10.0, 0);
    // The group is as long, but decoded more slowly: nothing is skipped.
    QVERIFY(filled.fill.remainingSeconds());
    QVERIFY(*filled.fill.remainingSeconds() > 1.0);
    QVERIFY(*filled.fill.remainingSeconds() < 2.0);
}

void BackwardFillTest::reset_forgetsAll()
{
    Filled filled("h264_gop250.mp4");
    filled.fill.noteDecoded(0.0, 8.0, 1.0);
    filled.fill.start(2.0, 0);
    filled.fill.reset();
    QVERIFY(!filled.fill.isUnderWay());
    filled.fill.start(2.0, 0);
    QVERIFY(!filled.fill.remainingSeconds());
}

QTEST_GUILESS_MAIN(BackwardFillTest)
#include "BackwardFillTest.moc"
