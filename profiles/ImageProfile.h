#pragma once

#include "profiles/BaseProfile.h"

#include <QMetaType>
#include <QString>

class ProfileManager;

/// How a captured frame becomes an output image: size, corrections, JPEG quality, watermark.
///
/// The ranges below are those of the dialog. The setters store any value, and a settings file
/// edited by hand can hold any, so code that uses a value must handle all of them.
class ImageProfile : public BaseProfile
{
    Q_OBJECT
    /// Keep the video frame's own size instead of the requested one.
    Q_PROPERTY(bool sameSizeAsVideo READ sameSizeAsVideo WRITE setSameSizeAsVideo)
    /// Requested size in pixels.
    Q_PROPERTY(int imageWidth READ imageWidth WRITE setImageWidth)
    Q_PROPERTY(int imageHeight READ imageHeight WRITE setImageHeight)
    /// Keep the frame's aspect ratio when scaling to the requested size.
    Q_PROPERTY(bool maintainAspectRatio READ maintainAspectRatio WRITE setMaintainAspectRatio)
    /// Corrections, -100 to 100; 0 changes nothing.
    Q_PROPERTY(int imageContrast READ imageContrast WRITE setImageContrast)
    Q_PROPERTY(int imageBrightness READ imageBrightness WRITE setImageBrightness)
    /// JPEG quality, 0 to 100.
    Q_PROPERTY(int imageQuality READ imageQuality WRITE setImageQuality)
    /// The id of the watermark profile to draw; empty for none. A profile with that id may not
    /// exist.
    Q_PROPERTY(QString watermarkProfileId READ watermarkProfileId WRITE setWatermarkProfileId)
    /// How much files tell about the origin of their pictures: one of Metadata.
    Q_PROPERTY(int metadata READ metadata WRITE setMetadata)
    /// How images are resized: one of ResizeFilter, and whether that happens in linear light.
    Q_PROPERTY(int resizeFilter READ resizeFilter WRITE setResizeFilter)
    Q_PROPERTY(bool resizeInLinearLight READ resizeInLinearLight WRITE setResizeInLinearLight)
    /// PNG and TIFF files get 16 bits per channel if the frame has more than 8.
    Q_PROPERTY(bool deepColours READ deepColours WRITE setDeepColours)
    /// How interlaced video is treated: "auto" makes combing pictures whole, "on" treats every
    /// picture as combing, "off" leaves all as they are.
    Q_PROPERTY(QString deinterlacing READ deinterlacing WRITE setDeinterlacing)

    /// How high dynamic range is treated: one of Hdr.
    Q_PROPERTY(int hdr READ hdr WRITE setHdr)

public:
    /// The values of hdr(); any other one means ToneMapped.
    enum Hdr {
        ToneMapped = 0,  ///< sRGB, as on the screen
        HdrAsStored = 1, ///< PNG and TIFF files keep the video's values, in 16 bits
    };

    /// The values of metadata(); any other one means MetadataWithoutPlace.
    enum Metadata {
        MetadataAll = 0,          ///< includes the place of the recording and the path of the video
        MetadataWithoutPlace = 1, ///< everything except these
        NoMetadata = 2,
    };

    /// The values of resizeFilter(); any other one means AreaFilter.
    enum ResizeFilter {
        AreaFilter = 0,
        LanczosFilter = 1,
        BicubicFilter = 2,
        NearestFilter = 3,
    };

    /// A profile named "Image Profile" with a fresh id and default values; the argument is ignored.
    explicit ImageProfile(ImageProfile* ignored = nullptr);
    ~ImageProfile() override;

    bool sameSizeAsVideo() const { return m_sameSizeAsVideo; }
    void setSameSizeAsVideo(bool sameSize) { m_sameSizeAsVideo = sameSize; }

    int imageWidth() const { return m_imageWidth; }
    void setImageWidth(int width) { m_imageWidth = width; }

    int imageHeight() const { return m_imageHeight; }
    void setImageHeight(int height) { m_imageHeight = height; }

    bool maintainAspectRatio() const { return m_maintainAspectRatio; }
    void setMaintainAspectRatio(bool maintain) { m_maintainAspectRatio = maintain; }

    QString deinterlacing() const { return m_deinterlacing; }
    void setDeinterlacing(const QString& deinterlacing) { m_deinterlacing = deinterlacing; }

    int hdr() const { return m_hdr; }
    void setHdr(int hdr) { m_hdr = hdr; }

    int imageContrast() const { return m_imageContrast; }
    void setImageContrast(int contrast) { m_imageContrast = contrast; }

    int imageBrightness() const { return m_imageBrightness; }
    void setImageBrightness(int brightness) { m_imageBrightness = brightness; }

    int imageQuality() const { return m_imageQuality; }
    void setImageQuality(int quality) { m_imageQuality = quality; }

    QString watermarkProfileId() const { return m_watermarkProfileId; }
    void setWatermarkProfileId(const QString& id) { m_watermarkProfileId = id; }

    int metadata() const { return m_metadata; }
    void setMetadata(int metadata) { m_metadata = metadata; }

    int resizeFilter() const { return m_resizeFilter; }
    void setResizeFilter(int filter) { m_resizeFilter = filter; }

    bool resizeInLinearLight() const { return m_resizeInLinearLight; }
    void setResizeInLinearLight(bool linear) { m_resizeInLinearLight = linear; }

    bool deepColours() const { return m_deepColours; }
    void setDeepColours(bool deep) { m_deepColours = deep; }

    /// Whether black edges are cropped. Not a property, so it is never persisted.
    bool cropBlackEdges() const { return m_cropBlackEdges; }
    void setCropBlackEdges(bool crop) { m_cropBlackEdges = crop; }

    /// The one manager of image profiles, made on first call over "ImageProfiles.ini"; it always
    /// has at least one profile.
    static ProfileManager* profileManager();

private:
    bool m_sameSizeAsVideo = false;
    int m_imageWidth = 640;
    int m_imageHeight = 480;
    bool m_maintainAspectRatio = true;
    QString m_deinterlacing = QStringLiteral("auto");
    int m_hdr = ToneMapped;
    int m_imageContrast = 0;
    int m_imageBrightness = 0;
    int m_imageQuality = 90;
    QString m_watermarkProfileId;
    int m_metadata = MetadataWithoutPlace;
    int m_resizeFilter = AreaFilter;
    bool m_resizeInLinearLight = false;
    bool m_deepColours = false;
    bool m_cropBlackEdges = false;

    static inline ProfileManager* s_profileManager = nullptr;
};

Q_DECLARE_METATYPE(ImageProfile*)
