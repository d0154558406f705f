#include "bench/support/OutputProfiles.h"

#include "imaging/ImageProcessingManager.h"

namespace bench {

OutputProfiles::OutputProfiles(Shape shape)
{
    m_image.setMaintainAspectRatio(shape == Shape::Fit);
}

bool OutputProfiles::save(const QtAV::VideoFrame& frame, const QString& path)
{
    auto* const manager = ImageProcessingManager::instance();
    const QImage image = frame.toImage(frame.imageFormat());
    const QImage processed = manager->processImage(image, &m_image, nullptr);
    return manager->saveImage(path, processed, &m_image, &m_fileName);
}

} // namespace bench
