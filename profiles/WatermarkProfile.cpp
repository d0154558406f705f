#include "profiles/WatermarkProfile.h"

#include "profiles/ProfileManager.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>

#include <array>

namespace {

/// Null for anything but a regular file, because a pipe would block, and for a picture that
/// declares more than the maximum.
QImage readPicture(const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return {};
    }
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const bool isTooLarge = qint64{size.width()} * size.height() > WatermarkProfile::mostPixels;
    return size.isValid() && isTooLarge ? QImage() : reader.read();
}

BaseProfile* newProfile()
{
    auto* const profile = new WatermarkProfile(nullptr);
    profile->setRelativeSize(true);
    return profile;
}

} // namespace

WatermarkProfile::WatermarkProfile(WatermarkProfile* ignored)
    : BaseProfile(ignored)
{}

WatermarkProfile::~WatermarkProfile() = default;

void WatermarkProfile::load(const QSettings& settings)
{
    m_relativeSize = false;
    BaseProfile::load(settings);
}

QImage WatermarkProfile::image() const
{
    if (m_imageFile != s_loadedImageFileName) {
        s_loadedImage = readPicture(pathForImage(m_imageFile));
        s_loadedImageFileName = m_imageFile;
    }
    return s_loadedImage;
}

Qt::Alignment WatermarkProfile::alignmentFromIndex(int index)
{
    static const std::array<Qt::Alignment, 8> alignments{
        Qt::AlignLeft | Qt::AlignTop,        //
        Qt::AlignHCenter | Qt::AlignTop,     //
        Qt::AlignRight | Qt::AlignTop,       //
        Qt::AlignLeft | Qt::AlignVCenter,    //
        Qt::AlignHCenter | Qt::AlignVCenter, //
        Qt::AlignRight | Qt::AlignVCenter,   //
        Qt::AlignLeft | Qt::AlignBottom,     //
        Qt::AlignHCenter | Qt::AlignBottom,
    };
    if (index < 0 || index >= int(alignments.size())) {
        return Qt::AlignRight | Qt::AlignBottom;
    }
    return alignments[std::size_t(index)];
}

QString WatermarkProfile::pathForImage(const QString& fileName)
{
    const QDir dataFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    const QDir folder(dataFolder.absoluteFilePath(QStringLiteral("watermarks")));
    folder.mkpath(folder.absolutePath());
    return folder.absolutePath() + QLatin1Char('/') + fileName;
}

ProfileManager* WatermarkProfile::profileManager()
{
    if (!s_profileManager) {
        constexpr bool createDefaultIfEmpty = false;
        s_profileManager = new ProfileManager(QStringLiteral("WatermarkProfiles.ini"), newProfile,
                                              createDefaultIfEmpty);
    }
    return s_profileManager;
}
