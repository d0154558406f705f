#include "series/SeriesRunner.h"

#include "imaging/Rendering.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/FramePositions.h"
#include "tests/support/Pixels.h"
#include "tests/support/Samples.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <functional>

using testsupport::pixelsOf;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::Trait;

namespace {

/// Stores everything that it receives.
class Record : public SeriesOutput
{
public:
    bool needs(int video, const SeriesTarget& target) override
    {
        return !isNeeded || isNeeded(video, target);
    }

    void begin(const SeriesFacts& facts) override { begun.append(facts); }

    void store(SeriesPicture& picture) override
    {
        if (onWaiting) {
            onWaiting(picture);
        }
    }

    void take(SeriesPicture picture) override
    {
        if (onPicture) {
            onPicture();
        }
        pictures.append(picture);
    }

    void end(int video, const QString& error) override
    {
        ended.append(video);
        errors.append(error);
    }

    QList<SeriesPicture> of(int video) const
    {
        QList<SeriesPicture> own;
        for (const SeriesPicture& picture : pictures) {
            if (picture.video == video) {
                own.append(picture);
            }
        }
        return own;
    }

    std::function<bool(int, const SeriesTarget&)> isNeeded;
    std::function<void(SeriesPicture&)> onWaiting;
    std::function<void()> onPicture;
    QList<SeriesFacts> begun;
    QList<SeriesPicture> pictures;
    QList<int> ended;
    QStringList errors;
};

bool neverCancelled()
{
    return false;
}

/// Pictures as images, not encoded.
SeriesJob jobFor(const QString& file, const FramePositions& positions)
{
    SeriesJob job;
    job.video = samplePath(file);
    job.positions = positions;
    job.type.clear();
    job.keepsImage = true;
    return job;
}

FramePositions every(qint64 ms)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::Every;
    positions.everyMs = ms;
    return positions;
}

FramePositions spread(int count)
{
    FramePositions positions;
    positions.count = count;
    return positions;
}

FramePositions ofKind(FramePositions::Kind kind)
{
    FramePositions positions;
    positions.kind = kind;
    return positions;
}

FramePositions numbers(const QList<int>& frames)
{
    FramePositions positions = ofKind(FramePositions::Kind::List);
    for (const int frame : frames) {
        positions.list.push_back({FramePosition::Kind::FrameNumber, static_cast<double>(frame)});
    }
    return positions;
}

/// The number in a picture, as text.
QString numberIn(const SeriesPicture& picture)
{
    const std::optional<int> number = testsupport::frameNumber(picture.image);
    return number ? QString::number(*number) : QStringLiteral("none, ") + picture.error;
}

QStringList numbersIn(const QList<SeriesPicture>& pictures)
{
    QStringList all;
    for (const SeriesPicture& picture : pictures) {
        all.append(numberIn(picture));
    }
    return all;
}

QStringList listed(std::initializer_list<int> frames)
{
    QStringList all;
    for (const int frame : frames) {
        all.append(QString::number(frame));
    }
    return all;
}

/// The frames at or after positions, without duplicates.
QStringList expectedAt(const Sample& sample, const QList<qint64>& positions)
{
    QStringList all;
    for (const qint64 ms : positions) {
        const QString number =
            QString::number(sample.firstNumber + testsupport::frameFrom(sample, ms));
        if (all.isEmpty() || all.constLast() != number) {
            all.append(number);
        }
    }
    return all;
}

QList<qint64> positionsEvery(qint64 ms, qint64 durationMs)
{
    QList<qint64> all;
    for (qint64 position = 0; position < durationMs; position += ms) {
        all.append(position);
    }
    return all;
}

} // namespace

class SeriesRunnerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_givesTheFrameAtOrAfterEachPosition_data();
    void every_givesTheFrameAtOrAfterEachPosition();
    void numbers_giveTheseFrames_data() { addSamples(); }
    void numbers_giveTheseFrames();
    void keyFrames_areAllOfThem_data() { addSamples(); }
    void keyFrames_areAllOfThem();
    void lastFrame_comes_forEverySample_data() { addSamples(); }
    void lastFrame_comes_forEverySample();
    void scenes_beginWhereTheContentChanges();
    void numbersOfFrames_areTold_whenAskedFor();
    void missingFrames_areErrors_behindThePictures();
    void videos_comeInOrder_howeverManyLanesThereAre_data();
    void videos_comeInOrder_howeverManyLanesThereAre();
    void pictures_comeAll_withHardlyAnyMemory();
    void unneededTargets_areLeftOut();
    void encodedPictures_areThoseOfTheRecipe();
    void thumbnails_fitIntoTheirBounds();
    void brokenVideos_endWithAnError_andOthersGoOn();
    void vanishingVideos_failTheirPictures_andOthersGoOn();
    void cancelling_endsAtOnce_withoutAnotherPicture();
    void nothing_isTaken_whenCancelledBefore();
    void contentOfWaitingPictures_canBeStored();

private:
    static void addSamples();
};

void SeriesRunnerTest::addSamples()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void SeriesRunnerTest::every_givesTheFrameAtOrAfterEachPosition_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("everyMs");
    QTest::addColumn<int>("lanes");
    const QList<int> distances =
        testsupport::isSanitized ? QList<int>{170} : QList<int>{15, 170, 900};
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        for (const int ms : distances) {
            if (ms > 15 || !sample.has(Trait::Large)) {
                QTest::addRow("%s, %d ms", qPrintable(sample.file), ms)
                    << sample.file << ms << (ms == 170 ? 4 : 2);
            }
        }
    }
}

void SeriesRunnerTest::every_givesTheFrameAtOrAfterEachPosition()
{
    QFETCH(QString, file);
    QFETCH(int, everyMs);
    QFETCH(int, lanes);
    const Sample& sample = testsupport::sampleNamed(file);
    Record record;
    QVERIFY(series::run({jobFor(file, every(everyMs))}, record, neverCancelled, {lanes}));
    QCOMPARE(record.errors, QStringList{QString()});
    QCOMPARE(record.begun.size(), 1);
    const qint64 durationMs = record.begun.first().durationMs;
    QCOMPARE(numbersIn(record.pictures), expectedAt(sample, positionsEvery(everyMs, durationMs)));
}

void SeriesRunnerTest::numbers_giveTheseFrames()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    QList<int> frames;
    QStringList expected;
    for (int n = 0; n < sample.frames; n += 1 + n % 7) {
        frames.append(n);
        expected.append(QString::number(sample.firstNumber + n));
    }
    Record record;
    QVERIFY(series::run({jobFor(file, numbers(frames))}, record, neverCancelled, {2}));
    QCOMPARE(numbersIn(record.pictures), expected);
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(record.pictures.at(i).frame, std::optional<qint64>(frames.at(i)));
        QCOMPARE(record.pictures.at(i).timeMs,
                 std::optional<qint64>(testsupport::frameTimeMs(sample, frames.at(i))));
    }
}

void SeriesRunnerTest::keyFrames_areAllOfThem()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    if (sample.has(Trait::IntraRefresh)) {
        QSKIP("It has no whole pictures at its key packets.");
    }
    QStringList expected;
    for (const int frame : testsupport::keyFrames(sample)) {
        expected.append(QString::number(sample.firstNumber + frame));
    }
    Record record;
    QVERIFY(series::run({jobFor(file, ofKind(FramePositions::Kind::KeyFrames))}, record,
                        neverCancelled, {2}));
    QCOMPARE(numbersIn(record.pictures), expected);
}

void SeriesRunnerTest::lastFrame_comes_forEverySample()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FramePositions positions = ofKind(FramePositions::Kind::List);
    positions.list = {{FramePosition::Kind::Last}};
    Record record;
    QVERIFY(series::run({jobFor(file, positions)}, record, neverCancelled));
    QCOMPARE(numbersIn(record.pictures),
             QStringList{QString::number(sample.firstNumber + sample.frames - 1)});
}

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
    const testsupport::TestDir dir;
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
