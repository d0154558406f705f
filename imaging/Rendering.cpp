#include "imaging/Rendering.h"

#include "imaging/HdrColours.h"
#include "imaging/ImageFileWriter.h"
#include "imaging/ImageFormats.h"
#include "imaging/Metadata.h"
#include "imaging/QtOcv.h"
#include "imaging/Resizing.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <exception>
#include <memory>
#include <new>
#include <utility>

namespace {

constexpr float loweringContrastDivisor = 200.0F;
constexpr float raisingContrastDivisor = 40.0F;

/// 96 per inch. Otherwise Qt uses the screen's resolution: the file and the size of text would
/// depend on the screen.
constexpr int dotsPerMeter = 3780;

/// A picture as a matrix, and the order of its channels.
///
/// Contrast, brightness and resizing treat all channels alike, so a picture keeps its order of
/// channels, which saves copies.
struct Picture
{
    cv::Mat mat;
    QtOcv::MatColorOrder order = QtOcv::Bgr;

    /// Whether the matrix owns its samples instead of sharing those of an image.
    [[nodiscard]] bool ownsSamples() const { return mat.u != nullptr; }
};

constexpr int bytesOfDeepPixel = 8;

bool isDeep(QImage::Format format)
{
    return format == QImage::Format_RGBX64 || format == QImage::Format_RGBA64 ||
           format == QImage::Format_RGBA64_Premultiplied;
}

/// The image with the depth that the recipe needs: 8 bits, or 16 if the image has them.
QImage withDepth(QImage image, const ImageRecipe& recipe)
{
    if (!isDeep(image.format())) {
        return image;
    }
    const bool hasAlpha = image.hasAlphaChannel();
    if (recipe.keepsDeepColours || HdrColours::of(image)) {
        return std::move(image).convertToFormat(hasAlpha ? QImage::Format_RGBA64
                                                         : QImage::Format_RGBX64);
    }
    return std::move(image).convertToFormat(hasAlpha ? QImage::Format_ARGB32
                                                     : QImage::Format_RGB888);
}

/// Opaque pixels lose their fourth channel, so that it takes no time.
Picture deepPictureOf(const QImage& image)
{
    // constBits, because bits() would detach the image's pixels first.
    const cv::Mat shared(image.height(), image.width(), CV_16UC4,
                         const_cast<uchar*>(image.constBits()),
                         static_cast<size_t>(image.bytesPerLine()));
    Picture picture{shared, QtOcv::Rgb};
    if (!image.hasAlphaChannel()) {
        picture.mat = cv::Mat();
        cv::cvtColor(shared, picture.mat, cv::COLOR_RGBA2RGB);
    }
    return picture;
}

/// The image's pixels, shared with it if its format can be used directly.
Picture pictureOf(const QImage& image)
{
    if (isDeep(image.format())) {
        return deepPictureOf(image);
    }
    Picture picture;
    picture.mat = QtOcv::imageToMat_shared(image, &picture.order);
    if (picture.mat.empty()) {
        picture.mat = QtOcv::imageToMat(image, CV_8UC(CV_CN_MAX), QtOcv::Bgr);
    }
    return picture;
}

/// An image that keeps the matrix's samples alive instead of copying them.
QImage adoptedImage(const cv::Mat& mat, QImage::Format format)
{
    auto keeper = std::make_unique<cv::Mat>(mat);
    const QImage image(
        mat.data, mat.cols, mat.rows, static_cast<int>(mat.step[0]), format,
        [](void* owner) { delete static_cast<cv::Mat*>(owner); }, keeper.get());
    if (!image.isNull()) {
        static_cast<void>(keeper.release());
    }
    return image;
}

/// For channels in the order R, G, B or R, G, B, A.
QImage deepImageOf(const cv::Mat& mat)
{
    cv::Mat pixels = mat;
    if (mat.channels() == 3) {
        pixels = cv::Mat();
        cv::cvtColor(mat, pixels, cv::COLOR_RGB2RGBA);
    } else if (mat.u == nullptr || mat.step[0] % bytesOfDeepPixel != 0) {
        pixels = mat.clone();
    }
    return adoptedImage(pixels,
                        mat.channels() == 3 ? QImage::Format_RGBX64 : QImage::Format_RGBA64);
}

/// An image of the picture that shares its pixels with no other image.
QImage imageOf(const Picture& picture)
{
    const cv::Mat& mat = picture.mat;
    if (mat.depth() == CV_16U) {
        return deepImageOf(mat);
    }
    // Qt's own images begin every line at a multiple of four bytes, so ours must, too.
    const bool isAdoptable = picture.ownsSamples() && mat.step[0] % 4 == 0;
    if (isAdoptable && mat.type() == CV_8UC4 && picture.order == QtOcv::Bgr) {
        return adoptedImage(mat, QImage::Format_ARGB32);
    }
    if (isAdoptable && mat.type() == CV_8UC3 && picture.order == QtOcv::Rgb) {
        return adoptedImage(mat, QImage::Format_RGB888);
    }
    return QtOcv::matToImage(mat, picture.order, QImage::Format_Invalid);
}

/// Multiplies every sample by the contrast's gain and adds the brightness, saturated, in a new
/// matrix. The brightness counts in steps of 8 bits.
cv::Mat adjusted(const cv::Mat& mat, int contrast, int brightness)
{
    const float divisor = contrast < 0 ? loweringContrastDivisor : raisingContrastDivisor;
    const float gain = static_cast<float>(contrast) / divisor + 1.0F;
    cv::Mat result;
    constexpr int deepSteps = 257;
    const int offset = mat.depth() == CV_16U ? brightness * deepSteps : brightness;
    mat.convertTo(result, mat.type(), static_cast<double>(gain), offset);
    return result;
}

bool isLackOfMemory(const std::exception& exception)
{
    const auto* const failure = dynamic_cast<const cv::Exception*>(&exception);
    return failure != nullptr ? failure->code == cv::Error::StsNoMem
                              : dynamic_cast<const std::bad_alloc*>(&exception) != nullptr;
}

/// Whether the image is already small enough for a recipe that does not enlarge.
bool fitsAlready(const QImage& image, const ImageRecipe& recipe)
{
    return !recipe.enlarges && image.width() <= recipe.bounds.width() &&
           image.height() <= recipe.bounds.height();
}

/// The image with the recipe's contrast, brightness and size.
QImage corrected(QImage image, const ImageRecipe& recipe)
{
    const bool keepsSize = recipe.keepsSize || fitsAlready(image, recipe);
    const QSize size = keepsSize ? image.size() : recipe.bounds;
    const bool keepsColours = recipe.contrast == 0 && recipe.brightness == 0;
    const bool isMade =
        image.format() == QImage::Format_RGB888 || image.format() == QImage::Format_RGBX64;
    if (keepsColours && size == image.size() && isMade) {
        return image;
    }
    Picture picture = pictureOf(image);
    if (!keepsColours) {
        picture.mat = adjusted(picture.mat, recipe.contrast, recipe.brightness);
    }
    const cv::Size bounds(size.width(), size.height());
    const auto stored = HdrColours::of(image);
    if (stored && recipe.resampling.light == ResizeLight::Linear) {
        picture.mat = resized(picture.mat, bounds, recipe.keepsAspectRatio, recipe.resampling,
                              LightCurve::of(stored->transfer));
    } else {
        picture.mat = resized(picture.mat, bounds, recipe.keepsAspectRatio, recipe.resampling);
    }
    return imageOf(picture);
}

QImage rendered(QImage image, const ImageRecipe& recipe)
{
    qDebug() << "Contrast: " << recipe.contrast << " Brightness: " << recipe.brightness;
    QImage result = withDepth(std::move(image), recipe);
    if (result.isNull()) {
        return result;
    }
    const QColorSpace colorSpace = result.colorSpace();
    result = corrected(std::move(result), recipe);
    result.setColorSpace(colorSpace);
    result.setDotsPerMeterX(dotsPerMeter);
    result.setDotsPerMeterY(dotsPerMeter);
    result.setDevicePixelRatio(1.0);
    return recipe.watermark ? imaging::watermarked(result, *recipe.watermark) : result;
}

int qualityFor(const QString& type, int jpegQuality)
{
    return imaging::usesQuality(type) ? jpegQuality : ImageFileWriter::defaultQuality;
}

} // namespace

imaging::Rendering imaging::render(QImage image, const ImageRecipe& recipe)
{
    // Without memory Qt returns a null image; OpenCV and the containers throw.
    Rendering result;
    result.error = image.isNull()
                       ? QCoreApplication::translate(
                             "imaging", "There is no picture, perhaps for a lack of memory")
                       : QCoreApplication::translate("imaging", "Not enough memory");
    try {
        result.image = rendered(std::move(image), recipe);
    } catch (const std::exception& exception) {
        if (!isLackOfMemory(exception)) {
            result.error = QString::fromUtf8(exception.what()).trimmed();
        }
    }
    if (!result.image.isNull()) {
        result.error.clear();
    }
    return result;
}

QByteArray imaging::encode(const QImage& image, int jpegQuality, const QString& type)
{
    return ImageFileWriter::encode(image, type, qualityFor(type, jpegQuality));
}

WriteResult imaging::save(const QString& fileName, const QImage& image, int jpegQuality,
                          const QString& type, ExistingFile existing)
{
    return ImageFileWriter::write(fileName, image, qualityFor(type, jpegQuality), existing);
}

QByteArray imaging::encode(const QImage& image, const ImageRecipe& recipe, const QString& type,
                           const PictureSource& source)
{
    return withMetadata(encode(image, recipe.jpegQuality, type), type, recipe, source);
}

WriteResult imaging::save(const QString& fileName, const QImage& image, const ImageRecipe& recipe,
                          const QString& type, const PictureSource& source, ExistingFile existing,
                          WriteFailure* failure)
{
    const QString format = QFileInfo(fileName).suffix();
    const int quality = qualityFor(type, recipe.jpegQuality);
    const QByteArray content =
        withMetadata(ImageFileWriter::encode(image, format, quality), format, recipe, source);
    if (!content.isEmpty()) {
        return FilePublisher::publish(fileName, content, existing, failure);
    }
    if (failure != nullptr) {
        *failure = WriteFailure::of(fileName, 0, 0);
    }
    return WriteResult::Failed;
}

bool imaging::usesQuality(const QString& type)
{
    return ImageFormats::hasQuality(type);
}
