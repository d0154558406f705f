#include "ui/mainwindow/BestFramesFinder.h"

#include "tests/support/Patience.h"
#include "tests/support/SharpFrames.h"
#include "tests/support/TestDir.h"

#include <QSignalSpy>
#include <QTest>

using testsupport::makeVideoOfSharpFrames;
using testsupport::patienceMs;
using testsupport::TestDir;

class BestFramesFinderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void search_findsTheSharpFrames();
    void newerSearch_isTheOnlyOneThatAnswers();
    void cancelledSearch_neverAnswers_andNothingWaits();
    void unreadableVideo_isAnError();

private:
    const TestDir m_dir;
    const QString m_video = makeVideoOfSharpFrames(m_dir);
};

namespace {

constexpr QSize pictureSize{160, 160};

void search(BestFramesFinder& finder, const QString& video, const VideoStretch& stretch)
{
    finder.search(video, QtAV::Deinterlacing::Automatic, stretch, 5, pictureSize);
}

QVector<qint64> timesIn(const QSignalSpy& found)
{
    QVector<qint64> times;
    const auto best = found.last().first().value<BestFrames>();
    for (const BestFrame& frame : best.frames) {
        times.append(frame.ms);
    }
    return times;
}

} // namespace

void BestFramesFinderTest::search_findsTheSharpFrames()
{
    BestFramesFinder finder;
    QSignalSpy found(&finder, &BestFramesFinder::found);
    search(finder, m_video, {400, 1200});
    QVERIFY(found.wait(patienceMs));
    QCOMPARE(timesIn(found), (QVector<qint64>{600, 1000}));
    const auto best = found.last().first().value<BestFrames>();
    QCOMPARE(best.frames.first().picture.size(), QSize(160, 90));
}

void BestFramesFinderTest::newerSearch_isTheOnlyOneThatAnswers()
{
    BestFramesFinder finder;
    QSignalSpy found(&finder, &BestFramesFinder::found);
    search(finder, m_video, {0, 4000});
    search(finder, m_video, {0, 4000});
    search(finder, m_video, {800, 1200});
    QVERIFY(found.wait(patienceMs));
    QCOMPARE(timesIn(found), QVector<qint64>{1000});
    QTest::qWait(50);
    QCOMPARE(found.size(), 1);
}

void BestFramesFinderTest::cancelledSearch_neverAnswers_andNothingWaits()
{
    BestFramesFinder finder;
    QSignalSpy found(&finder, &BestFramesFinder::found);
    search(finder, m_video, {0, 4000});
    finder.cancel();
    // Also if the result is already in transit.
    search(finder, m_video, {800, 1200});
    QTest::qSleep(200);
    finder.cancel();
    QTest::qWait(100);
    QVERIFY(found.isEmpty());
    // The thread continues with the next task.
    search(finder, m_video, {400, 800});
    QVERIFY(found.wait(patienceMs));
    QCOMPARE(timesIn(found), QVector<qint64>{600});
}

void BestFramesFinderTest::unreadableVideo_isAnError()
{
    BestFramesFinder finder;
    QSignalSpy found(&finder, &BestFramesFinder::found);
    search(finder, m_dir.filePath(QStringLiteral("gone.mkv")), {0, 1000});
    QVERIFY(found.wait(patienceMs));
    const auto best = found.last().first().value<BestFrames>();
    QVERIFY(best.frames.isEmpty());
    QVERIFY(!best.error.isEmpty());
}

QTEST_GUILESS_MAIN(BestFramesFinderTest)
#include "BestFramesFinderTest.moc"
