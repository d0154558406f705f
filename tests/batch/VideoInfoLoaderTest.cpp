#include "batch/VideoInfoLoader.h"

#include "batch/BatchWorkerConfig.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>
#include <pthread.h>
#include <vector>

using testsupport::MemoryLimit;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

QString goodVideo()
{
    return samplePath(QStringLiteral("h264_bframes.mp4"));
}

/// Jobs on a case's stack. Declare them before the loader, which they must outlive.
class Jobs
{
public:
    QList<BatchWorkerConfig*> add(const QStringList& files)
    {
        QList<BatchWorkerConfig*> added;
        for (const QString& file : files) {
            m_jobs.push_back(std::make_unique<BatchWorkerConfig>());
            m_jobs.back()->setSource(file);
            added.append(m_jobs.back().get());
        }
        return added;
    }

private:
    std::vector<std::unique_ptr<BatchWorkerConfig>> m_jobs;
};

/// The signals of a loader.
class Reports
{
public:
    explicit Reports(VideoInfoLoader& loader)
        : m_finished(&loader, &VideoInfoLoader::finished)
    {
        QObject::connect(&loader, &VideoInfoLoader::loaded, &loader,
                         [this](BatchWorkerConfig* job) { m_loaded.append(job); });
    }

    QList<BatchWorkerConfig*> loaded() const { return m_loaded; }
    int finished() const { return m_finished.size(); }

private:
    QList<BatchWorkerConfig*> m_loaded;
    QSignalSpy m_finished;
};

/// Runs the event loop for this many events of a timer.
void turnEventLoop(int times)
{
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&turns] { ++turns; });
    timer.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(turns >= times, 60000);
}

/// During its lifetime, the process cannot start threads: there is no memory for their stacks.
class NoMoreThreads
{
public:
    NoMoreThreads()
    {
#ifdef __GLIBC__
        ::pthread_getattr_default_np(&m_before);
        pthread_attr_t large;
        ::pthread_getattr_default_np(&large);
        ::pthread_attr_setstacksize(&large, size_t(1) << 30);
        ::pthread_setattr_default_np(&large);
        ::pthread_attr_destroy(&large);
#endif
    }
    ~NoMoreThreads()
    {
#ifdef __GLIBC__
        ::pthread_setattr_default_np(&m_before);
        ::pthread_attr_destroy(&m_before);
#endif
    }
    NoMoreThreads(const NoMoreThreads&) = delete;
    NoMoreThreads& operator=(const NoMoreThreads&) = delete;

    /// False if a case must be skipped.
    static bool isPossible()
    {
#ifdef __GLIBC__
        return MemoryLimit::isPossible();
#else
        return false;
#endif
    }

private:
    pthread_attr_t m_before{};
    MemoryLimit m_limit{64 * 1024 * 1024};
};

} // namespace

class VideoInfoLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobs_areLoadedInOrder_withUnreadableOnesBetween();
    void facts_areThoseOfAPlainRead();
    void nothing_isReported_forNoJobs();
    void counts_tellHowFarItIs();
    void jobs_joinThoseThatWait_whenLoadedMeanwhile();
    void eventLoop_turns_whileAVideoIsRead();
    void cancel_returnsWhatIsNotLoaded();
    void cancel_isSilent_whenNothingWaits();
    void jobs_areLoaded_afterACancelledRead();
    void destruction_doesNotWait_forTheRead();
    void jobs_wait_untilThereIsAThread();
    void jobs_canBeCancelled_whileTheyWaitForAThread();
    void slots_mayCancel();
    void slots_mayLoadMore();
};

void VideoInfoLoaderTest::jobs_areLoadedInOrder_withUnreadableOnesBetween()
{
    const TestDir dir;
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add(
        {samplePath(QStringLiteral("h264_gop250.mp4")), dir.filePath(QStringLiteral("missing.mp4")),
         goodVideo(), dir.path(), samplePath(QStringLiteral("truncated.mkv")), goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load(all);
    QVERIFY(loader.isLoading());
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 1, 60000);
    QCOMPARE(reports.loaded(), all);
    QVERIFY(!loader.isLoading());
    QList<bool> loaded;
    for (const BatchWorkerConfig* const job : all) {
        loaded.append(job->videoInfo().loaded);
    }
    QCOMPARE(loaded, (QList<bool>{true, false, true, false, true, true}));
    QCOMPARE(all.first()->videoInfo().duration, 20800);
}

void VideoInfoLoaderTest::facts_areThoseOfAPlainRead()
{
    const QStringList files{goodVideo(), samplePath(QStringLiteral("sound_with_cover.m4a")),
                            QStringLiteral("/missing.mp4")};
    Jobs jobs;
    const QList<BatchWorkerConfig*> inThread = jobs.add(files);
    const QList<BatchWorkerConfig*> plain = jobs.add(files);
    VideoInfoLoader loader;
    loader.load(inThread);
    QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), 60000);
    for (int i = 0; i < files.size(); ++i) {
        plain[i]->loadVideoInfo();
        const VideoInfo& found = inThread[i]->videoInfo();
        const VideoInfo& expected = plain[i]->videoInfo();
        QCOMPARE(found.loaded, expected.loaded);
        QCOMPARE(found.duration, expected.duration);
        QCOMPARE(QSize(found.width, found.height), QSize(expected.width, expected.height));
    }
    // Sound alone has a length.
    QVERIFY(inThread[1]->videoInfo().duration > 0);
}

void VideoInfoLoaderTest::nothing_isReported_forNoJobs()
{
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load({});
    QVERIFY(!loader.isLoading());
    turnEventLoop(3);
    QCOMPARE(reports.finished(), 0);
}

void VideoInfoLoaderTest::counts_tellHowFarItIs()
{
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), goodVideo(), goodVideo()});
    VideoInfoLoader loader;
    QList<QList<int>> counts;
    connect(&loader, &VideoInfoLoader::loaded, this, [&] {
        const int current = int(all.indexOf(loader.currentJob()));
        counts.append({loader.loadedCount(), loader.jobCount(), current});
    });
    for (int round = 0; round < 2; ++round) {
        counts.clear();
        loader.load(all);
        QCOMPARE(loader.loadedCount(), 0);
        QCOMPARE(loader.jobCount(), 3);
        QCOMPARE(loader.currentJob(), all.first());
        QTRY_VERIFY_WITH_TIMEOUT(!loader.isLoading(), 60000);
        QCOMPARE(counts, (QList<QList<int>>{{1, 3, 1}, {2, 3, 2}, {3, 3, -1}}));
    }
}

void VideoInfoLoaderTest::jobs_joinThoseThatWait_whenLoadedMeanwhile()
{
    Jobs jobs;
    const QList<BatchWorkerConfig*> first = jobs.add({goodVideo(), goodVideo()});
    const QList<BatchWorkerConfig*> second = jobs.add({goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load(first);
    loader.load(second);
    QCOMPARE(loader.jobCount(), 3);
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 1, 60000);
    QCOMPARE(reports.loaded(), first + second);
}

void VideoInfoLoaderTest::eventLoop_turns_whileAVideoIsRead()
{
    const TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), slow});
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load(all);
    QTRY_COMPARE_WITH_TIMEOUT(reports.loaded().size(), 1, 60000);
    turnEventLoop(20);
    QCOMPARE(reports.loaded().size(), 1);
    QVERIFY(loader.isLoading());
    QCOMPARE(loader.currentJob(), all.last());
}

void VideoInfoLoaderTest::cancel_returnsWhatIsNotLoaded()
{
    const TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), slow, goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load(all);
    QTRY_COMPARE_WITH_TIMEOUT(reports.loaded().size(), 1, 60000);
    QCOMPARE(loader.cancel(), all.mid(1));
    QCOMPARE(reports.finished(), 1);
    QVERIFY(!loader.isLoading());
    QVERIFY(loader.currentJob() == nullptr);
    turnEventLoop(20);
    QCOMPARE(reports.loaded(), all.mid(0, 1));
    QCOMPARE(reports.finished(), 1);
    QVERIFY(!all.last()->videoInfo().loaded);
}

void VideoInfoLoaderTest::cancel_isSilent_whenNothingWaits()
{
    Jobs jobs;
    VideoInfoLoader loader;
    const Reports reports(loader);
    QVERIFY(loader.cancel().isEmpty());
    QCOMPARE(reports.finished(), 0);
    loader.load(jobs.add({goodVideo()}));
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 1, 60000);
    QVERIFY(loader.cancel().isEmpty());
    QCOMPARE(reports.finished(), 1);
}

/// The cancelled read may still be running.
void VideoInfoLoaderTest::jobs_areLoaded_afterACancelledRead()
{
    const TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    Jobs jobs;
    VideoInfoLoader loader;
    const Reports reports(loader);
    loader.load(jobs.add({slow}));
    turnEventLoop(5);
    loader.cancel();
    const QList<BatchWorkerConfig*> next = jobs.add({goodVideo(), goodVideo()});
    loader.load(next);
    QCOMPARE(loader.jobCount(), 2);
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 2, 60000);
    QCOMPARE(reports.loaded(), next);
    QVERIFY(next.first()->videoInfo().loaded);
}

/// A loader that waited would exceed the time limit of the test.
void VideoInfoLoaderTest::destruction_doesNotWait_forTheRead()
{
    const TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    Jobs jobs;
    int reports = 0;
    {
        VideoInfoLoader loader;
        connect(&loader, &VideoInfoLoader::loaded, this, [&reports] { ++reports; });
        connect(&loader, &VideoInfoLoader::finished, this, [&reports] { ++reports; });
        loader.load(jobs.add({slow, goodVideo()}));
        turnEventLoop(5);
    }
    turnEventLoop(20);
    QCOMPARE(reports, 0);
}

void VideoInfoLoaderTest::jobs_wait_untilThereIsAThread()
{
    if (!NoMoreThreads::isPossible()) {
        QSKIP("Threads cannot be limited here.");
    }
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    {
        const NoMoreThreads limit;
        loader.load(all.mid(0, 1));
        turnEventLoop(5);
        loader.load(all.mid(1));
        turnEventLoop(5);
    }
    QCOMPARE(reports.loaded().size(), 0);
    QVERIFY(loader.isLoading());
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 1, 60000);
    QCOMPARE(reports.loaded(), all);
    QVERIFY(all.first()->videoInfo().loaded);
}

void VideoInfoLoaderTest::jobs_canBeCancelled_whileTheyWaitForAThread()
{
    if (!NoMoreThreads::isPossible()) {
        QSKIP("Threads cannot be limited here.");
    }
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    {
        const NoMoreThreads limit;
        loader.load(all);
        QCOMPARE(loader.cancel(), all);
    }
    QCOMPARE(reports.finished(), 1);
    loader.load(all);
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 2, 60000);
    QCOMPARE(reports.loaded(), all);
}

void VideoInfoLoaderTest::slots_mayCancel()
{
    Jobs jobs;
    const QList<BatchWorkerConfig*> all = jobs.add({goodVideo(), goodVideo(), goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    QList<BatchWorkerConfig*> dropped;
    connect(&loader, &VideoInfoLoader::loaded, this, [&] { dropped = loader.cancel(); });
    loader.load(all);
    QTRY_COMPARE_WITH_TIMEOUT(reports.finished(), 1, 60000);
    turnEventLoop(5);
    QCOMPARE(reports.loaded(), all.mid(0, 1));
    QCOMPARE(dropped, all.mid(1));
    QCOMPARE(reports.finished(), 1);
}

void VideoInfoLoaderTest::slots_mayLoadMore()
{
    Jobs jobs;
    const QList<BatchWorkerConfig*> first = jobs.add({goodVideo()});
    const QList<BatchWorkerConfig*> second = jobs.add({goodVideo()});
    VideoInfoLoader loader;
    const Reports reports(loader);
    connect(&loader, &VideoInfoLoader::loaded, this, [&](BatchWorkerConfig* job) {
        if (job == first.first()) {
            loader.load(second);
        }
    });
    loader.load(first);
    QTRY_COMPARE_WITH_TIMEOUT(reports.loaded(), first + second, 60000);
    QCOMPARE(reports.finished(), 1);
}

QTEST_GUILESS_MAIN(VideoInfoLoaderTest)
#include "VideoInfoLoaderTest.moc"
