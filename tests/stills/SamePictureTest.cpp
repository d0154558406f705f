#include "batch/BatchWorker.h"
#include "batch/BatchWorkerConfig.h"
#include "imaging/Rendering.h"
#include "product/ProductInfo.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/stills/StillsProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TaggedSample.h"
#include "tests/support/TestDir.h"
#include "video/FrameGrabber.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTest>

#include <memory>

using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

constexpr int quality = 77;
constexpr QSize smaller{101, 67};
const QString usual = QStringLiteral("auto");

/// Settings like the window's profiles; full size if the size is empty.
std::unique_ptr<ImageProfile> profileFor(const QSize& size, const QString& deinterlacing,
                                         const WatermarkProfile* mark)
{
    auto profile = std::make_unique<ImageProfile>();
    profile->setWatermarkProfileId(mark == nullptr ? QString() : mark->id());
    profile->setImageQuality(quality);
    profile->setDeinterlacing(deinterlacing);
    profile->setSameSizeAsVideo(size.isEmpty());
    if (!size.isEmpty()) {
        profile->setImageWidth(size.width());
        profile->setImageHeight(size.height());
        profile->setMaintainAspectRatio(true);
    }
    return profile;
}

/// The position to request for a file that is named by its time.
QString timeIn(const QString& file)
{
    const QStringList parts = file.split(QLatin1Char('.'));
    return QStringLiteral("%1:%2:%3.%4")
        .arg(parts.value(0), parts.value(1), parts.value(2), parts.value(3));
}

/// The only file in a folder.
QByteArray onlyContent(const QString& folder)
{
    const QStringList files = stillsprogram::filesIn(folder);
    QFile file(QDir(folder).filePath(files.value(0)));
    return files.size() == 1 && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray byStills(const QString& video, qint64 ms, const QSize& size,
                    const QString& deinterlacing = usual, const WatermarkProfile* mark = nullptr)
{
    const TestDir dir;
    QStringList arguments{video,
                          QStringLiteral("--at"),
                          QStringLiteral("%1ms").arg(ms),
                          QStringLiteral("--quality"),
                          QString::number(quality),
                          QStringLiteral("--deinterlace"),
                          deinterlacing,
                          QStringLiteral("-o"),
                          dir.path()};
    if (!size.isEmpty()) {
        arguments << QStringLiteral("--size")
                  << QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    }
    if (mark != nullptr) {
        arguments << QStringLiteral("--watermark") << mark->name();
    }
    return stillsprogram::run(arguments).succeeded() ? onlyContent(dir.path()) : QByteArray();
}

enum class Frames { Exact, Near };

QByteArray byBatchJob(const QString& video, qint64 ms, const QSize& size,
                      const QString& deinterlacing = usual, Frames frames = Frames::Exact,
                      const WatermarkProfile* mark = nullptr)
{
    const TestDir dir;
    const std::unique_ptr<ImageProfile> profile = profileFor(size, deinterlacing, mark);
    BatchWorkerConfig config;
    config.setSource(video);
    config.setFileOutputPath(dir.path());
    config.setExactFrames(frames == Frames::Exact);
    config.setImageProfile(profile.get());
    config.setIntervalType(BatchWorkerConfig::SingleShot);
    config.setIntervalSingleShot(BatchWorkerConfig::Front);
    config.setSkipFront(ms);
    config.setSkipBack(0);
    BatchWorker worker;
    worker.setConfig(&config);
    worker.run();
    return onlyContent(dir.path());
}

/// The result of the window for the frame on screen.
QByteArray bySnapshot(const QString& video, qint64 ms, const QSize& size,
                      const QString& deinterlacing = usual, const WatermarkProfile* mark = nullptr)
{
    const TestDir dir;
    const std::unique_ptr<ImageProfile> profile = profileFor(size, deinterlacing, mark);
    FrameGrabber grabber;
    grabber.setSource(video);
    grabber.setPrecision(0);
    grabber.setDeinterlacing(QtAV::deinterlacingNamed(deinterlacing));
    QtAV::VideoFrame frame;
    QObject::connect(&grabber, &FrameGrabber::frameExtracted, &grabber,
                     [&frame](const QtAV::VideoFrame& found) { frame = found; });
    grabber.extractInternal(ms);
    const QtAV::MediaFacts& facts = grabber.facts();
    const PictureSource source =
        PictureSource::of(video, facts.tags, facts.tickNumerator, facts.tickDenominator)
            .at(frame.timestamp(), frame.displaySize());
    const ImageRecipe recipe = recipes::of(*profile);
    const imaging::Rendering made = imaging::render(frame.toImage(frame.imageFormat()), recipe);
    const WriteResult result =
        imaging::save(dir.filePath(QStringLiteral("snapshot.jpeg")), made.image, recipe,
                      QStringLiteral("jpeg"), source, ExistingFile::Keep);
    return result == WriteResult::Written ? onlyContent(dir.path()) : QByteArray();
}

} // namespace

/// The same settings make the same file, whichever part of the program takes the frame.
class SamePictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stillsBatchJobsAndSnapshots_giveTheSameBytes_data();
    void stillsBatchJobsAndSnapshots_giveTheSameBytes();
    void metadata_isTheSame_whateverTookThePicture();
    void deinterlacing_isTheSame_forStillsBatchJobsAndSnapshots();
    void combingKeyFrames_areTheSame_byThemselvesAndByTheirTimes();
    void watermark_isTheSame_forStillsBatchJobsAndSnapshots_data();
    void watermark_isTheSame_forStillsBatchJobsAndSnapshots();
};

void SamePictureTest::stillsBatchJobsAndSnapshots_giveTheSameBytes_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    for (const char* const file :
         {"h264_bframes.mp4", "hevc_10bit.mkv", "vp9_alpha.webm", "mpeg2.ts", "mpeg4_bframes.avi",
          "turned_90_anamorphic.mp4", "h264_full_range.mp4", "variable_rate.mkv"}) {
        QTest::addRow("%s", file) << QString::fromLatin1(file) << QSize();
        QTest::addRow("%s, smaller", file) << QString::fromLatin1(file) << smaller;
    }
}

void SamePictureTest::stillsBatchJobsAndSnapshots_giveTheSameBytes()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);
    const Sample& sample = testsupport::sampleNamed(file);
    const QString video = samplePath(file);
    const qint64 ms = testsupport::frameTimeMs(sample, sample.frames / 2);
    const QByteArray bytes = byStills(video, ms, size);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(byBatchJob(video, ms, size) == bytes);
    QVERIFY(bySnapshot(video, ms, size) == bytes);
}

void SamePictureTest::metadata_isTheSame_whateverTookThePicture()
{
    const TestDir dir;
    const QString video = dir.filePath(QStringLiteral("tagged.mov"));
    QVERIFY(testsupport::tagSample(
        QStringLiteral("h264_bframes.mp4"), video,
        {QStringLiteral("com.apple.quicktime.creationdate=2024-05-06T12:34:56+0200"),
         QStringLiteral("com.apple.quicktime.location.ISO6709=+48.2+016.3/"),
         QStringLiteral("artist=Zoë")}));
    const QByteArray bytes = byStills(video, 1000, QSize());
    QVERIFY(bytes.contains("2024:05:06 12:34:57"));
    QVERIFY(byBatchJob(video, 1000, QSize()) == bytes);
    QVERIFY(bySnapshot(video, 1000, QSize()) == bytes);
}

/// A whole picture also depends on the previous frame, which is in another group of pictures.
void SamePictureTest::combingKeyFrames_areTheSame_byThemselvesAndByTheirTimes()
{
    for (const char* const name : {"fields_mpeg2_tff.ts", "fields_h264_tff.mp4"}) {
        const QString file = QString::fromLatin1(name);
        const TestDir dir;
        QVERIFY(stillsprogram::run({samplePath(file), QStringLiteral("--keyframes"),
                                    QStringLiteral("--names"), QStringLiteral("{time}"),
                                    QStringLiteral("--format"), QStringLiteral("png"),
                                    QStringLiteral("-o"), dir.path()})
                    .succeeded());
        const QStringList pictures = stillsprogram::filesIn(dir.path());
        QVERIFY(pictures.size() >= 2);
        for (const QString& picture : pictures) {
            const TestDir other;
            QVERIFY(stillsprogram::run({samplePath(file), QStringLiteral("--at"), timeIn(picture),
                                        QStringLiteral("--format"), QStringLiteral("png"),
                                        QStringLiteral("-o"), other.path()})
                        .succeeded());
            const QImage byTime = QImage::fromData(onlyContent(other.path()));
            QVERIFY(!byTime.isNull());
            QVERIFY2(byTime == QImage(dir.filePath(picture)), qPrintable(picture));
        }
    }
}

/// With a combing picture.
void SamePictureTest::deinterlacing_isTheSame_forStillsBatchJobsAndSnapshots()
{
    const QString video = samplePath(QStringLiteral("fields_mpeg2_tff.ts"));
    constexpr qint64 ms = 400;
    QMap<QString, QByteArray> exact;
    QMap<QString, QByteArray> near;
    for (const char* const name : {"auto", "on", "off"}) {
        const QString deinterlacing = QString::fromLatin1(name);
        const QByteArray bytes = byStills(video, ms, {}, deinterlacing);
        QVERIFY(!bytes.isEmpty());
        QVERIFY(byBatchJob(video, ms, {}, deinterlacing) == bytes);
        QVERIFY(bySnapshot(video, ms, {}, deinterlacing) == bytes);
        exact[deinterlacing] = bytes;
        near[deinterlacing] = byBatchJob(video, ms, {}, deinterlacing, Frames::Near);
        QVERIFY(!near[deinterlacing].isEmpty());
    }
    // The files record the requested position, so only the pictures are compared.
    for (const auto& outcome : {exact, near}) {
        const QImage automatic = QImage::fromData(outcome[QStringLiteral("auto")]);
        QVERIFY(!automatic.isNull());
        QVERIFY(automatic == QImage::fromData(outcome[QStringLiteral("on")]));
        QVERIFY(automatic != QImage::fromData(outcome[QStringLiteral("off")]));
    }
}

void SamePictureTest::watermark_isTheSame_forStillsBatchJobsAndSnapshots_data()
{
    QTest::addColumn<bool>("isText");
    QTest::addColumn<bool>("isRelative");
    QTest::newRow("text, relative") << true << true;
    QTest::newRow("text, own size") << true << false;
    QTest::newRow("picture, relative") << false << true;
}

/// The profile is read from its file, as for users.
void SamePictureTest::watermark_isTheSame_forStillsBatchJobsAndSnapshots()
{
    QFETCH(bool, isText);
    QFETCH(bool, isRelative);
    QCoreApplication::setOrganizationName(ProductInfo::name());
    QCoreApplication::setApplicationName(ProductInfo::name());
    const QString picture = QStringLiteral("mark.png");
    QImage mark(30, 20, QImage::Format_RGB32);
    mark.fill(Qt::magenta);
    QVERIFY(mark.save(WatermarkProfile::pathForImage(picture)));
    ProfileManager& manager = *WatermarkProfile::profileManager();
    auto* const profile = qobject_cast<WatermarkProfile*>(manager.createProfile());
    profile->setName(QString::fromLatin1(QTest::currentDataTag()));
    profile->setWatermarkType(isText ? 0 : 1);
    profile->setText(QStringLiteral("Harbour"));
    profile->setTextFont(QFont(QStringLiteral("DejaVu Sans"), 12));
    profile->setImageFile(picture);
    profile->setRelativeSize(isRelative);
    profile->setRelativeWidth(40);
    manager.addProfile(profile);
    manager.saveProfiles();

    const QString video = samplePath(QStringLiteral("h264_bframes.mp4"));
    for (const QSize& size : {QSize(), smaller}) {
        const QByteArray bytes = byStills(video, 1000, size, usual, profile);
        QVERIFY(!bytes.isEmpty());
        QVERIFY(bytes != byStills(video, 1000, size));
        QVERIFY(byBatchJob(video, 1000, size, usual, Frames::Exact, profile) == bytes);
        QVERIFY(bySnapshot(video, 1000, size, usual, profile) == bytes);
    }
}

QTEST_MAIN(SamePictureTest)
#include "SamePictureTest.moc"
