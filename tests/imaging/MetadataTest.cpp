#include "imaging/Metadata.h"

#include "imaging/Rendering.h"
#include "tests/support/TestDir.h"

#include <exiv2/exiv2.hpp>

#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QRegularExpression>
#include <QTest>

#include <future>
#include <map>
#include <string>
#include <vector>

using imaging::StillOrigin;
using testsupport::TestDir;

namespace {

const char* const types[] = {"jpg", "jpeg", "JPG", "png", "tif", "tiff", "webp"};

QString textOf(const char* text)
{
    return QString::fromUtf8(text);
}

QImage picture()
{
    QImage image(64, 48, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, qRgb(4 * x, 5 * y, 3 * (x + y) % 256));
        }
    }
    return image;
}

/// A frame of a video with all supported metadata.
PictureSource holiday()
{
    const QMap<QString, QString> tags{
        {textOf("com.apple.quicktime.creationdate"), textOf("2024-05-06T12:34:56.500+0200")},
        {textOf("com.apple.quicktime.location.iso6709"), textOf("+48.2085-016.3730+171.5/")},
        {textOf("com.apple.quicktime.make"), textOf("Maker")},
        {textOf("com.apple.quicktime.model"), textOf("Model & <1>")},
        {textOf("artist"), textOf("Zoë")}};
    return PictureSource::of(textOf("/films/holiday.mov"), tags, 1, 600)
        .at(62.52, QSize(64, 48), 1563);
}

ImageRecipe telling(PictureMetadata metadata)
{
    ImageRecipe recipe;
    recipe.jpegQuality = 95;
    recipe.metadata = metadata;
    return recipe;
}

QByteArray made(const QString& type, const ImageRecipe& recipe, const PictureSource& source)
{
    return imaging::encode(picture(), recipe, type, source);
}

/// All tags of a file by their keys, as exiv2 prints them.
std::map<std::string, std::string> tagsOf(const QByteArray& content)
{
    const auto image = Exiv2::ImageFactory::open(
        reinterpret_cast<const Exiv2::byte*>(content.constData()), content.size());
    image->readMetadata();
    std::map<std::string, std::string> tags;
    for (const Exiv2::Exifdatum& datum : image->exifData()) {
        tags[datum.key()] = datum.toString();
    }
    for (const Exiv2::Xmpdatum& datum : image->xmpData()) {
        tags[datum.key()] = datum.toString();
    }
    return tags;
}

std::string valueOf(const std::map<std::string, std::string>& tags, const char* key)
{
    const auto found = tags.find(key);
    return found != tags.end() ? found->second : "(missing)";
}

bool contains(const QByteArray& content, const char* text)
{
    return content.contains(QByteArray(text));
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

std::optional<StillOrigin> originOf(const QString& path)
{
    QString error;
    const auto origin = imaging::readOrigin(path, error);
    return origin.has_value() == error.isEmpty() ? origin : std::nullopt;
}

} // namespace

#define COMPARE_TAG(tags, key, expected) QCOMPARE(valueOf(tags, key), std::string(expected))

class MetadataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormat_tellsWhereThePictureComesFrom_data() { formats(); }
    void everyFormat_tellsWhereThePictureComesFrom();
    void pixelsAndProfile_stayAsTheyAre_data() { formats(); }
    void pixelsAndProfile_stayAsTheyAre();
    void jpegs_haveTheirSegmentsInTheUsualOrder();
    void textsTooLongForASegment_leaveThePicture();
    void place_isToldOnlyIfAll_data() { formats(); }
    void place_isToldOnlyIfAll();
    void nothing_isTold_ifNone_data() { formats(); }
    void nothing_isTold_ifNone();
    void dateWithoutZone_getsNone();
    void videoThatSaysNothing_givesPositionAndName();
    void ticks_areTold_onlyWhereTheyAreExact();
    void origin_comesBack_data() { formats(); }
    void origin_comesBack();
    void sameFrameAndRecipe_giveTheSameBytes_inAnyThread();
    void hostileTexts_breakNothing_data() { formats(); }
    void hostileTexts_breakNothing();
    void content_thatIsNoPicture_staysAsItIs();
    void otherFormats_stayAsTheyAre();
    void origin_isNone_whereThereIsNone_data();
    void origin_isNone_whereThereIsNone();
    void origin_isSound_whateverTheFileSays();
    void damagedFiles_giveNoneOrTheWholeOrigin();

private:
    static void formats();
};

void MetadataTest::formats()
{
    QTest::addColumn<QString>("type");
    for (const char* const type : types) {
        QTest::newRow(type) << QString::fromLatin1(type);
    }
}

void MetadataTest::everyFormat_tellsWhereThePictureComesFrom()
{
    QFETCH(const QString, type);
    const auto tags = tagsOf(made(type, telling(PictureMetadata::All), holiday()));
    COMPARE_TAG(tags, "Exif.Photo.DateTimeOriginal", "2024:05:06 12:35:59");
    COMPARE_TAG(tags, "Exif.Photo.SubSecTimeOriginal", "020");
    COMPARE_TAG(tags, "Exif.Photo.OffsetTimeOriginal", "+02:00");
    COMPARE_TAG(tags, "Exif.Photo.ExifVersion", "48 50 51 49");
    COMPARE_TAG(tags, "Exif.Image.Make", "Maker");
    COMPARE_TAG(tags, "Exif.Image.Model", "Model & <1>");
    COMPARE_TAG(tags, "Exif.Image.Artist", "Zoë");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSLatitudeRef", "N");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSLatitude", "48/1 12/1 306000/10000");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSLongitudeRef", "W");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSLongitude", "16/1 22/1 228000/10000");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSAltitudeRef", "0");
    COMPARE_TAG(tags, "Exif.GPSInfo.GPSAltitude", "17150/100");
    COMPARE_TAG(tags, "Xmp.xmp.CreateDate", "2024-05-06T12:35:59.020+02:00");
    COMPARE_TAG(tags, "Xmp.photoshop.DateCreated", "2024-05-06T12:35:59.020+02:00");
    COMPARE_TAG(tags, "Xmp.dc.source", "holiday.mov");
    COMPARE_TAG(tags, "Xmp.photoshop.Source", "holiday.mov");
    COMPARE_TAG(tags, "Xmp.dc.creator", "Zoë");
    COMPARE_TAG(tags, "Xmp.morvantile.Position", "62.520");
    COMPARE_TAG(tags, "Xmp.morvantile.PositionTicks", "37512");
    COMPARE_TAG(tags, "Xmp.morvantile.TimeBase", "1/600");
    COMPARE_TAG(tags, "Xmp.morvantile.FrameNumber", "1563");
    COMPARE_TAG(tags, "Xmp.morvantile.VideoPath", "/films/holiday.mov");
    COMPARE_TAG(tags, "Xmp.morvantile.Contrast", "0");
    const QString program = QString::fromStdString(valueOf(tags, "Exif.Image.Software"));
    QVERIFY(
        QRegularExpression(textOf("^Morvantile \\d+\\.\\d+\\.\\d+$")).match(program).hasMatch());
    COMPARE_TAG(tags, "Xmp.xmp.CreatorTool", program.toStdString());
}

void MetadataTest::pixelsAndProfile_stayAsTheyAre()
{
    QFETCH(const QString, type);
    const QByteArray without = made(type, telling(PictureMetadata::None), holiday());
    const QByteArray with = made(type, telling(PictureMetadata::All), holiday());
    QVERIFY(with.size() > without.size());
    const QImage before = QImage::fromData(without);
    const QImage after = QImage::fromData(with);
    QVERIFY(!before.isNull());
    QCOMPARE(after, before);
    QCOMPARE(after.format(), before.format());
    QCOMPARE(after.dotsPerMeterX(), before.dotsPerMeterX());
    QCOMPARE(before.colorSpace(), QColorSpace(QColorSpace::SRgb));
    QCOMPARE(after.colorSpace(), before.colorSpace());
}

void MetadataTest::jpegs_haveTheirSegmentsInTheUsualOrder()
{
    for (const int quality : {80, 95}) {
        ImageRecipe recipe = telling(PictureMetadata::All);
        recipe.jpegQuality = quality;
        const QByteArray content = made(QStringLiteral("jpg"), recipe, holiday());
        const std::vector<QByteArray> starts{
            QByteArray("\xff\xd8\xff\xe0", 4), QByteArray("JFIF\0", 5),
            QByteArray("Exif\0\0", 6),         QByteArray("http://ns.adobe.com/xap/1.0/\0", 29),
            QByteArray("ICC_PROFILE\0", 12),   QByteArray("\xff\xdb", 2)};
        int from = 0;
        for (const QByteArray& start : starts) {
            const int at = content.indexOf(start, from);
            QVERIFY2(at >= from, start.constData());
            from = at + start.size();
        }
    }
}

void MetadataTest::textsTooLongForASegment_leaveThePicture()
{
    PictureSource source = holiday();
    source.recording.model = QString(70000, QLatin1Char('x'));
    const QByteArray content = made(QStringLiteral("jpg"), telling(PictureMetadata::All), source);
    const QByteArray plain = made(QStringLiteral("jpg"), telling(PictureMetadata::None), source);
    QCOMPARE(QImage::fromData(content), QImage::fromData(plain));
}

void MetadataTest::place_isToldOnlyIfAll()
{
    QFETCH(const QString, type);
    const QByteArray content = made(type, telling(PictureMetadata::WithoutPlace), holiday());
    const auto tags = tagsOf(content);
    COMPARE_TAG(tags, "Exif.Photo.DateTimeOriginal", "2024:05:06 12:35:59");
    COMPARE_TAG(tags, "Xmp.dc.source", "holiday.mov");
    for (const auto& [key, value] : tags) {
        QVERIFY2(key.find("GPS") == std::string::npos, key.c_str());
        QVERIFY2(value.find("/films") == std::string::npos, key.c_str());
    }
    QVERIFY(!contains(content, "/films"));
}

void MetadataTest::nothing_isTold_ifNone()
{
    QFETCH(const QString, type);
    QCOMPARE(made(type, telling(PictureMetadata::None), holiday()),
             imaging::encode(picture(), telling(PictureMetadata::None).jpegQuality, type));
    QCOMPARE(made(type, telling(PictureMetadata::All), PictureSource()),
             imaging::encode(picture(), telling(PictureMetadata::None).jpegQuality, type));
}

void MetadataTest::dateWithoutZone_getsNone()
{
    PictureSource source = holiday();
    source.recording.start = Recording::parseMoment(textOf("2024-12-31 23:59:59"));
    source.seconds = 1.5;
    const auto tags = tagsOf(made(textOf("jpg"), telling(PictureMetadata::All), source));
    COMPARE_TAG(tags, "Exif.Photo.DateTimeOriginal", "2025:01:01 00:00:00");
    COMPARE_TAG(tags, "Exif.Photo.SubSecTimeOriginal", "500");
    COMPARE_TAG(tags, "Exif.Photo.OffsetTimeOriginal", "(missing)");
    COMPARE_TAG(tags, "Xmp.xmp.CreateDate", "2025-01-01T00:00:00.500");
}

void MetadataTest::videoThatSaysNothing_givesPositionAndName()
{
    const PictureSource source =
        PictureSource::of(textOf("/films/x.avi"), {}, 0, 1).at(0.0, QSize(64, 48));
    const auto tags = tagsOf(made(textOf("png"), telling(PictureMetadata::All), source));
    COMPARE_TAG(tags, "Xmp.morvantile.Position", "0.000");
    COMPARE_TAG(tags, "Xmp.morvantile.PositionTicks", "(missing)");
    COMPARE_TAG(tags, "Xmp.morvantile.FrameNumber", "(missing)");
    COMPARE_TAG(tags, "Xmp.dc.source", "x.avi");
    COMPARE_TAG(tags, "Exif.Photo.DateTimeOriginal", "(missing)");
    COMPARE_TAG(tags, "Xmp.xmp.CreateDate", "(missing)");
    COMPARE_TAG(tags, "Exif.Image.Make", "(missing)");
}

void MetadataTest::ticks_areTold_onlyWhereTheyAreExact()
{
    const auto ticksAt = [](double seconds) {
        const PictureSource source =
            PictureSource::of(textOf("/x.ts"), {}, 1, 90000).at(seconds, QSize(64, 48));
        return valueOf(tagsOf(made(textOf("jpg"), telling(PictureMetadata::All), source)),
                       "Xmp.morvantile.PositionTicks");
    };
    QCOMPARE(ticksAt(3600.0 + 3003.0 / 90000), std::string("324003003"));
    QCOMPARE(ticksAt(1.00001), std::string("(missing)"));
}

void MetadataTest::origin_comesBack()
{
    QFETCH(const QString, type);
    const TestDir dir;
    const QString path = dir.filePath(textOf("still.") + type);
    ImageRecipe recipe = telling(PictureMetadata::All);
    recipe.contrast = 12;
    recipe.keepsSize = false;
    recipe.bounds = QSize(20, 10);
    recipe.keepsAspectRatio = true;
    QVERIFY(writeFile(path, made(type, recipe, holiday())));
    auto origin = originOf(path);
    QVERIFY(origin);
    QCOMPARE(origin->positionMs, 62520);
    QCOMPARE(origin->videoName, textOf("holiday.mov"));
    QCOMPARE(origin->videoPath, textOf("/films/holiday.mov"));
    QCOMPARE(origin->recipe.contrast, 12);
    QCOMPARE(origin->recipe.bounds, QSize(20, 10));
    QVERIFY(!origin->hadPictureWatermark);
    recipe.metadata = PictureMetadata::WithoutPlace;
    QVERIFY(writeFile(path, made(type, recipe, holiday())));
    origin = originOf(path);
    QVERIFY(origin);
    QCOMPARE(origin->videoPath, QString());
}

void MetadataTest::sameFrameAndRecipe_giveTheSameBytes_inAnyThread()
{
    const auto all = [] {
        QByteArray content;
        for (const char* const type : types) {
            content += made(QString::fromLatin1(type), telling(PictureMetadata::All), holiday());
        }
        return content;
    };
    const QByteArray expected = all();
    std::vector<std::future<QByteArray>> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.push_back(std::async(std::launch::async, all));
    }
    for (auto& thread : threads) {
        QVERIFY(thread.get() == expected);
    }
}

void MetadataTest::hostileTexts_breakNothing()
{
    QFETCH(const QString, type);
    const QString bad = textOf("]]></rdf:RDF>\x1b[2J<!-- \"'&\x01 %s") + QChar(0xd83d) +
                        QChar(0xffff) + QString(200000, QLatin1Char('x'));
    const QMap<QString, QString> tags{{textOf("artist"), bad},
                                      {textOf("make"), bad},
                                      {textOf("model"), bad},
                                      {textOf("creation_time"), bad},
                                      {textOf("location"), bad}};
    const PictureSource source =
        PictureSource::of(textOf("/films/") + bad.left(200), tags, 1, 600).at(1.0, QSize(64, 48));
    const QByteArray content = made(type, telling(PictureMetadata::All), source);
    QCOMPARE(QImage::fromData(content),
             QImage::fromData(made(type, telling(PictureMetadata::None), source)));
    const auto read = tagsOf(content);
    const std::string plain = plainText(bad).toStdString();
    COMPARE_TAG(read, "Exif.Image.Artist", plain);
    COMPARE_TAG(read, "Xmp.dc.creator", plain);
    COMPARE_TAG(read, "Xmp.morvantile.Position", "1.000");
    COMPARE_TAG(read, "Xmp.morvantile.VideoPath", "(missing)");
    COMPARE_TAG(read, "Exif.Photo.DateTimeOriginal", "(missing)");
    for (const auto& [key, value] : read) {
        const bool isWholePacket = key == "Exif.Image.XMLPacket";
        QVERIFY2(value.size() < 5000 || isWholePacket, key.c_str());
        QVERIFY2(value.find('\x1b') == std::string::npos, key.c_str());
    }
}

void MetadataTest::content_thatIsNoPicture_staysAsItIs()
{
    const QByteArray noise("\xff\xd8 this is no JPEG");
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(textOf("^A picture of /films/holiday.mov has no ")));
    QCOMPARE(imaging::withMetadata(noise, textOf("jpg"), telling(PictureMetadata::All), holiday()),
             noise);
    QCOMPARE(imaging::withMetadata(QByteArray(), textOf("jpg"), telling(PictureMetadata::All),
                                   holiday()),
             QByteArray());
}

void MetadataTest::otherFormats_stayAsTheyAre()
{
    for (const char* const type : {"bmp", "ppm"}) {
        const QString suffix = QString::fromLatin1(type);
        QCOMPARE(made(suffix, telling(PictureMetadata::All), holiday()),
                 imaging::encode(picture(), 95, suffix));
    }
}

void MetadataTest::origin_isNone_whereThereIsNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no picture") << QByteArray("a text");
    QTest::newRow("another picture") << imaging::encode(picture(), 95, textOf("jpg"));
    QTest::newRow("of no format for metadata") << imaging::encode(picture(), 95, textOf("bmp"));
    // Exiv2 0.27 has room for 100 bytes of it.
    QTest::newRow("a video with too long a date")
        << QByteArray("RIFF\xf4\x03\0\0AVI IDIT\xe8\x03\0\0", 20) + QByteArray(1000, '\xff');
    QTest::newRow("damaged") << QByteArray("\xff\xd8\xff\xe1\xff\xff http://ns.adobe.com/xap/1.0/");
}

void MetadataTest::origin_isNone_whereThereIsNone()
{
    QFETCH(const QByteArray, content);
    const TestDir dir;
    const QString path = dir.filePath(textOf("a.jpg"));
    QVERIFY(writeFile(path, content));
    QString error;
    QVERIFY(!imaging::readOrigin(path, error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!imaging::readOrigin(dir.path(), error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!imaging::readOrigin(dir.filePath(textOf("missing.jpg")), error));
    QVERIFY(!error.isEmpty());
}

void MetadataTest::origin_isSound_whateverTheFileSays()
{
    const TestDir dir;
    const QString path = dir.filePath(textOf("a.jpg"));
    PictureSource source = holiday();
    const auto change = [&](const char* key, const char* value) {
        QVERIFY(writeFile(path, made(textOf("jpg"), telling(PictureMetadata::All), source)));
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        image->readMetadata();
        image->xmpData()[key] = std::string(value);
        image->writeMetadata();
    };
    for (const char* const position : {"", "-1", "nan", "inf", "1e30", "12:30", "one"}) {
        change("Xmp.morvantile.Position", position);
        QVERIFY2(!originOf(path), position);
    }
    change("Xmp.dc.source", "../../etc/passwd");
    auto origin = originOf(path);
    QVERIFY(origin);
    QCOMPARE(origin->videoName, textOf("passwd"));
    change("Xmp.morvantile.Size", "2000000000x2000000000");
    origin = originOf(path);
    QVERIFY(origin);
    QVERIFY(origin->recipe.keepsSize);
}

void MetadataTest::damagedFiles_giveNoneOrTheWholeOrigin()
{
    const TestDir dir;
    const QString path = dir.filePath(textOf("a.jpg"));
    const QByteArray whole = made(textOf("jpg"), telling(PictureMetadata::All), holiday());
    for (int size = 0; size < whole.size(); size += whole.size() / 97 + 1) {
        QVERIFY(writeFile(path, whole.left(size)));
        const auto origin = originOf(path);
        QVERIFY(!origin || origin->positionMs == 62520);
    }
    for (int place = 0; place < whole.size(); place += whole.size() / 199 + 1) {
        QByteArray damaged = whole;
        damaged[place] = static_cast<char>(~damaged.at(place));
        QVERIFY(writeFile(path, damaged));
        QString error;
        const auto origin = imaging::readOrigin(path, error);
        QVERIFY(origin.has_value() == error.isEmpty());
    }
}

QTEST_MAIN(MetadataTest)
#include "MetadataTest.moc"
