#include "video/FrameCounter.h"

#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"

#include <QSignalSpy>
#include <QTest>

using testsupport::patienceMs;
using testsupport::sampleNamed;
using testsupport::samplePath;

class FrameCounterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frames_areNumbered_byTheirTimes_data();
    void frames_areNumbered_byTheirTimes();
    void unreadableVideo_endsWithoutNumbers();
    void otherVideo_dropsTheCounting();
    void counter_canEnd_whileItCounts();
};

void FrameCounterTest::frames_areNumbered_byTheirTimes_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"h264_bframes.mp4", "h264_bframes.mkv", "variable_rate.mkv", "h264_fields_single.ts",
          "h264_fields_paired.m2ts", "edit_list_end.mp4", "edit_list_end_open_gop.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void FrameCounterTest::frames_areNumbered_byTheirTimes()
{
    QFETCH(const QString, file);
    const testsupport::Sample& sample = sampleNamed(file);
    FrameCounter counter;
    QSignalSpy finished(&counter, &FrameCounter::finished);
    counter.setSource(samplePath(file));
    QVERIFY(!counter.numberAt(0));
    QVERIFY(!counter.timeOf(0));
    counter.count();
    counter.count();
    QVERIFY(finished.wait(patienceMs));
    QVERIFY(counter.isCounted());
    QCOMPARE(counter.frames(), sample.frames);
    for (int n = 0; n < sample.frames; ++n) {
        const qint64 ms = testsupport::frameTimeMs(sample, n);
        QCOMPARE(counter.timeOf(n), std::make_optional(ms));
        QCOMPARE(counter.numberAt(ms), std::make_optional(n));
    }
    QCOMPARE(counter.numberAt(1000000), std::make_optional(sample.frames - 1));
    QVERIFY(!counter.timeOf(sample.frames));
    QVERIFY(!counter.timeOf(-1));
    counter.count();
    QVERIFY(!counter.isCounting());
    QCOMPARE(finished.count(), 1);
}

void FrameCounterTest::unreadableVideo_endsWithoutNumbers()
{
    const testsupport::TestDir dir;
    FrameCounter counter;
    QSignalSpy finished(&counter, &FrameCounter::finished);
    counter.count();
    QVERIFY(!counter.isCounting());
    counter.setSource(dir.filePath(QStringLiteral("missing.mp4")));
    counter.count();
    QVERIFY(finished.wait(patienceMs));
    QVERIFY(!counter.isCounted());
    QVERIFY(!counter.isCounting());
}

void FrameCounterTest::otherVideo_dropsTheCounting()
{
    const testsupport::TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    FrameCounter counter;
    QSignalSpy finished(&counter, &FrameCounter::finished);
    counter.setSource(slow);
    counter.count();
    QVERIFY(counter.isCounting());
    counter.setSource(samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(!counter.isCounting());
    counter.count();
    QVERIFY(finished.wait(patienceMs));
    QCOMPARE(counter.frames(), 100);
    QCOMPARE(finished.count(), 1);
}

void FrameCounterTest::counter_canEnd_whileItCounts()
{
    const testsupport::TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    {
        FrameCounter counter;
        counter.setSource(slow);
        counter.count();
        QTest::qWait(20);
        QVERIFY(counter.isCounting());
    }
    QVERIFY(QFile::exists(slow));
}

QTEST_MAIN(FrameCounterTest)
#include "FrameCounterTest.moc"
