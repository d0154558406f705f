#include "batch/BatchWorker.h"

#include "batch/BatchWorkerConfig.h"
#include "tests/batch/WorkerEvents.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "video/FrameGrabber.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>

using testsupport::MemoryLimit;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

const QString savingBase = QStringLiteral("h264_gop250");

/// Enough for decoding, and not for an image of 25000 by 25000 pixels.
constexpr rlim_t roomBytes = 512 * 1024 * 1024;

struct SavingJob
{
    explicit SavingJob(const QString& folder)
        : worker(nullptr)
        , events(worker)
    {
        config.setSource(samplePath(savingBase + QStringLiteral(".mp4")));
        config.setFileOutputPath(folder);
        worker.setConfig(&config);
    }

    FrameGrabber* grabber() const { return worker.findChild<FrameGrabber*>(); }

    BatchWorkerConfig config;
    BatchWorker worker;
    WorkerEvents events;
};

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Names of everything in the folder, hidden files too.
QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QString numbered(const char* suffix)
{
    return savingBase + QString::fromLatin1(suffix);
}

int numberIn(const QString& path)
{
    return testsupport::frameNumber(QImage(path)).value_or(-1);
}

int brightestLevel(const QImage& image)
{
    int brightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            brightest = std::max(brightest, qGray(image.pixel(x, y)));
        }
    }
    return brightest;
}

} // namespace

class BatchWorkerSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void images_showTheFramesAtTheirPositions();
    void images_areNamedByTheProfile();
    void darkImages_stayOpaque_whenTheVideoHasNoAlpha();
    void images_keepAlpha_whenTheVideoHasIt();
    void existingFiles_areSkipped_andKept();
    void singleShot_hasNoNumber();
    void singleShot_isNumbered_whenItsNameIsTaken();
    void names_takenAtTheSameMoment_areSkipped_andKept();
    void singleShotName_takenAtTheSameMoment_isSkipped();
    void failedSave_isAnError_andTheJobGoesOn_data();
    void failedSave_isAnError_andTheJobGoesOn();
    void imageBeyondTheMemory_isAnError_andTheJobGoesOn();
    void frameBeyondTheMemory_isAnError_andNoFile();
    void missingPicture_isAnError_andNoFile();
};

void BatchWorkerSavingTest::initTestCase()
{
    MemoryLimit::prepare();
}

/// A key frame every ten seconds, 25 frames a second.
void BatchWorkerSavingTest::images_showTheFramesAtTheirPositions()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.worker.run();
    const QStringList expected{numbered("-00001.jpeg"), numbered("-00002.jpeg"),
                               numbered("-00003.jpeg"), numbered("-00004.jpeg")};
    QCOMPARE(filesIn(dir.path()), expected);
    QList<int> numbers;
    for (const QString& name : expected) {
        numbers.append(numberIn(dir.filePath(name)));
    }
    QCOMPARE(numbers, (QList<int>{50, 175, 300, 425}));
}

void BatchWorkerSavingTest::images_areNamedByTheProfile()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SpreadImages);
    job.config.setIntervalImages(2);
    job.config.filenameProfile()->setFileOutputPrefix(QStringLiteral("a "));
    job.config.filenameProfile()->setFileOutputSuffix(QStringLiteral("_"));
    job.config.filenameProfile()->setFileOutputType(QStringLiteral("png"));
    job.worker.run();
    const QStringList expected{QStringLiteral("a h264_gop250_00001.png"),
                               QStringLiteral("a h264_gop250_00002.png")};
    QCOMPARE(filesIn(dir.path()), expected);
}

void BatchWorkerSavingTest::darkImages_stayOpaque_whenTheVideoHasNoAlpha()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.config.imageProfile()->setImageBrightness(-50);
    job.config.filenameProfile()->setFileOutputType(QStringLiteral("png"));
    job.worker.run();
    const QImage image(dir.filePath(numbered("-.png")));
    QVERIFY(!image.isNull());
    QVERIFY(!image.hasAlphaChannel());
    // The blocks of the number are white.
    QCOMPARE(numberIn(dir.filePath(numbered("-.png"))), 210);
    QCOMPARE(brightestLevel(image), 205);
}

void BatchWorkerSavingTest::images_keepAlpha_whenTheVideoHasIt()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setSource(samplePath(QStringLiteral("prores_alpha.mov")));
    job.config.setFileOutputPath(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.config.filenameProfile()->setFileOutputType(QStringLiteral("png"));
    job.worker.run();
    const QImage image(dir.filePath(QStringLiteral("prores_alpha-.png")));
    QVERIFY(image.hasAlphaChannel());
    QVERIFY(qAlpha(image.pixel(image.width() / 4, image.height() - 10)) < 16);
}

void BatchWorkerSavingTest::existingFiles_areSkipped_andKept()
{
    const TestDir dir;
    const QStringList taken{dir.filePath(numbered("-00001.jpeg")),
                            dir.filePath(numbered("-00002.jpeg")),
                            dir.filePath(numbered("-00004.jpeg"))};
    for (const QString& path : taken) {
        writeFile(path, "mine");
    }
    SavingJob job(dir.path());
    job.config.setIntervalMilliseconds(10000);
    job.worker.run();
    const QStringList expected{QStringLiteral("Saving: ") + dir.filePath(numbered("-00003.jpeg")),
                               QStringLiteral("Saving: ") + dir.filePath(numbered("-00005.jpeg"))};
    QCOMPARE(job.events.of(QStringLiteral("status")), expected);
    QCOMPARE(numberIn(dir.filePath(numbered("-00003.jpeg"))), 50);
    QCOMPARE(numberIn(dir.filePath(numbered("-00005.jpeg"))), 300);
    for (const QString& path : taken) {
        QCOMPARE(contentOf(path), QByteArray("mine"));
    }
}

void BatchWorkerSavingTest::singleShot_hasNoNumber()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.worker.run();
    QCOMPARE(filesIn(dir.path()), QStringList{numbered("-.jpeg")});
    // Half of 20800 - 4000 ms: frame 210.
    QCOMPARE(numberIn(dir.filePath(numbered("-.jpeg"))), 210);
}

void BatchWorkerSavingTest::singleShot_isNumbered_whenItsNameIsTaken()
{
    const TestDir dir;
    writeFile(dir.filePath(numbered("-.jpeg")), "mine");
    writeFile(dir.filePath(numbered("-00001.jpeg")), "mine");
    SavingJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    job.worker.run();
    QCOMPARE(numberIn(dir.filePath(numbered("-00002.jpeg"))), 210);
    QCOMPARE(filesIn(dir.path()).size(), 3);
}

/// Another program takes the first three names after the worker saw that they were free.
void BatchWorkerSavingTest::names_takenAtTheSameMoment_areSkipped_andKept()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalMilliseconds(20000);
    int taken = 0;
    connect(&job.worker, &BatchWorker::statusUpdate, &job.worker,
            [&taken](BatchWorker*, const QString& message) {
                if (taken < 3) {
                    ++taken;
                    writeFile(message.mid(8), "theirs");
                }
            });
    job.worker.run();
    QCOMPARE(job.events.of(QStringLiteral("status")).size(), 4);
    QCOMPARE(job.events.of(QStringLiteral("image")).size(), 1);
    QVERIFY(job.events.of(QStringLiteral("error")).isEmpty());
    QCOMPARE(contentOf(dir.filePath(numbered("-00001.jpeg"))), QByteArray("theirs"));
    QCOMPARE(contentOf(dir.filePath(numbered("-00003.jpeg"))), QByteArray("theirs"));
    QCOMPARE(numberIn(dir.filePath(numbered("-00004.jpeg"))), 50);
    QCOMPARE(filesIn(dir.path()).size(), 4);
}

void BatchWorkerSavingTest::singleShotName_takenAtTheSameMoment_isSkipped()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalType(BatchWorkerConfig::SingleShot);
    bool isTaken = false;
    connect(&job.worker, &BatchWorker::statusUpdate, &job.worker,
            [&isTaken](BatchWorker*, const QString& message) {
                if (!isTaken) {
                    isTaken = true;
                    writeFile(message.mid(8), "theirs");
                }
            });
    job.worker.run();
    QCOMPARE(contentOf(dir.filePath(numbered("-.jpeg"))), QByteArray("theirs"));
    QCOMPARE(numberIn(dir.filePath(numbered("-00001.jpeg"))), 210);
}

void BatchWorkerSavingTest::failedSave_isAnError_andTheJobGoesOn_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("type");
    QTest::newRow("missing folder") << "missing"
                                    << "jpeg";
    QTest::newRow("a file for a folder") << "file"
                                         << "jpeg";
    QTest::newRow("unknown type") << "."
                                  << "xyz";
    QTest::newRow("no type") << "."
                             << "";
}

void BatchWorkerSavingTest::failedSave_isAnError_andTheJobGoesOn()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, type);
    const TestDir dir;
    const TestDir files;
    writeFile(files.filePath(QStringLiteral("file")), "mine");
    SavingJob job(folder == QLatin1String(".") ? dir.path() : files.filePath(folder));
    job.config.setIntervalMilliseconds(10000);
    job.config.filenameProfile()->setFileOutputType(type);
    job.worker.run();
    const auto failure = [&job](int counter) {
        return QStringLiteral("Could not save ") +
               job.config.outputDir().filePath(job.config.filenameForCounter(counter));
    };
    QCOMPARE(job.events.of(QStringLiteral("error")), (QStringList{failure(1), failure(2)}));
    QVERIFY(job.events.of(QStringLiteral("image")).isEmpty());
    QCOMPARE(job.events.all.last(), QStringLiteral("progress 1.0000"));
    QVERIFY(filesIn(dir.path()).isEmpty());
    QCOMPARE(filesIn(files.path()), QStringList{QStringLiteral("file")});
}

void BatchWorkerSavingTest::imageBeyondTheMemory_isAnError_andTheJobGoesOn()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    const TestDir dir;
    SavingJob job(dir.path());
    job.config.setIntervalMilliseconds(10000);
    ImageProfile& profile = *job.config.imageProfile();
    profile.setImageWidth(25000);
    profile.setImageHeight(25000);
    connect(&job.worker, &BatchWorker::statusUpdate, &job.worker,
            [&profile](BatchWorker*, const QString&, BatchWorker::BatchStatusMessageType type) {
                if (type == BatchWorker::Error) {
                    profile.setImageWidth(320);
                    profile.setImageHeight(240);
                }
            });
    {
        const MemoryLimit limit(roomBytes);
        job.worker.run();
    }
    QCOMPARE(job.events.of(QStringLiteral("error")),
             QStringList{QStringLiteral("Could not make %1 from 2 s: Not enough memory")
                             .arg(dir.filePath(numbered("-00001.jpeg")))});
    QCOMPARE(filesIn(dir.path()), QStringList{numbered("-00002.jpeg")});
    QCOMPARE(numberIn(dir.filePath(numbered("-00002.jpeg"))), 300);
    QCOMPARE(job.events.all.last(), QStringLiteral("progress 1.0000"));
}

void BatchWorkerSavingTest::frameBeyondTheMemory_isAnError_andNoFile()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    const TestDir dir;
    SavingJob job(dir.path());
    QtAV::VideoFrame frame;
    FrameGrabber grabber;
    connect(&grabber, &FrameGrabber::frameExtracted, this,
            [&frame](const QtAV::VideoFrame& extracted) { frame = extracted; });
    grabber.setSource(samplePath(QStringLiteral("h264_2160p.mp4")));
    grabber.extractInternal(0);
    QVERIFY(frame.isValid());
    job.grabber()->setPosition(1500);
    {
        const MemoryLimit limit(1024 * 1024);
        Q_EMIT job.grabber()->frameExtracted(frame);
    }
    QCOMPARE(job.events.of(QStringLiteral("error")),
             QStringList{QStringLiteral("Could not make %1 from 1.5 s: There is no picture, "
                                        "perhaps for a lack of memory")
                             .arg(dir.filePath(numbered("-00001.jpeg")))});
    QVERIFY(filesIn(dir.path()).isEmpty());
}

void BatchWorkerSavingTest::missingPicture_isAnError_andNoFile()
{
    const TestDir dir;
    SavingJob job(dir.path());
    job.grabber()->setPosition(2000);
    Q_EMIT job.grabber()->frameExtracted(QtAV::VideoFrame());
    QCOMPARE(job.events.all,
             QStringList{QStringLiteral("error Frame extraction error no picture found at 2 s")});
    QVERIFY(filesIn(dir.path()).isEmpty());
}

QTEST_MAIN(BatchWorkerSavingTest)
#include "BatchWorkerSavingTest.moc"
