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

/// imaging::render() and imaging::save() for callers that have profiles.
///
/// Keeps nothing between calls. User-interface thread only, since profiles and the clipboard belong
/// to it; other threads use recipes.
class ImageProcessingManager : public QObject
{
    Q_OBJECT

public:
    /// The only instance, made at the first call. It lives as long as the process.
    static ImageProcessingManager* instance();

    /// The picture that the profile makes of the image, using imaging::render() with the profile's
    /// recipe.
    ///
    /// @param image      pass an opaque picture without alpha, in a format with three channels:
    ///     otherwise a lower contrast or brightness would make it see-through. (Format_RGB32 has
    ///     four.)
    /// @param profile    not null.
    /// @param watermark  the watermark to draw; null draws the profile's own, if it has one.
    /// @param error      unless null, receives why the result is null, as a text for people;
    ///     otherwise an empty text.
    [[nodiscard]] QImage processImage(QImage image, ImageProfile* profile,
                                      WatermarkProfile* watermark, QString* error = nullptr);

    /// Resizes the picture in a matrix to `width` by `height` pixels; see Resizing.h for the rules.
    /// Callers must include <opencv2/core/mat.hpp> themselves, so that other code does not depend
    /// on OpenCV. Throws cv::Exception if memory runs out.
    ///
    /// @param cropBlackEdges  ignored: black edges are part of the picture.
    [[nodiscard]] cv::Mat resizeImage(cv::Mat mat, int width, int height, bool maintainAspectRatio,
                                      bool cropBlackEdges);

    /// Writes the image unchanged to the file, replacing a file of that name.
    ///
    /// The format is that of the file name's suffix. The image profile's quality is used if the
    /// file-name profile's type is "jpg" or "jpeg", case-insensitive. The file never exists
    /// incompletely under its name.
    ///
    /// @return false if the file was not written: the image is null, the suffix unknown, or writing
    ///     failed. An existing file is unchanged then, unless it could only be written in place
    ///     (see FilePublisher) and that failed halfway.
    [[nodiscard]] bool saveImage(QString fileName, QImage image, ImageProfile* imageProfile,
                                 FileNameProfile* fileNameProfile);

    /// Like saveImage(), but never replaces another file, even one created at the same moment: the
    /// result is then WriteResult::AlreadyExists, and the caller tries its next name.
    [[nodiscard]] WriteResult saveNewImage(const QString& fileName, const QImage& image,
                                           ImageProfile* imageProfile,
                                           FileNameProfile* fileNameProfile);

    /// Puts the image on the clipboard. User-interface thread only.
    void setToClipboard(QImage image);

private:
    ImageProcessingManager() = default;
};
