#pragma once

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"

#include <QImage>
#include <QString>
#include <QtAV/VideoFrame.h>

namespace bench {

/// How a frame becomes a picture of another shape.
enum class Shape {
    Fit,  ///< all of the frame, inside the size: 640x360 of 16:9 in 640x480
    Fill, ///< the middle of the frame that has the size's shape: 640x480
};

/// The profiles of a batch job with the program's defaults: 640x480, JPEG with quality 90.
class OutputProfiles
{
public:
    explicit OutputProfiles(Shape shape = Shape::Fit);

    /// The profiles keep the frame's own size instead.
    void keepVideoSize() { m_image.setSameSizeAsVideo(true); }

    [[nodiscard]] ImageProfile* image() { return &m_image; }
    [[nodiscard]] FileNameProfile* fileName() { return &m_fileName; }

    /// From the frame to the file, as a batch job goes: convert, process, save. Replaces a file
    /// that is there. False when nothing could be written.
    [[nodiscard]] bool save(const QtAV::VideoFrame& frame, const QString& path);

private:
    ImageProfile m_image;
    FileNameProfile m_fileName;
};

} // namespace bench
