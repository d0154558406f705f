#include "imaging/ImageProcessingManager.h"

#include "imaging/Rendering.h"
#include "imaging/Resizing.h"
#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

WriteResult save(const QString& fileName, const QImage& image, const ImageProfile& imageProfile,
                 const FileNameProfile& fileNameProfile, ExistingFile existing)
{
    return imaging::save(fileName, image, imageProfile.imageQuality(),
                         fileNameProfile.fileOutputType(), existing);
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
    const imaging::Rendering result = imaging::render(image, recipes::of(*profile, watermark));
    if (error != nullptr) {
        *error = result.error;
    }
    return result.image;
}

cv::Mat ImageProcessingManager::resizeImage(cv::Mat mat, int width, int height,
                                            bool maintainAspectRatio, bool /*cropBlackEdges*/)
{
    return resized(mat, {width, height}, maintainAspectRatio);
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
