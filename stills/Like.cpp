#include "stills/Like.h"

#include "stills/OptionTable.h"
#include "stills/Texts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace stills {

namespace {

/// Possible places of the video, the most likely one first.
QStringList candidates(const QString& picture, const imaging::StillOrigin& origin)
{
    QStringList paths;
    if (!origin.videoPath.isEmpty()) {
        paths += origin.videoPath;
    }
    if (!origin.videoName.isEmpty()) {
        const QDir folder = QFileInfo(picture).absoluteDir();
        paths += folder.filePath(origin.videoName);
        paths += QDir::cleanPath(folder.filePath(QStringLiteral("../") + origin.videoName));
        paths += origin.videoName;
    }
    return paths;
}

/// The suffix of the picture if it is a supported format; otherwise empty.
std::string formatOf(const QString& picture)
{
    const QString suffix = QFileInfo(picture).suffix().toLower();
    const QStringList known =
        QString::fromLatin1(pictureFormats()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return known.contains(suffix) ? suffix.toStdString() : std::string();
}

Result<Likeness> failure(const Options& options, const std::string& error)
{
    return Result<Likeness>::failure("--like: " + quoted(*options.like) + ": " + error);
}

} // namespace

Result<Likeness> likenessOf(const Options& options)
{
    const QString picture = pathOf(*options.like);
    QString error;
    const auto origin = imaging::readOrigin(picture, error);
    if (!origin) {
        return failure(options, bytesOf(error));
    }
    Likeness likeness{*origin, options};
    if (options.videos.empty() && !options.listFile) {
        const QStringList paths = candidates(picture, *origin);
        const auto found = std::find_if(paths.cbegin(), paths.cend(), [](const QString& path) {
            return QFileInfo(path).isFile();
        });
        if (found == paths.cend()) {
            return failure(options, "its video " + quoted(bytesOf(origin->videoName)) +
                                        " is not beside it; name the video as well");
        }
        likeness.options.videos = {bytesOf(*found)};
    }
    if (!options.choosesPositions) {
        FramePositions& positions = likeness.options.positions;
        positions.kind = FramePositions::Kind::List;
        positions.list = {
            {FramePosition::Kind::Milliseconds, static_cast<double>(origin->positionMs)}};
    }
    if (!options.format && !options.nameProfile) {
        if (const std::string format = formatOf(picture); !format.empty()) {
            likeness.options.format = format;
        }
    }
    return Result<Likeness>::of(likeness);
}

} // namespace stills
