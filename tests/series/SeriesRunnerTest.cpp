#include "tests/series/SeriesRecord.h"

#include "imaging/Rendering.h"
#include "tests/support/Pixels.h"
#include "tests/support/RunProgram.h"
#include "tests/support/TestDir.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <new>

using namespace seriestests;
using testsupport::pixelsOf;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

class SeriesRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scenes_beginWhereTheContentChanges();
    void numbersOfFrames_areTold_whenAskedFor();
    void missingFrames_areErrors_behindThePictures();
    void videos_comeInOrder_howeverManyLanesThereAre_data();
    void videos_comeInOrder_howeverManyLanesThereAre();
    void pictures_comeAll_withHardlyAnyMemory();
    void unneededTargets_areLeftOut();
    void encodedPictures_areThoseOfTheRecipe();
    void thumbnails_fitIntoTheirBounds();
    void outputThatFails_losesItsPictureOnly();
    void lengthWithoutReason_makesNoListWithoutEnd();
    void brokenVideos_endWithAnError_andOthersGoOn();
    void vanishingVideos_failTheirPictures_andOthersGoOn();
    void cancelling_endsAtOnce_withoutAnotherPicture();
    void nothing_isTaken_whenCancelledBefore();
    void contentOfWaitingPictures_canBeStored();
};

/// Three colours of two seconds each, with a number that changes on every frame.
void SeriesRunnerTest::scenes_beginWhereTheContentChanges()
{
    Record record;
    QVERIFY(series::run(
        {jobFor(QStringLiteral("three_scenes.mp4"), ofKind(FramePositions::Kind::Scenes))}, record,
        neverCancelled, {2}));
    QCOMPARE(numbersIn(record.pictures), listed({0, 50, 100}));
}

void SeriesRunnerTest::numbersOfFrames_areTold_whenAskedFor()
{
    const QString file = QStringLiteral("h264_bframes.mp4");
    SeriesJob job = jobFor(file, spread(7));
    Record without;
    QVERIFY(series::run({job}, without, neverCancelled));
    job.numbersFrames = true;
    Record with;
    QVERIFY(series::run({job}, with, neverCancelled));
    QCOMPARE(with.pictures.size(), 7);
    for (int i = 0; i < 7; ++i) {
        QVERIFY(!without.pictures.at(i).frame);
        QCOMPARE(QString::number(with.pictures.at(i).frame.value_or(-1)),
                 numberIn(with.pictures.at(i)));
    }
}

void SeriesRunnerTest::missingFrames_areErrors_behindThePictures()
{
    Record record;
    QVERIFY(series::run({jobFor(QStringLiteral("h264_bframes.mp4"), numbers({5, 100, 99, 1000}))},
                        record, neverCancelled));
    QCOMPARE(record.pictures.size(), 4);
    QCOMPARE(numbersIn(record.pictures.mid(0, 2)), listed({5, 99}));
    QCOMPARE(record.pictures.at(2).error, QStringLiteral("The video has no frame 100."));
    QCOMPARE(record.pictures.at(3).error, QStringLiteral("The video has no frame 1000."));
    QCOMPARE(record.begun.first().expected, std::optional<int>(4));
}

void SeriesRunnerTest::videos_comeInOrder_howeverManyLanesThereAre_data()
{
    QTest::addColumn<int>("lanes");
    for (const int lanes : {1, 2, 3, 8}) {
        QTest::addRow("%d lanes", lanes) << lanes;
    }
}

void SeriesRunnerTest::videos_comeInOrder_howeverManyLanesThereAre()
{
    QFETCH(int, lanes);
    const QStringList files{QStringLiteral("h264_gop250.mp4"), QStringLiteral("mpeg2.ts"),
                            QStringLiteral("h264_one_frame.mp4"), QStringLiteral("vp9.webm"),
                            QStringLiteral("raw.h264")};
    QVector<SeriesJob> jobs;
    for (int i = 0; i < 30; ++i) {
        jobs.append(jobFor(files.at(i % files.size()), spread(1 + i % 4)));
    }
    Record record;
    QVERIFY(series::run(jobs, record, neverCancelled, {lanes}));
    QCOMPARE(record.ended.size(), 30);
    int last = 0;
    for (const SeriesPicture& picture : record.pictures) {
        QVERIFY(picture.video >= last);
        last = picture.video;
    }
    for (int i = 0; i < 30; ++i) {
        QCOMPARE(record.ended.at(i), i);
        QCOMPARE(record.begun.at(i).video, i);
        const QList<SeriesPicture> own = record.of(i);
        const bool hasOneFrame = i % files.size() == 2;
        QCOMPARE(own.size(), hasOneFrame ? 1 : 1 + i % 4);
        for (int n = 1; n < own.size(); ++n) {
            QVERIFY(own.at(n).timeMs > own.at(n - 1).timeMs);
            QVERIFY(own.at(n).number > own.at(n - 1).number);
        }
    }
}

void SeriesRunnerTest::pictures_comeAll_withHardlyAnyMemory()
{
    const QString file = QStringLiteral("h264_gop250.mp4");
    SeriesOptions options;
    options.lanes = 4;
    options.memoryBytes = 1;
    Record record;
    QVERIFY(series::run({jobFor(file, every(200)), jobFor(file, every(300))}, record,
                        neverCancelled, options));
    const Sample& sample = testsupport::sampleNamed(file);
    QCOMPARE(numbersIn(record.of(0)), expectedAt(sample, positionsEvery(200, 20800)));
    QCOMPARE(numbersIn(record.of(1)), expectedAt(sample, positionsEvery(300, 20800)));
}

void SeriesRunnerTest::unneededTargets_areLeftOut()
{
    Record record;
    record.isNeeded = [](int, const SeriesTarget& target) { return target.ms % 400 == 0; };
    QVERIFY(series::run({jobFor(QStringLiteral("h264_bframes.mp4"), every(200))}, record,
                        neverCancelled));
    QCOMPARE(numbersIn(record.pictures), listed({0, 10, 20, 30, 40, 50, 60, 70, 80, 90}));
    QCOMPARE(record.begun.first().expected, std::optional<int>(10));
}

void SeriesRunnerTest::encodedPictures_areThoseOfTheRecipe()
{
    SeriesJob job = jobFor(QStringLiteral("h264_bframes.mp4"), spread(3));
    job.type = QStringLiteral("png");
    job.recipe.keepsSize = false;
    job.recipe.bounds = {100, 100};
    job.recipe.keepsAspectRatio = true;
    Record record;
    QVERIFY(series::run({job}, record, neverCancelled));
    QCOMPARE(record.pictures.size(), 3);
    for (const SeriesPicture& picture : record.pictures) {
        QCOMPARE(picture.size, QSize(100, 75));
        const QImage decoded = QImage::fromData(picture.content, "png");
        QCOMPARE(pixelsOf(decoded, QImage::Format_RGB888),
                 pixelsOf(picture.image, QImage::Format_RGB888));
    }
    job.type = QStringLiteral("nonsense");
    Record failing;
    QVERIFY(series::run({job}, failing, neverCancelled));
    QCOMPARE(failing.pictures.size(), 3);
    QVERIFY(failing.pictures.first().error.contains(QStringLiteral("nonsense")));
}

void SeriesRunnerTest::thumbnails_fitIntoTheirBounds()
{
    SeriesJob job = jobFor(QStringLiteral("turned_90.mp4"), spread(2));
    job.thumbnail = {60, 60};
    job.keepsImage = false;
    Record record;
    QVERIFY(series::run({job}, record, neverCancelled));
    QCOMPARE(record.pictures.size(), 2);
    QCOMPARE(record.pictures.first().thumbnail.size(), QSize(60, 45));
    QVERIFY(record.pictures.first().image.isNull());
}

/// As after a lack of memory.
void SeriesRunnerTest::outputThatFails_losesItsPictureOnly()
{
    Record record;
    int taken = 0;
    record.onPicture = [&taken] {
        if (++taken == 2) {
            throw std::bad_alloc();
        }
    };
    SeriesOptions options;
    options.lanes = 1;
    const QVector<SeriesJob> jobs{jobFor(QStringLiteral("h264_bframes.mp4"), every(1000)),
                                  jobFor(QStringLiteral("h264_gop250.mp4"), spread(1))};
    QVERIFY(series::run(jobs, record, neverCancelled, options));
    QCOMPARE(record.ended, QList<int>({0, 1}));
    QVERIFY(!record.errors.at(0).isEmpty());
    QCOMPARE(record.of(1).size(), 1);
    QCOMPARE(record.errors.at(1), QString());
}

void SeriesRunnerTest::lengthWithoutReason_makesNoListWithoutEnd()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("made.mkv"));
    // Two frames a year apart.
    const testsupport::ProgramResult made = testsupport::runProgram(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-f"),
         QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("testsrc=s=64x64:r=1:d=2"),
         QStringLiteral("-vf"), QStringLiteral("setpts=N*31536000/TB"), QStringLiteral("-vsync"),
         QStringLiteral("passthrough"), QStringLiteral("-c:v"), QStringLiteral("ffv1"), path});
    QVERIFY2(made.succeeded(), made.standardError.constData());
    SeriesJob job;
    job.video = path;
    job.positions = every(5000);
    Record record;
    QVERIFY(series::run({job}, record, neverCancelled));
    QVERIFY(record.pictures.isEmpty());
    QVERIFY2(record.errors.value(0).contains(QStringLiteral("5000000")),
             qPrintable(record.errors.value(0)));
    // Rarer ones are the usual ones.
    job.positions = every(20000000000);
    Record rare;
    QVERIFY(series::run({job}, rare, neverCancelled));
    QCOMPARE(rare.errors, QStringList{QString()});
    QCOMPARE(rare.pictures.size(), 2);
}

void SeriesRunnerTest::brokenVideos_endWithAnError_andOthersGoOn()
{
    QVector<SeriesJob> jobs;
    for (const char* file : {"text.mp4", "h264_bframes.mp4", "sound_only.mp4", "empty.mp4",
                             "no such file.mp4", "mpeg2.ts", "truncated.mp4"}) {
        jobs.append(jobFor(QString::fromLatin1(file), spread(4)));
    }
    Record record;
    QVERIFY(series::run(jobs, record, neverCancelled, {2}));
    QCOMPARE(record.ended, QList<int>({0, 1, 2, 3, 4, 5, 6}));
    for (const int bad : {0, 2, 3, 4}) {
        QVERIFY(!record.errors.at(bad).isEmpty());
        QVERIFY(record.of(bad).isEmpty());
    }
    for (const int good : {1, 5}) {
        QCOMPARE(record.errors.at(good), QString());
        QCOMPARE(record.of(good).size(), 4);
    }
    QVERIFY(!record.of(6).isEmpty());
}

/// Truncated to nothing while being read.
void SeriesRunnerTest::vanishingVideos_failTheirPictures_andOthersGoOn()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("film.mkv"));
    QVERIFY(QFile::copy(samplePath(QStringLiteral("h264_bframes.mkv")), path));
    SeriesJob job = jobFor(QStringLiteral("h264_bframes.mkv"), every(40));
    job.video = path;
    Record record;
    record.onPicture = [&] { static_cast<void>(QFile(path).resize(0)); };
    QVERIFY(series::run({job, jobFor(QStringLiteral("mpeg2.ts"), spread(2))}, record,
                        neverCancelled, {2}));
    QCOMPARE(record.ended, QList<int>({0, 1}));
    QVERIFY(record.pictures.first().error.isEmpty());
    for (const SeriesPicture& picture : record.of(0)) {
        QVERIFY(picture.image.isNull() != picture.error.isEmpty());
    }
    QCOMPARE(record.of(1).size(), 2);
}

void SeriesRunnerTest::cancelling_endsAtOnce_withoutAnotherPicture()
{
    std::atomic<bool> isCancelled{false};
    Record record;
    record.onPicture = [&] { isCancelled = true; };
    QVERIFY(!series::run({jobFor(QStringLiteral("h264_gop250.mp4"), every(40)),
                          jobFor(QStringLiteral("mpeg2.ts"), every(40))},
                         record, [&] { return isCancelled.load(); }, {3}));
    QCOMPARE(record.pictures.size(), 1);
    QVERIFY(record.ended.isEmpty());
}

void SeriesRunnerTest::nothing_isTaken_whenCancelledBefore()
{
    Record record;
    QVERIFY(
        !series::run({jobFor(QStringLiteral("mpeg2.ts"), every(40))}, record, [] { return true; }));
    QVERIFY(record.begun.isEmpty());
    QVERIFY(record.pictures.isEmpty());
}

/// The first picture delays all later ones of other lanes.
void SeriesRunnerTest::contentOfWaitingPictures_canBeStored()
{
    const QByteArray mark("stored");
    std::atomic<int> stored{0};
    Record record;
    record.onWaiting = [&](SeriesPicture& picture) {
        if (!picture.content.isEmpty()) {
            picture.content = mark;
            ++stored;
        }
    };
    record.onPicture = [&] {
        QDeadlineTimer patience(20000);
        while (stored == 0 && !patience.hasExpired()) {
            QThread::msleep(1);
        }
    };
    SeriesJob job = jobFor(QStringLiteral("h264_gop250.mp4"), every(4000));
    job.type = QStringLiteral("jpeg");
    QVERIFY(series::run({job}, record, neverCancelled, {2}));
    QVERIFY(stored > 0);
    QVERIFY(record.pictures.first().content != mark);
    const auto marked =
        std::count_if(record.pictures.cbegin(), record.pictures.cend(),
                      [&](const SeriesPicture& picture) { return picture.content == mark; });
    QCOMPARE(static_cast<int>(marked), stored.load());
    for (int i = 0; i < record.pictures.size(); ++i) {
        QCOMPARE(record.pictures.at(i).number, i + 1);
    }
}

QTEST_GUILESS_MAIN(SeriesRunnerTest)
#include "SeriesRunnerTest.moc"
