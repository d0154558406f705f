#pragma once

#include "imaging/FilePublisher.h"

#include <QImage>
#include <QObject>
#include <QString>

class FileNameProfile;
class ImageProfile;
class WatermarkProfile;

namespace cv {
class Mat;
} // namespace cv

/// The one place where a captured frame becomes the picture that is shown, copied and saved.
///
/// Keeps nothing between calls. `instance` and `setToClipboard` belong to the user-interface
/// thread. The other functions are called there too; `resizeImage`, `saveImage` and
/// `saveNewImage` would work in any thread, `processImage` not, because it looks up the watermark
/// in its profiles.
class ImageProcessingManager : public QObject
{
    Q_OBJECT

public:
    /// The only instance, made at the first call. It lives as long as the process.
    static ImageProcessingManager* instance();

    /// The picture that the profile makes of the image: contrast and brightness, then the size,
    /// then the watermark. The image itself is never changed, and the result shares nothing with
    /// it.
    ///
    /// Contrast c multiplies every sample by 1 + c / 200 where it is negative, by 1 + c / 40 where
    /// it is not; the brightness is added after that. Alpha is a sample like the others. Images of
    /// three channels give Format_RGB888, of four Format_ARGB32, of one Format_Indexed8 (greys).
    /// A null image gives a null image, and so does a failure of OpenCV, most of all for a lack of
    /// memory: no exception leaves this function.
    ///
    /// @param image      an opaque picture comes without alpha, in a format of three channels: else
    ///     a lower contrast or brightness would make it see-through. (Format_RGB32 has four.)
    /// @param profile    not null.
    /// @param watermark  the watermark to draw; null draws the profile's own, if it has one.
    /// @param error      unless null, receives why the result is null, for the user; else an empty
    ///     text.
    [[nodiscard]] QImage processImage(QImage image, ImageProfile* profile,
                                      WatermarkProfile* watermark, QString* error = nullptr);

    /// The picture in a matrix resized to `width` by `height` pixels. A caller includes
    /// <opencv2/core/mat.hpp> by itself, so that all others do without OpenCV.
    ///
    /// With the aspect ratio kept, the result is the largest picture inside these bounds; without,
    /// it fills them, and what of the source is too wide or too high is cut off on both sides. See
    /// ResizePlan for the rounding. A matrix that has the size already comes back as it is, sharing
    /// its samples; so do an empty matrix, and any matrix where a side is 0 or less or the result
    /// would take 2 GiB or more. Throws cv::Exception where there is no memory for the result.
    ///
    /// @param cropBlackEdges  without effect: black edges are part of the picture.
    [[nodiscard]] cv::Mat resizeImage(cv::Mat mat, int width, int height, bool maintainAspectRatio,
                                      bool cropBlackEdges);

    /// Writes the image, as it is, to the file, and replaces a file of that name.
    ///
    /// The format is that of the file name's suffix. The image profile's quality is used where the
    /// file-name profile's type is "jpg" or "jpeg", in capitals or not. The file never stands half
    /// written under its name.
    ///
    /// @return false when the file was not written: the image is null, the suffix unknown, or there
    ///     is no writing there. An existing file is unchanged then, unless it could only be written
    ///     in place (see FilePublisher) and that failed on the way.
    [[nodiscard]] bool saveImage(QString fileName, QImage image, ImageProfile* imageProfile,
                                 FileNameProfile* fileNameProfile);

    /// The same, but never in place of another file, whoever may put one there at the same moment:
    /// the answer is then WriteResult::AlreadyExists, and the caller tries its next name.
    [[nodiscard]] WriteResult saveNewImage(const QString& fileName, const QImage& image,
                                           ImageProfile* imageProfile,
                                           FileNameProfile* fileNameProfile);

    /// Puts the image on the clipboard. User-interface thread only.
    void setToClipboard(QImage image);

private:
    ImageProcessingManager() = default;

    [[nodiscard]] QImage process(const QImage& image, ImageProfile* profile,
                                 WatermarkProfile* watermark);
};
