#include "imaging/Metadata.h"

#include "imaging/ImageFormats.h"
#include "imaging/JpegSegments.h"
#include "imaging/RecipeTexts.h"
#include "imaging/Rendering.h"
#include "product/ProductInfo.h"

#include <exiv2/exiv2.hpp>
#include <exiv2/webpimage.hpp>

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <cmath>
#include <exception>
#include <mutex>
#include <new>
#include <stdexcept>
#include <string>

namespace {

const char* const ourNamespace = "https://morvantile.example/ns/still/1.0/";
const char* const ourPrefix = "morvantile";

/// The XMP toolkit has state that all threads share.
std::mutex& xmpMutex()
{
    static std::mutex mutex;
    return mutex;
}

/// The initialised toolkit, which knows our names.
class XmpToolkit
{
public:
    XmpToolkit()
    {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::XmpParser::initialize();
        Exiv2::XmpProperties::registerNs(ourNamespace, ourPrefix);
    }
    /// Exiv2 frees the copies that it made of the names for nobody else.
    ~XmpToolkit() { Exiv2::XmpProperties::unregisterNs(ourNamespace); }
    XmpToolkit(const XmpToolkit&) = delete;
    XmpToolkit& operator=(const XmpToolkit&) = delete;
};

/// Initialises the toolkit. Call with the mutex held.
void prepareXmp()
{
    static const XmpToolkit toolkit;
}

bool canHoldMetadata(const QString& type)
{
    static const QStringList types{QStringLiteral("jpg"),  QStringLiteral("jpeg"),
                                   QStringLiteral("png"),  QStringLiteral("tif"),
                                   QStringLiteral("tiff"), QStringLiteral("webp")};
    return types.contains(type.toLower());
}

std::string keyOf(const QString& name)
{
    return "Xmp." + std::string(ourPrefix) + '.' + name.toStdString();
}

std::string bytesOf(const QString& text)
{
    return plainText(text).toStdString();
}

QString programText()
{
    return ProductInfo::name() + QLatin1Char(' ') + ProductInfo::version();
}

/// Uses digits that every program reads, independent of the locale.
QString timeText(const Recording::Moment& moment, const char* format)
{
    return QLocale::c().toString(moment.time, QString::fromLatin1(format));
}

/// "+02:00"
QString zoneText(const Recording::Moment& moment)
{
    const int minutes = moment.time.offsetFromUtc() / 60;
    return QStringLiteral("%1%2:%3")
        .arg(QLatin1Char(minutes < 0 ? '-' : '+'))
        .arg(std::abs(minutes) / 60, 2, 10, QLatin1Char('0'))
        .arg(std::abs(minutes) % 60, 2, 10, QLatin1Char('0'));
}

/// The moment that the frame shows.
std::optional<Recording::Moment> momentOf(const PictureSource& source)
{
    const std::optional<Recording::Moment>& start = source.recording.start;
    return start ? std::make_optional(start->after(source.positionMs())) : std::nullopt;
}

/// Sets the value unless it is empty.
template <typename Data>
void set(Data& data, const std::string& key, const std::string& value)
{
    if (!value.empty()) {
        data[key] = value;
    }
}

/// Degrees, minutes and seconds as the three fractions of EXIF.
std::string degreesText(double degrees)
{
    constexpr qint64 partsOfSecond = 10000;
    const qint64 parts = std::llround(std::abs(degrees) * 3600 * partsOfSecond);
    const qint64 seconds = parts / partsOfSecond;
    return std::to_string(seconds / 3600) + "/1 " + std::to_string(seconds / 60 % 60) + "/1 " +
           std::to_string(seconds % 60 * partsOfSecond + parts % partsOfSecond) + '/' +
           std::to_string(partsOfSecond);
}

void addPlace(Exiv2::ExifData& exif, const Recording::Place& place)
{
    exif["Exif.GPSInfo.GPSVersionID"] = std::string("2 3 0 0");
    exif["Exif.GPSInfo.GPSLatitudeRef"] = std::string(place.latitude < 0 ? "S" : "N");
    exif["Exif.GPSInfo.GPSLatitude"] = degreesText(place.latitude);
    exif["Exif.GPSInfo.GPSLongitudeRef"] = std::string(place.longitude < 0 ? "W" : "E");
    exif["Exif.GPSInfo.GPSLongitude"] = degreesText(place.longitude);
    if (place.altitude) {
        const auto centimetres = std::llround(std::abs(*place.altitude) * 100);
        exif["Exif.GPSInfo.GPSAltitudeRef"] = std::string(*place.altitude < 0 ? "1" : "0");
        exif["Exif.GPSInfo.GPSAltitude"] = std::to_string(centimetres) + "/100";
    }
}

Exiv2::ExifData exifOf(const PictureSource& source, bool tellsPlace)
{
    Exiv2::ExifData exif;
    const Recording& recording = source.recording;
    set(exif, "Exif.Image.Software", bytesOf(programText()));
    set(exif, "Exif.Image.Make", bytesOf(recording.make));
    set(exif, "Exif.Image.Model", bytesOf(recording.model));
    set(exif, "Exif.Image.Artist", bytesOf(recording.author));
    if (const auto moment = momentOf(source)) {
        const auto text = [&moment](const char* format) {
            return timeText(*moment, format).toStdString();
        };
        exif["Exif.Photo.ExifVersion"] = std::string("48 50 51 49"); // 2.31 in ASCII
        exif["Exif.Photo.DateTimeOriginal"] = text("yyyy:MM:dd HH:mm:ss");
        exif["Exif.Photo.SubSecTimeOriginal"] = text("zzz");
        if (moment->knowsZone) {
            exif["Exif.Photo.OffsetTimeOriginal"] = zoneText(*moment).toStdString();
        }
    }
    if (tellsPlace && recording.place) {
        addPlace(exif, *recording.place);
    }
    return exif;
}

/// The frame's time in ticks of the video; nothing if it is between two ticks.
std::optional<qint64> ticksOf(const PictureSource& source)
{
    if (source.tickNumerator <= 0 || source.tickDenominator <= 0) {
        return std::nullopt;
    }
    const double ticks = source.seconds * source.tickDenominator / source.tickNumerator;
    constexpr double roundingError = 0.01;
    return std::abs(ticks - std::round(ticks)) < roundingError
               ? std::make_optional<qint64>(std::llround(ticks))
               : std::nullopt;
}

void addPosition(Exiv2::XmpData& xmp, const PictureSource& source)
{
    const auto add = [&xmp](const char* name, const QString& value) {
        xmp[keyOf(QLatin1String(name))] = value.toStdString();
    };
    const qint64 ms = source.positionMs();
    add("Position", QStringLiteral("%1.%2").arg(ms / 1000).arg(ms % 1000, 3, 10, QLatin1Char('0')));
    if (const auto ticks = ticksOf(source)) {
        add("PositionTicks", QString::number(*ticks));
        add("TimeBase",
            QStringLiteral("%1/%2").arg(source.tickNumerator).arg(source.tickDenominator));
    }
    if (source.frameNumber) {
        add("FrameNumber", QString::number(*source.frameNumber));
    }
}

/// The path, unless its bytes are not text.
QString writablePath(const QString& path)
{
    const QString back = QString::fromUtf8(path.toUtf8());
    return back == path && plainName(path) == path ? path : QString();
}

Exiv2::XmpData xmpOf(const PictureSource& source, const ImageRecipe& recipe, const QString& type)
{
    Exiv2::XmpData xmp;
    const std::string name = plainName(QFileInfo(source.video).fileName()).toStdString();
    set(xmp, "Xmp.xmp.CreatorTool", bytesOf(programText()));
    set(xmp, "Xmp.dc.source", name);
    set(xmp, "Xmp.photoshop.Source", name);
    set(xmp, "Xmp.dc.creator", bytesOf(source.recording.author));
    if (const auto moment = momentOf(source)) {
        QString text = timeText(*moment, "yyyy-MM-ddTHH:mm:ss.zzz");
        text += moment->knowsZone ? zoneText(*moment) : QString();
        xmp["Xmp.xmp.CreateDate"] = text.toStdString();
        xmp["Xmp.photoshop.DateCreated"] = text.toStdString();
    }
    addPosition(xmp, source);
    if (recipe.metadata == PictureMetadata::All) {
        set(xmp, keyOf(QStringLiteral("VideoPath")), writablePath(source.video).toStdString());
    }
    const RecipeTexts::Texts texts =
        RecipeTexts::of(recipe, source.frameSize, imaging::usesQuality(type));
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        set(xmp, keyOf(text.key()), text.value().toStdString());
    }
    return xmp;
}

/// Only this part takes the mutex, so that all threads can assemble files concurrently.
std::string packetOf(const PictureSource& source, const ImageRecipe& recipe, const QString& type)
{
    const std::lock_guard<std::mutex> lock(xmpMutex());
    prepareXmp();
    std::string packet;
    constexpr auto flags = Exiv2::XmpParser::useCompactFormat | Exiv2::XmpParser::omitAllFormatting;
    if (Exiv2::XmpParser::encode(packet, xmpOf(source, recipe, type), flags) != 0) {
        throw std::runtime_error("the XMP cannot be encoded");
    }
    return packet;
}

/// For every format that can hold metadata.
QByteArray rewritten(const QByteArray& content, const Exiv2::ExifData& exif,
                     const std::string& packet)
{
    const auto image = Exiv2::ImageFactory::open(
        reinterpret_cast<const Exiv2::byte*>(content.constData()), content.size());
    // Existing data, such as the colour profile, is preserved only if it was read.
    image->readMetadata();
    image->setExifData(exif);
    image->xmpPacket() = packet;
    image->xmpData().setPacket(packet); // TIFF takes it from there
    image->writeXmpFromPacket(true);
    image->writeMetadata();
    Exiv2::BasicIo& io = image->io();
    const auto* const bytes = reinterpret_cast<const char*>(io.mmap());
    return {bytes, static_cast<int>(io.size())};
}

/// The segments of a JPEG file; empty if anything is too long for one.
QByteArray jpegSegments(Exiv2::ExifData& exif, const std::string& packet)
{
    const QByteArray exifName("Exif\0", 6);
    const QByteArray xmpName("http://ns.adobe.com/xap/1.0/", 29);
    Exiv2::Blob bytes;
    Exiv2::ExifParser::encode(bytes, Exiv2::littleEndian, exif);
    const QByteArray exifBytes(reinterpret_cast<const char*>(bytes.data()),
                               static_cast<int>(bytes.size()));
    const QByteArray xmpBytes = QByteArray::fromStdString(packet);
    const bool fits = exifName.size() + exifBytes.size() <= JpegSegments::largestContent &&
                      xmpName.size() + xmpBytes.size() <= JpegSegments::largestContent;
    return fits ? JpegSegments::segment(1, exifName, exifBytes) +
                      JpegSegments::segment(1, xmpName, xmpBytes)
                : QByteArray();
}

/// Changes nothing if it throws.
void addTo(QByteArray& content, const QString& type, Exiv2::ExifData exif,
           const std::string& packet)
{
    const QByteArray segments =
        ImageFormats::isJpeg(type) ? jpegSegments(exif, packet) : QByteArray();
    if (segments.isEmpty() || !JpegSegments::add(content, segments)) {
        content = rewritten(content, exif, packet);
    }
}

QString textOf(const Exiv2::XmpData& xmp, const std::string& key)
{
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    return found != xmp.end() ? QString::fromStdString(found->toString()) : QString();
}

RecipeTexts::Texts ourTexts(const Exiv2::XmpData& xmp)
{
    RecipeTexts::Texts texts;
    for (const Exiv2::Xmpdatum& datum : xmp) {
        if (datum.groupName() == ourPrefix) {
            texts.insert(QString::fromStdString(datum.tagName()),
                         QString::fromStdString(datum.toString()));
        }
    }
    return texts;
}

/// Whether it is a file of a kind that holds our metadata. Exiv2 recognises others too, such as
/// videos, but writes beyond its memory while it reads damaged ones.
bool canBeOurs(const Exiv2::Image& image)
{
    const auto type = image.imageType();
    return type == Exiv2::ImageType::jpeg || type == Exiv2::ImageType::png ||
           type == Exiv2::ImageType::tiff || type == Exiv2::ImageType::webp;
}

/// In milliseconds; nothing where it is no position in any video.
std::optional<qint64> positionFrom(const QString& text)
{
    constexpr double latest = 1.0e9;
    bool isNumber = false;
    const double seconds = text.toDouble(&isNumber);
    return isNumber && seconds >= 0.0 && seconds < latest
               ? std::make_optional<qint64>(std::llround(seconds * 1000.0))
               : std::nullopt;
}

std::optional<imaging::StillOrigin> originFrom(const Exiv2::XmpData& xmp)
{
    const RecipeTexts::Texts texts = ourTexts(xmp);
    const auto position = positionFrom(texts.value(QStringLiteral("Position")));
    if (!position) {
        return std::nullopt;
    }
    imaging::StillOrigin origin;
    origin.positionMs = *position;
    // Only a name, nothing that leads to another folder.
    origin.videoName = QFileInfo(plainName(textOf(xmp, "Xmp.dc.source"))).fileName();
    origin.videoPath = plainName(texts.value(QStringLiteral("VideoPath")));
    origin.recipe = RecipeTexts::recipeFrom(texts);
    origin.hadPictureWatermark = RecipeTexts::hasPictureWatermark(texts);
    return origin;
}

} // namespace

QByteArray imaging::withMetadata(QByteArray content, const QString& type, const ImageRecipe& recipe,
                                 const PictureSource& source)
{
    const bool hasWords = recipe.metadata != PictureMetadata::None && source.isKnown();
    if (content.isEmpty() || !hasWords || !canHoldMetadata(type)) {
        return content;
    }
    try {
        const bool tellsPlace = recipe.metadata == PictureMetadata::All;
        addTo(content, type, exifOf(source, tellsPlace), packetOf(source, recipe, type));
        return content;
    } catch (const std::bad_alloc&) {
        return {};
    } catch (const std::exception& exception) {
        qWarning().noquote() << QStringLiteral("A picture of %1 has no metadata: %2")
                                    .arg(source.video, QString::fromUtf8(exception.what()));
        return content;
    }
}

std::optional<imaging::StillOrigin> imaging::readOrigin(const QString& path, QString& error)
{
    error.clear();
    if (!QFileInfo(path).isFile()) {
        error = QCoreApplication::translate("imaging", "There is no such picture.");
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return std::nullopt;
    }
    try {
        const std::lock_guard<std::mutex> lock(xmpMutex());
        prepareXmp();
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        if (canBeOurs(*image)) {
            image->readMetadata();
        }
        if (const auto origin = originFrom(image->xmpData())) {
            return origin;
        }
        error = QCoreApplication::translate(
            "imaging", "The picture does not say which frame of which video it is.");
    } catch (const std::exception& exception) {
        error = QString::fromUtf8(exception.what());
    }
    return std::nullopt;
}
