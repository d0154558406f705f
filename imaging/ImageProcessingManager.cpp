#include "imaging/ImageProcessingManager.h"

#include "imaging/ImageFileWriter.h"
#include "imaging/QtOcv.h"
#include "imaging/ResizePlan.h"
#include "imaging/WatermarkManager.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>

#include <opencv2/imgproc.hpp>

#include <exception>
#include <limits>
#include <memory>
#include <new>

namespace {

constexpr float LoweringContrastDivisor = 200.0F;
constexpr float RaisingContrastDivisor = 40.0F;

/// A picture as a matrix, and the order of its channels.
///
/// Contrast, brightness and resizing treat all channels alike, so a picture goes through them in
/// whatever order it has: that spares the copies which reordering would cost.
struct Picture
{
    cv::Mat mat;
    QtOcv::MatColorOrder order = QtOcv::Bgr;

    /// The matrix's samples are its own, and not those of an image.
    [[nodiscard]] bool ownsSamples() const { return mat.u != nullptr; }
};

/// The image's pixels, shared with it where its format can be taken as it is.
Picture pictureOf(const QImage& image)
{
    Picture picture;
    picture.mat = QtOcv::imageToMat_shared(image, &picture.order);
    if (picture.mat.empty())
        picture.mat = QtOcv::imageToMat(image, CV_8UC(CV_CN_MAX), QtOcv::Bgr);
    return picture;
}

/// An image that keeps the matrix's samples alive instead of copying them.
QImage adoptedImage(const cv::Mat& mat, QImage::Format format)
{
    auto keeper = std::make_unique<cv::Mat>(mat);
    const QImage image(
        mat.data, mat.cols, mat.rows, static_cast<int>(mat.step[0]), format,
        [](void* owner) { delete static_cast<cv::Mat*>(owner); }, keeper.get());
    if (!image.isNull())
        static_cast<void>(keeper.release());
    return image;
}

/// An image of the picture that shares its pixels with nobody.
QImage imageOf(const Picture& picture)
{
    const cv::Mat& mat = picture.mat;
    // Qt's own images begin every line at a multiple of four bytes, and so shall ours.
    const bool isAdoptable = picture.ownsSamples() && mat.step[0] % 4 == 0;
    if (isAdoptable && mat.type() == CV_8UC4 && picture.order == QtOcv::Bgr)
        return adoptedImage(mat, QImage::Format_ARGB32);
    if (isAdoptable && mat.type() == CV_8UC3 && picture.order == QtOcv::Rgb)
        return adoptedImage(mat, QImage::Format_RGB888);
    return QtOcv::matToImage(mat, picture.order, QImage::Format_Invalid);
}

/// Every sample times the contrast's gain plus the brightness, saturated, in a matrix of its own.
cv::Mat adjusted(const cv::Mat& mat, int contrast, int brightness)
{
    const float divisor = contrast < 0 ? LoweringContrastDivisor : RaisingContrastDivisor;
    const float gain = static_cast<float>(contrast) / divisor + 1.0F;
    cv::Mat result;
    mat.convertTo(result, mat.type(), static_cast<double>(gain), brightness);
    return result;
}

/// Whether the sides, both above 0, make an image of less than 2 GiB.
bool isImageSize(cv::Size size, size_t bytesPerPixel)
{
    constexpr auto limit = static_cast<size_t>(std::numeric_limits<int>::max());
    return static_cast<size_t>(size.width) <=
           limit / bytesPerPixel / static_cast<size_t>(size.height);
}

bool isLackOfMemory(const std::exception& exception)
{
    const auto* const failure = dynamic_cast<const cv::Exception*>(&exception);
    return failure != nullptr ? failure->code == cv::Error::StsNoMem
                              : dynamic_cast<const std::bad_alloc*>(&exception) != nullptr;
}

WatermarkProfile* ownWatermark(const ImageProfile& profile)
{
    return qobject_cast<WatermarkProfile*>(
        WatermarkProfile::profileManager()->profileForId(profile.watermarkProfileId()));
}

WriteResult save(const QString& fileName, const QImage& image, const ImageProfile& imageProfile,
                 const FileNameProfile& fileNameProfile, ExistingFile existing)
{
    const QString type = fileNameProfile.fileOutputType().toLower();
    const bool isJpeg = type == QLatin1String("jpeg") || type == QLatin1String("jpg");
    const int quality = isJpeg ? imageProfile.imageQuality() : ImageFileWriter::DefaultQuality;
    return ImageFileWriter::write(fileName, image, quality, existing);
}

} // namespace

ImageProcessingManager* ImageProcessingManager::instance()
{
    static auto* const manager = new ImageProcessingManager;
    return manager;
}

QImage ImageProcessingManager::processImage(QImage image, ImageProfile* profile,
                                            WatermarkProfile* watermark, QString* error)
{
    QImage result;
    // What Qt has no memory for is a null image; OpenCV and the containers throw.
    QString reason = image.isNull() ? tr("There is no picture, perhaps for a lack of memory")
                                    : tr("Not enough memory");
    try {
        result = process(image, profile, watermark);
    } catch (const std::exception& exception) {
        if (!isLackOfMemory(exception))
            reason = QString::fromUtf8(exception.what()).trimmed();
    }
    if (error != nullptr)
        *error = result.isNull() ? reason : QString();
    return result;
}

QImage ImageProcessingManager::process(const QImage& image, ImageProfile* profile,
                                       WatermarkProfile* watermark)
{
    const bool keepsSize = profile->sameSizeAsVideo();
    const int width = keepsSize ? image.width() : profile->imageWidth();
    const int height = keepsSize ? image.height() : profile->imageHeight();
    const int contrast = profile->imageContrast();
    const int brightness = profile->imageBrightness();

    Picture picture = pictureOf(image);
    qDebug() << "Contrast: " << contrast << " Brightness: " << brightness;
    if (contrast != 0 || brightness != 0)
        picture.mat = adjusted(picture.mat, contrast, brightness);
    picture.mat = resizeImage(picture.mat, width, height, profile->maintainAspectRatio(), false);
    QImage result = imageOf(picture);

    if (watermark == nullptr)
        watermark = ownWatermark(*profile);
    return watermark != nullptr ? WatermarkManager::instance()->processImage(result, watermark)
                                : result;
}

cv::Mat ImageProcessingManager::resizeImage(cv::Mat mat, int width, int height,
                                            bool maintainAspectRatio, bool /*cropBlackEdges*/)
{
    const cv::Size target(width, height);
    if (mat.empty() || mat.size() == target || width <= 0 || height <= 0)
        return mat;
    const ResizePlan plan = maintainAspectRatio ? ResizePlan::fitting(mat.size(), target)
                                                : ResizePlan::filling(mat.size(), target);
    if (!isImageSize(plan.size, mat.elemSize()))
        return mat;
    cv::Mat resized;
    cv::resize(mat(plan.region), resized, plan.size, 0.0, 0.0, cv::INTER_AREA);
    return resized;
}

bool ImageProcessingManager::saveImage(QString fileName, QImage image, ImageProfile* imageProfile,
                                       FileNameProfile* fileNameProfile)
{
    return save(fileName, image, *imageProfile, *fileNameProfile, ExistingFile::Replace) ==
           WriteResult::Written;
}

WriteResult ImageProcessingManager::saveNewImage(const QString& fileName, const QImage& image,
                                                 ImageProfile* imageProfile,
                                                 FileNameProfile* fileNameProfile)
{
    return save(fileName, image, *imageProfile, *fileNameProfile, ExistingFile::Keep);
}

void ImageProcessingManager::setToClipboard(QImage image)
{
    QGuiApplication::clipboard()->setImage(image);
}
