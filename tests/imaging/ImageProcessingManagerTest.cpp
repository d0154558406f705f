#include "imaging/ImageProcessingManager.h"

#include "imaging/QtOcv.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/ResourceLimits.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <opencv2/imgproc.hpp>

#include <memory>

using testsupport::MemoryLimit;

namespace {

QImage randomImage(const QSize& size, QImage::Format format = QImage::Format_ARGB32)
{
    QRandomGenerator generator(42);
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, generator.generate());
        }
    }
    return image.convertToFormat(format);
}

QImage filledImage(QRgb color, const QSize& size = QSize(8, 6))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

ImageProcessingManager& manager()
{
    return *ImageProcessingManager::instance();
}

void setSize(ImageProfile& profile, const QSize& size)
{
    profile.setImageWidth(size.width());
    profile.setImageHeight(size.height());
}

/// The pipeline step by step, with a copy after each.
QImage plainResult(const QImage& image, const ImageProfile& profile, const QSize& size)
{
    cv::Mat mat = QtOcv::imageToMat(image, -8, QtOcv::Bgr);
    const int contrast = profile.imageContrast();
    if (contrast != 0 || profile.imageBrightness() != 0) {
        const double gain =
            static_cast<double>(static_cast<float>(contrast) / (contrast < 0 ? 200.0F : 40.0F)) +
            1.0;
        mat.convertTo(mat, mat.type(), gain, profile.imageBrightness());
    }
    if (mat.cols != size.width() || mat.rows != size.height()) {
        cv::resize(mat, mat, cv::Size(size.width(), size.height()), 0, 0, cv::INTER_AREA);
    }
    return QtOcv::matToImage(mat, QtOcv::Bgr, QImage::Format_Invalid);
}

QString lastMessage;

void rememberMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    lastMessage = message;
}

} // namespace

class ImageProcessingManagerTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    [[nodiscard]] qint64 savedSize(const char* name, const char* type, int quality) const
    {
        ImageProfile imageProfile(nullptr);
        imageProfile.setImageQuality(quality);
        FileNameProfile nameProfile(nullptr);
        nameProfile.setFileOutputType(QLatin1String(type));
        const QImage image = randomImage(QSize(64, 64));
        return manager().saveImage(path(name), image, &imageProfile, &nameProfile)
                   ? QFileInfo(path(name)).size()
                   : -1;
    }

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        MemoryLimit::prepare();
    }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder->setAutoRemove(!QTest::currentTestFailed()); }

    void instance_isAlwaysTheSame()
    {
        QVERIFY(ImageProcessingManager::instance() != nullptr);
        QCOMPARE(ImageProcessingManager::instance(), ImageProcessingManager::instance());
    }

    void process_adjustsEverySample_data()
    {
        QTest::addColumn<int>("contrast");
        QTest::addColumn<int>("brightness");
        QTest::addColumn<QRgb>("expected");
        // Of red 100, green 40, blue 0, alpha 200.
        QTest::newRow("nothing") << 0 << 0 << qRgba(100, 40, 0, 200);
        QTest::newRow("contrast -100 halves") << -100 << 0 << qRgba(50, 20, 0, 100);
        QTest::newRow("contrast -200 blackens") << -200 << 0 << qRgba(0, 0, 0, 0);
        QTest::newRow("contrast 20") << 20 << 0 << qRgba(150, 60, 0, 255);
        QTest::newRow("contrast 40 doubles") << 40 << 0 << qRgba(200, 80, 0, 255);
        QTest::newRow("contrast 100") << 100 << 0 << qRgba(255, 140, 0, 255);
        QTest::newRow("brightness 30") << 0 << 30 << qRgba(130, 70, 30, 230);
        QTest::newRow("brightness -50") << 0 << -50 << qRgba(50, 0, 0, 150);
        QTest::newRow("brightness 300") << 0 << 300 << qRgba(255, 255, 255, 255);
        QTest::newRow("contrast before brightness") << -100 << 10 << qRgba(60, 30, 10, 110);
    }
    void process_adjustsEverySample()
    {
        QFETCH(int, contrast);
        QFETCH(int, brightness);
        ImageProfile profile(nullptr);
        profile.setSameSizeAsVideo(true);
        profile.setImageContrast(contrast);
        profile.setImageBrightness(brightness);
        const QImage image = filledImage(qRgba(100, 40, 0, 200));
        const QImage result = manager().processImage(image, &profile, nullptr);
        QCOMPARE(result.format(), QImage::Format_ARGB32);
        QTEST(result.pixel(7, 5), "expected");
        QCOMPARE(image, filledImage(qRgba(100, 40, 0, 200)));
    }

    void process_lowersAlpha_whenTheFrameIsOpaque()
    {
        ImageProfile profile(nullptr);
        profile.setImageBrightness(-50);
        const QImage result =
            manager().processImage(filledImage(qRgb(100, 100, 100)), &profile, nullptr);
        QCOMPARE(result.pixel(0, 0), qRgba(50, 50, 50, 205));
    }

    void process_isTheSameToTheByte_whateverIsShared_data()
    {
        QTest::addColumn<QImage::Format>("format");
        QTest::addColumn<int>("contrast");
        QTest::addColumn<QSize>("size");
        for (const auto format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
              QImage::Format_RGB888, QImage::Format_RGBX8888, QImage::Format_RGBA8888,
              QImage::Format_RGBA8888_Premultiplied, QImage::Format_Grayscale8,
              QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_RGB16,
              QImage::Format_RGBA64}) {
            for (const int contrast : {0, -37, 13}) {
                for (const QSize size :
                     {QSize(97, 61), QSize(40, 30), QSize(33, 21), QSize(200, 150)}) {
                    QTest::addRow("%d, contrast %d, %dx%d", format, contrast, size.width(),
                                  size.height())
                        << format << contrast << size;
                }
            }
        }
    }
    void process_isTheSameToTheByte_whateverIsShared()
    {
        QFETCH(QImage::Format, format);
        QFETCH(int, contrast);
        QFETCH(QSize, size);
        ImageProfile profile(nullptr);
        setSize(profile, size);
        profile.setImageContrast(contrast);
        const QImage image = randomImage(QSize(97, 61), format);
        const QImage before = image.copy();
        // Bounds with the same ratio, so that only the scaling is compared.
        const cv::Mat fitted = manager().resizeImage(cv::Mat(61, 97, CV_8UC1, cv::Scalar(0)),
                                                     size.width(), size.height(), true, false);
        const QImage result = manager().processImage(image, &profile, nullptr);
        const QImage expected = plainResult(image, profile, QSize(fitted.cols, fitted.rows));
        QCOMPARE(result.format(), expected.format());
        QCOMPARE(result.bytesPerLine(), expected.bytesPerLine());
        QCOMPARE(result, expected);
        QCOMPARE(image, before);
        QVERIFY(result.constBits() != image.constBits());
    }

    void process_keepsTheSize_whenItIsTheVideos()
    {
        ImageProfile profile(nullptr);
        profile.setSameSizeAsVideo(true);
        setSize(profile, QSize(10, 10));
        const QImage image = randomImage(QSize(33, 21));
        QCOMPARE(manager().processImage(image, &profile, nullptr), image);
    }

    void process_keepsTheSize_whenTheProfilesIsNone_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("zero") << QSize(0, 0);
        QTest::newRow("no width") << QSize(0, 100);
        QTest::newRow("negative") << QSize(100, -5);
        QTest::newRow("huge") << QSize(2000000000, 2000000000);
    }
    void process_keepsTheSize_whenTheProfilesIsNone()
    {
        QFETCH(QSize, size);
        const QImage image = randomImage(QSize(33, 21));
        for (const bool keepsRatio : {true, false}) {
            ImageProfile profile(nullptr);
            setSize(profile, size);
            profile.setMaintainAspectRatio(keepsRatio);
            QCOMPARE(manager().processImage(image, &profile, nullptr), image);
        }
    }

    void process_isNull_forANullImage()
    {
        for (const int contrast : {0, 10}) {
            ImageProfile profile(nullptr);
            profile.setImageContrast(contrast);
            QVERIFY(manager().processImage(QImage(), &profile, nullptr).isNull());
        }
    }

    void process_saysWhyThereIsNoImage()
    {
        ImageProfile profile(nullptr);
        QString error;
        static_cast<void>(manager().processImage(QImage(), &profile, nullptr, &error));
        QCOMPARE(error, QStringLiteral("There is no picture, perhaps for a lack of memory"));
        static_cast<void>(manager().processImage(filledImage(0), &profile, nullptr, &error));
        QCOMPARE(error, QString());
    }

    void process_failsWithoutException_whenMemoryRunsOut_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("brightness");
        QTest::addColumn<QImage::Format>("format");
        QTest::newRow("absurd size") << QSize(25000, 25000) << 0 << QImage::Format_RGB888;
        QTest::newRow("brighter") << QSize(4000, 3000) << 10 << QImage::Format_RGB888;
        QTest::newRow("copied") << QSize(4000, 3000) << 0 << QImage::Format_RGB888;
        QTest::newRow("converted") << QSize(4000, 3000) << 0 << QImage::Format_RGBA8888;
    }
    void process_failsWithoutException_whenMemoryRunsOut()
    {
        if (!MemoryLimit::isPossible()) {
            QSKIP("Memory cannot be limited here.");
        }
        QFETCH(QSize, size);
        QFETCH(int, brightness);
        QFETCH(QImage::Format, format);
        ImageProfile profile(nullptr);
        setSize(profile, size);
        profile.setImageBrightness(brightness);
        QImage image(4000, 3000, format);
        image.fill(Qt::darkGreen);
        QString error;
        QImage result = image;
        {
            const MemoryLimit limit(16 * 1024 * 1024);
            result = manager().processImage(image, &profile, nullptr, &error);
        }
        QVERIFY(result.isNull());
        QCOMPARE(error, QStringLiteral("Not enough memory"));
    }

    void process_givesTheImageOrNone_howeverLittleMemoryThereIs()
    {
        if (!MemoryLimit::isPossible()) {
            QSKIP("Memory cannot be limited here.");
        }
        ImageProfile profile(nullptr);
        setSize(profile, QSize(2400, 1800));
        profile.setImageContrast(3);
        QImage image(1600, 1200, QImage::Format_RGB888);
        image.fill(Qt::darkGreen);
        WatermarkProfile mark(nullptr);
        mark.setText(QStringLiteral("Hello"));
        const QImage expected = manager().processImage(image, &profile, &mark);
        int failures = 0;
        for (rlim_t mebibytes = 1; mebibytes < 64; mebibytes += 2) {
            QString error;
            QImage result;
            {
                const MemoryLimit limit(mebibytes * 1024 * 1024);
                result = manager().processImage(image, &profile, &mark, &error);
            }
            QCOMPARE(result.isNull(), !error.isEmpty());
            QVERIFY(result.isNull() || result == expected);
            failures += result.isNull() ? 1 : 0;
        }
        QVERIFY(failures > 0 && failures < 32);
    }

    void process_cropsNoBlackEdges()
    {
        ImageProfile profile(nullptr);
        profile.setSameSizeAsVideo(true);
        profile.setCropBlackEdges(true);
        const QImage black = filledImage(qRgb(0, 0, 0));
        QCOMPARE(manager().processImage(black, &profile, nullptr), black);
    }

    void process_logsItsAdjustments()
    {
        ImageProfile profile(nullptr);
        profile.setImageContrast(-12);
        profile.setImageBrightness(34);
        const auto before = qInstallMessageHandler(rememberMessage);
        static_cast<void>(manager().processImage(filledImage(0), &profile, nullptr));
        qInstallMessageHandler(before);
        QCOMPARE(lastMessage, QStringLiteral("Contrast:  -12  Brightness:  34"));
    }

    void process_drawsTheWatermark_afterResizing()
    {
        QImage picture(10, 10, QImage::Format_RGB32);
        picture.fill(Qt::white);
        const QString name = QStringLiteral("square.png");
        QVERIFY(picture.save(WatermarkProfile::pathForImage(name)));
        // The managers own their profiles and live as long as the process.
        auto* const own = new WatermarkProfile(nullptr);
        own->setWatermarkType(1);
        own->setImageFile(name);
        own->setAlignmentIndex(0);
        WatermarkProfile::profileManager()->addProfile(own);
        WatermarkProfile given(nullptr);
        given.setWatermarkType(1);
        given.setImageFile(name);
        given.setAlignmentIndex(8);

        ImageProfile profile(nullptr);
        setSize(profile, QSize(160, 120));
        const QImage frame = filledImage(qRgb(0, 0, 0), QSize(640, 480));
        const QRgb white = qRgb(255, 255, 255);
        const QRgb black = qRgb(0, 0, 0);

        const QImage none = manager().processImage(frame, &profile, nullptr);
        QCOMPARE(none, filledImage(black, QSize(160, 120)));

        profile.setWatermarkProfileId(own->id().toLower());
        const QImage withOwn = manager().processImage(frame, &profile, nullptr);
        QCOMPARE(withOwn.pixel(15, 15), white);
        QCOMPARE(withOwn.pixel(24, 24), white);
        QCOMPARE(withOwn.pixel(25, 25), black);

        const QImage withGiven = manager().processImage(frame, &profile, &given);
        QCOMPARE(withGiven.pixel(15, 15), black);
        QCOMPARE(withGiven.pixel(144, 104), white);

        profile.setWatermarkProfileId(profile.id());
        QCOMPARE(manager().processImage(frame, &profile, nullptr), none);
        QCOMPARE(frame, filledImage(black, QSize(640, 480)));
    }

    void resize_sharesTheMatrix_whenItHasTheSize()
    {
        const cv::Mat mat(6, 8, CV_8UC4, cv::Scalar::all(1));
        QVERIFY(manager().resizeImage(mat, 8, 6, true, true).data == mat.data);
        QVERIFY(manager().resizeImage(mat, 8, 6, false, false).data == mat.data);
        QVERIFY(manager().resizeImage(cv::Mat(), 8, 6, false, false).empty());
    }

    void resize_fits_whenTheRatioIsKept()
    {
        const cv::Mat mat(1080, 1920, CV_8UC3, cv::Scalar(1, 2, 3));
        const cv::Mat result = manager().resizeImage(mat, 1000, 1000, true, false);
        QCOMPARE(QSize(result.cols, result.rows), QSize(1000, 562));
    }

    void resize_fits_whenOnlyTheBoundsAreTooLargeForAnImage()
    {
        const cv::Mat mat(720, 1280, CV_8UC4, cv::Scalar(1, 2, 3, 4));
        const cv::Mat result = manager().resizeImage(mat, 640, 999999, true, false);
        QCOMPARE(QSize(result.cols, result.rows), QSize(640, 360));
        // Cropping to these bounds would fill the memory.
        QVERIFY(manager().resizeImage(mat, 640, 999999, false, false).data == mat.data);
    }

    void resize_takesTheMiddle_whenTheRatioIsNotKept()
    {
        cv::Mat mat(1080, 1920, CV_8UC3, cv::Scalar::all(9));
        mat(cv::Rect(420, 0, 1080, 1080)).setTo(cv::Scalar::all(200));
        const cv::Mat result = manager().resizeImage(mat, 1000, 1000, false, false);
        QCOMPARE(QSize(result.cols, result.rows), QSize(1000, 1000));
        QCOMPARE(cv::countNonZero(result.reshape(1) != 200), 0);
    }

    void resize_averagesAreas_bothWays()
    {
        cv::Mat mat(2, 2, CV_8UC1);
        mat.at<uchar>(0, 0) = 0;
        mat.at<uchar>(0, 1) = 100;
        mat.at<uchar>(1, 0) = 100;
        mat.at<uchar>(1, 1) = 200;
        QCOMPARE(int(manager().resizeImage(mat, 1, 1, true, false).at<uchar>(0, 0)), 100);
        // Enlarged by a whole factor, every pixel becomes a uniform block.
        const cv::Mat large = manager().resizeImage(mat, 4, 4, true, false);
        for (int y = 0; y < 4; ++y) {
            for (int x = 0; x < 4; ++x) {
                QCOMPARE(large.at<uchar>(y, x), mat.at<uchar>(y / 2, x / 2));
            }
        }
    }

    void save_takesTheFormatFromTheName_andTheQualityFromTheProfile()
    {
        QVERIFY(savedSize("low.jpg", "jpg", 5) < savedSize("high.jpg", "jpg", 95));
        QVERIFY(savedSize("low.JPG", "JPG", 5) < savedSize("high.JPG", "JPG", 95));
        QVERIFY(savedSize("low.jpeg", "Jpeg", 5) < savedSize("high.jpeg", "jpEG", 95));
        // Another type uses the format's default quality, whatever the name says.
        QCOMPARE(savedSize("low2.jpg", "png", 5), savedSize("high2.jpg", "png", 95));
        QCOMPARE(savedSize("low.png", "png", 5), savedSize("high.png", "png", 95));
        QCOMPARE(QImageReader::imageFormat(path("low2.jpg")), QByteArray("jpeg"));
        QCOMPARE(QImageReader::imageFormat(path("low.png")), QByteArray("png"));
    }

    void save_isFalse_whenNothingIsWritten()
    {
        ImageProfile imageProfile(nullptr);
        FileNameProfile nameProfile(nullptr);
        const QImage image = filledImage(qRgb(1, 2, 3));
        QVERIFY(!manager().saveImage(path("a.xyz"), image, &imageProfile, &nameProfile));
        QVERIFY(!manager().saveImage(path("no/a.jpg"), image, &imageProfile, &nameProfile));
        QVERIFY(!manager().saveImage(path("a.jpg"), QImage(), &imageProfile, &nameProfile));
        QVERIFY(QDir(m_folder->path()).isEmpty(QDir::Files | QDir::Hidden));
    }

    void save_replaces_butSaveNewKeeps()
    {
        ImageProfile imageProfile(nullptr);
        FileNameProfile nameProfile(nullptr);
        nameProfile.setFileOutputType(QStringLiteral("png"));
        const QImage first = filledImage(qRgb(1, 2, 3));
        const QImage second = filledImage(qRgb(4, 5, 6));
        const QString file = path("a.png");
        QCOMPARE(manager().saveNewImage(file, first, &imageProfile, &nameProfile),
                 WriteResult::Written);
        QCOMPARE(manager().saveNewImage(file, second, &imageProfile, &nameProfile),
                 WriteResult::AlreadyExists);
        QCOMPARE(QImage(file).pixel(0, 0), first.pixel(0, 0));
        QVERIFY(manager().saveImage(file, second, &imageProfile, &nameProfile));
        QCOMPARE(QImage(file).pixel(0, 0), second.pixel(0, 0));
        QCOMPARE(manager().saveNewImage(path("a.xyz"), first, &imageProfile, &nameProfile),
                 WriteResult::Failed);
    }

    void clipboard_holdsTheImage()
    {
        const QImage image = filledImage(qRgb(1, 2, 3));
        manager().setToClipboard(image);
        QCOMPARE(QGuiApplication::clipboard()->image().pixel(7, 5), image.pixel(7, 5));
    }
};

QTEST_MAIN(ImageProcessingManagerTest)
#include "ImageProcessingManagerTest.moc"
