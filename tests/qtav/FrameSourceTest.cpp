#include "tests/qtav/LongGroups.h"

#include "tests/qtav/Decoding.h"
#include "tests/support/FramePositions.h"

#include <QTest>

#include <algorithm>
#include <random>

using namespace decoding;
using QtAV::FrameAnswer;
using QtAV::FrameResult;
using QtAV::FrameSource;
using QtAV::VideoFrame;
using testsupport::Sample;
using testsupport::Trait;

namespace {

/// So many packets at most take a decoder at work to its next frame.
constexpr int fewPackets = 20;

/// For the frames of LongGroups: few as they were decoded, and many that are scaled down.
constexpr qint64 smallFrames = 2 << 20;

/// Room for few frames, so that most of them are decoded again.
qint64 smallCache(const VideoFrame& frame)
{
    return 12 * frame.byteCount();
}

} // namespace

/// Which frame is found, for every format, identified by the number in its picture.
class FrameSourceTest : public QObject
{
    Q_OBJECT

private slots:
    void steps_meetEveryFrameOnce_toTheEndAndBack_data() { addSamples(); }
    void steps_meetEveryFrameOnce_toTheEndAndBack();
    void mixedStepsAndSeeks_endOnTheRightFrame_data() { addSamples(); }
    void mixedStepsAndSeeks_endOnTheRightFrame();
    void filling_letsStepsBackDecodeNothing_asLongAsTheyGoOn();
    void preparing_keepsGoingForwardCheap_afterASeek();
    void preparing_waits_untilTheUserRests();
    void preparing_keepsForward_afterAStepForward();
    void smallFrames_areMetOnceEach_toTheEndAndBack_data();
    void smallFrames_areMetOnceEach_toTheEndAndBack();
    void resting_bringsTheFrameAtTheFocus_inFullSize();
    void decodeAnew_givesTheDecodedPicture_ofASmallFrame();
    void supplyBehind_tellsTheTimeToMore_untilEnoughIsThere();
    void filling_returnsToWhereGoingForwardDecodesOn();
    void stepForward_endsTheFillingUnderway_withoutStartingAgain();
    void stepForward_leavesTheFillingUnderway_whenAKeyFrameIsNear();
    void filling_ends_withoutAnyStep();
    void cache_takesNoMoreThanAllowed();
    void cancelledSearch_givesNoFrame_andTheNextOneIsRight();
    void open_fails_whenNothingCanBeDecoded_data();
    void open_fails_whenNothingCanBeDecoded();
    void damagedFile_givesRisingFrames_toTheEndAndTheSameBack_data();
    void damagedFile_givesRisingFrames_toTheEndAndTheSameBack();

private:
    static void addSamples();
    static qint64 cacheFor(const Sample& sample);
};

void FrameSourceTest::addSamples()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

qint64 FrameSourceTest::cacheFor(const Sample& sample)
{
    const QSize size = sample.codedSize;
    return qint64(size.width()) * size.height() * 3 / 2 * 12;
}

void FrameSourceTest::steps_meetEveryFrameOnce_toTheEndAndBack()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameSource source;
    QString error;
    QVERIFY2(source.open(testsupport::samplePath(file), cacheFor(sample), never, error),
             qPrintable(error));
    FrameResult found = source.frameAt(0, never);
    QCOMPARE(found.answer, FrameAnswer::Frame);
    VideoFrame frame = found.frame;
    QList<Shown> forwards{shown(frame)};
    while ((found = source.after(frame.timestamp(), never)).answer == FrameAnswer::Frame) {
        frame = found.frame;
        source.setFocus(frame.timestamp());
        forwards.append(shown(frame));
    }
    QList<Shown> expected = expectedFrom(sample, 0);
    QCOMPARE(forwards, expected);

    QList<Shown> backwards{shown(frame)};
    while ((found = source.before(frame.timestamp(), never)).answer == FrameAnswer::Frame) {
        frame = found.frame;
        source.setFocus(frame.timestamp());
        backwards.append(shown(frame));
    }
    std::reverse(expected.begin(), expected.end());
    QCOMPARE(backwards, expected);
}

void FrameSourceTest::mixedStepsAndSeeks_endOnTheRightFrame()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    const int most = sample.has(Trait::Large) ? 10 : 40;
    const qint64 lastMs = testsupport::frameTimeMs(sample, sample.frames - 1);
    FrameSource source;
    QString error;
    QVERIFY(source.open(testsupport::samplePath(file), cacheFor(sample), never, error));
    VideoFrame frame = source.frameAt(0, never).frame;
    int n = 0;
    std::mt19937 random(7);
    for (int i = 0; i < most; ++i) {
        const auto choice = random() % 6;
        FrameResult found;
        if (choice < 2) {
            found = source.after(frame.timestamp(), never);
            QCOMPARE(found.answer, n + 1 < sample.frames ? FrameAnswer::Frame : FrameAnswer::End);
            n = std::min(n + 1, sample.frames - 1);
        } else if (choice < 4) {
            found = source.before(frame.timestamp(), never);
            QCOMPARE(found.answer, n > 0 ? FrameAnswer::Frame : FrameAnswer::End);
            n = std::max(n - 1, 0);
        } else {
            const qint64 ms = qint64(random() % quint32(lastMs + 200));
            found = source.frameAt(ms, never);
            QCOMPARE(found.answer, FrameAnswer::Frame);
            n = testsupport::frameFrom(sample, ms);
        }
        if (found.answer == FrameAnswer::Frame) {
            frame = found.frame;
        }
        source.setFocus(frame.timestamp());
        for (auto fills = random() % 20;
             fills > 0 && source.prepare(FrameSource::longestRest, never);) {
            --fills;
        }
        QCOMPARE(shown(frame), expected(sample, n));
    }
}

void FrameSourceTest::filling_letsStepsBackDecodeNothing_asLongAsTheyGoOn()
{
    LongGroups opened(9000); // frame 225 of a group of 250
    for (int n = 224; n >= 0; --n) {
        opened.fill();
        const FrameResult found = opened.step(&FrameSource::before);
        QCOMPARE(found.answer, FrameAnswer::Frame);
        QCOMPARE(shown(found.frame).number, n);
        QCOMPARE(opened.packets, 0);
    }
}

void FrameSourceTest::preparing_keepsGoingForwardCheap_afterASeek()
{
    LongGroups opened(9000);
    opened.fill();
    for (int n = 226; n < 245; ++n) {
        QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, n);
        QVERIFY(opened.packets <= fewPackets);
    }
}

void FrameSourceTest::preparing_waits_untilTheUserRests()
{
    LongGroups opened(9000);
    QVERIFY(!opened.source.prepare(FrameSource::Rest::zero(), never));
    const auto rest = FrameSource::nextRest(FrameSource::Rest::zero());
    QVERIFY(rest);
    QVERIFY(opened.source.prepare(*rest, never));
    QVERIFY(!FrameSource::nextRest(FrameSource::longestRest));
}

/// The next frames are cached; the reader goes back only when the user rests long.
void FrameSourceTest::preparing_keepsForward_afterAStepForward()
{
    LongGroups opened(9000);
    QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, 226);
    int prepared = 0;
    while (opened.source.prepare(FrameSource::Rest(500), never)) {
        ++prepared;
    }
    QVERIFY(prepared > 5);
    QVERIFY(prepared < 50);
    for (int n = 227; n < 232; ++n) {
        QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, n);
        QCOMPARE(opened.packets, 0);
    }
    QVERIFY(opened.source.prepare(FrameSource::longestRest, never));
}

void FrameSourceTest::smallFrames_areMetOnceEach_toTheEndAndBack_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"h264_gop250.mp4", "h264_open_gop_bframes.mp4", "hevc_open_gop.mp4", "mpeg2.ts",
          "variable_rate.mkv", "turned_90_anamorphic.mp4", "hevc_10bit.mkv", "vp9_alpha.webm"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

/// With memory only for small frames, and steps that find what was prepared.
void FrameSourceTest::smallFrames_areMetOnceEach_toTheEndAndBack()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameSource source;
    source.setScreen({120, 120});
    QString error;
    QVERIFY(source.open(testsupport::samplePath(file), cacheFor(sample), never, error));
    VideoFrame frame = source.frameAt(0, never).frame;
    QList<Shown> seen{shown(frame)};
    bool wereSmall = false;
    const auto walk = [&](FrameResult (FrameSource::*direction)(double, const QtAV::IsCancelled&)) {
        FrameResult found;
        while ((found = (source.*direction)(frame.timestamp(), never)).answer ==
               FrameAnswer::Frame) {
            frame = found.frame;
            wereSmall = wereSmall || frame.isScaledDown();
            QCOMPARE(frame.displaySize(), sample.displaySize);
            source.setFocus(frame.timestamp());
            seen.append(shown(frame));
            for (int i = 0; i < 10 && source.prepare(FrameSource::Rest(100), never); ++i) {
            }
        }
        QCOMPARE(found.answer, FrameAnswer::End);
    };
    walk(&FrameSource::after);
    QList<Shown> expected = expectedFrom(sample, 0);
    QCOMPARE(seen, expected);
    seen = {seen.constLast()};
    walk(&FrameSource::before);
    std::reverse(expected.begin(), expected.end());
    QCOMPARE(seen, expected);
    QCOMPARE(wereSmall, !sample.has(Trait::Alpha));
    QVERIFY(source.cache().byteCount() <= source.cache().mostBytes());
}

void FrameSourceTest::resting_bringsTheFrameAtTheFocus_inFullSize()
{
    LongGroups opened(9000, smallFrames);
    for (int n = 224; n > 200; --n) {
        opened.fillShortly();
        QCOMPARE(shown(opened.step(&FrameSource::before).frame).number, n);
    }
    QVERIFY(opened.frame.isScaledDown());
    opened.fill();
    const VideoFrame whole = opened.source.cache().at(opened.frame.timestamp());
    QVERIFY(whole.isValid());
    QVERIFY(!whole.isScaledDown());
    QCOMPARE(shown(whole), shown(opened.frame));
    QVERIFY(!opened.source.prepare(FrameSource::longestRest, never));
}

void FrameSourceTest::decodeAnew_givesTheDecodedPicture_ofASmallFrame()
{
    LongGroups decoded(7960);
    QVERIFY(!decoded.frame.isScaledDown());
    LongGroups opened(9000, smallFrames);
    opened.fillShortly();
    while (shown(opened.frame).number > 199) {
        QCOMPARE(opened.step(&FrameSource::before).answer, FrameAnswer::Frame);
    }
    QVERIFY(opened.frame.isScaledDown());
    const FrameResult anew = opened.source.decodeAnew(opened.frame.timestamp(), never);
    QCOMPARE(anew.answer, FrameAnswer::Frame);
    QCOMPARE(anew.frame.timestamp(), opened.frame.timestamp());
    QVERIFY(anew.frame.toImage() == decoded.frame.toImage());
    QCOMPARE(opened.source.decodeAnew(7.9601, never).answer, FrameAnswer::Failed);
}

void FrameSourceTest::supplyBehind_tellsTheTimeToMore_untilEnoughIsThere()
{
    LongGroups opened(9000, smallFrames);
    QCOMPARE(opened.step(&FrameSource::before).answer, FrameAnswer::Frame);
    const FrameSource::Supply few = opened.source.supplyBehind();
    QVERIFY(few.frames < 10);
    QVERIFY(few.secondsToMore);
    QVERIFY(*few.secondsToMore > 0.0);
    opened.fill();
    const FrameSource::Supply many = opened.source.supplyBehind();
    QVERIFY(many.frames > 30);
    QVERIFY(!many.secondsToMore);
}

void FrameSourceTest::filling_returnsToWhereGoingForwardDecodesOn()
{
    LongGroups opened(9000);
    for (int n = 224; n > 220; --n) {
        QCOMPARE(shown(opened.step(&FrameSource::before).frame).number, n);
    }
    opened.fill();
    QVERIFY(opened.packets > 100);
    for (int n = 222; n < 240; ++n) {
        QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, n);
        QVERIFY(opened.packets <= fewPackets);
    }
}

void FrameSourceTest::stepForward_endsTheFillingUnderway_withoutStartingAgain()
{
    LongGroups opened(9000);
    for (int n = 224; n > 220; --n) {
        QCOMPARE(shown(opened.step(&FrameSource::before).frame).number, n);
    }
    opened.fill(50);
    int packets = 0;
    for (int n = 222; n <= 226; ++n) {
        QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, n);
        packets += opened.packets;
    }
    QVERIFY(packets > fewPackets);
    QVERIFY(packets < 200);
}

void FrameSourceTest::stepForward_leavesTheFillingUnderway_whenAKeyFrameIsNear()
{
    LongGroups opened(10080); // frame 252, two behind a key frame
    opened.fill(50);
    QCOMPARE(opened.packets, 50);
    QCOMPARE(shown(opened.step(&FrameSource::after).frame).number, 253);
    QVERIFY(opened.packets <= fewPackets);
}

void FrameSourceTest::filling_ends_withoutAnyStep()
{
    FrameSource source;
    QString error;
    const QString path = testsupport::samplePath(QStringLiteral("h264_gop250.mp4"));
    QVERIFY(source.open(path, QtAV::FrameCache::defaultBytes, never, error));
    const qint64 bytes = smallCache(source.frameAt(0, never).frame);
    QVERIFY(source.open(path, bytes, never, error));
    source.setFocus(source.frameAt(15000, never).frame.timestamp());
    int fills = 0;
    while (source.prepare(FrameSource::longestRest, never)) {
        QVERIFY(++fills < 2000);
    }
    QVERIFY(source.cache().byteCount() <= bytes);
}

void FrameSourceTest::cache_takesNoMoreThanAllowed()
{
    const QString path = testsupport::samplePath(QStringLiteral("h264_gop250.mp4"));
    FrameSource source;
    QString error;
    QVERIFY(source.open(path, QtAV::FrameCache::defaultBytes, never, error));
    const qint64 frameBytes = source.frameAt(0, never).frame.byteCount();
    QVERIFY(source.open(path, 5 * frameBytes, never, error));
    QCOMPARE(source.cache().mostBytes(), 5 * frameBytes);
    QCOMPARE(source.frameAt(9000, never).answer, FrameAnswer::Frame);
    QVERIFY(source.cache().byteCount() <= 5 * frameBytes);
}

void FrameSourceTest::cancelledSearch_givesNoFrame_andTheNextOneIsRight()
{
    for (const int packets : {0, 1, 5, 50, 100}) {
        // Reopened, because cached frames need no search.
        FrameSource source;
        QString error;
        QVERIFY(source.open(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")),
                            QtAV::FrameCache::defaultBytes, never, error));
        int left = packets;
        const auto soon = [&left] { return left-- <= 0; };
        QCOMPARE(source.frameAt(9960, soon).answer, FrameAnswer::Cancelled);
        left = packets;
        QCOMPARE(source.before(6.0, soon).answer, FrameAnswer::Cancelled);
        QCOMPARE(shown(source.frameAt(8000 + packets * 40, never).frame).number, 200 + packets);
        QCOMPARE(shown(source.before(6.0, never).frame).number, 149);
    }
}

void FrameSourceTest::open_fails_whenNothingCanBeDecoded_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::brokenSamples() + testsupport::noVideoSamples()) {
        if (sample.has(Trait::Unopenable) || sample.has(Trait::NoVideo)) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
        }
    }
    QTest::newRow("missing") << QStringLiteral("no such file.mp4");
}

void FrameSourceTest::open_fails_whenNothingCanBeDecoded()
{
    QFETCH(QString, file);
    FrameSource source;
    QString error;
    QVERIFY(!source.open(testsupport::samplePath(file), 1000000, never, error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!source.isOpen());
}

void FrameSourceTest::damagedFile_givesRisingFrames_toTheEndAndTheSameBack_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::brokenSamples()) {
        if (sample.has(Trait::Damaged)) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
        }
    }
}

/// Which frames a damaged file gives depends on where decoding starts, but reading it always
/// reaches its end, and going back its start.
void FrameSourceTest::damagedFile_givesRisingFrames_toTheEndAndTheSameBack()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameSource source;
    QString error;
    QVERIFY(source.open(testsupport::samplePath(file), cacheFor(sample), never, error));
    const double first = source.frameAt(0, never).frame.timestamp();
    double time = first;
    int forwards = 1;
    for (;;) {
        const FrameResult found = source.after(time, never);
        if (found.answer != FrameAnswer::Frame) {
            break;
        }
        QVERIFY(found.frame.timestamp() > time);
        time = found.frame.timestamp();
        source.setFocus(time);
        QVERIFY(++forwards <= sample.frames);
    }
    const double last = source.frameAt(3600000, never).frame.timestamp();
    QCOMPARE(last, time);
    QVERIFY(forwards > 1);
    // Background work reaches its end as well.
    int prepared = 0;
    while (source.prepare(FrameSource::longestRest, never)) {
        QVERIFY(++prepared <= 10 * sample.frames);
    }
    for (int backwards = 1;; ++backwards) {
        const FrameResult found = source.before(time, never);
        if (found.answer != FrameAnswer::Frame) {
            break;
        }
        QVERIFY(found.frame.timestamp() < time);
        time = found.frame.timestamp();
        source.setFocus(time);
        QVERIFY(backwards <= sample.frames);
    }
    QCOMPARE(time, first);
}

QTEST_GUILESS_MAIN(FrameSourceTest)
#include "FrameSourceTest.moc"
