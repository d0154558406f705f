#include "tests/stills/StillsProgram.h"

#include "tests/support/ColourFormulas.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QColorSpace>
#include <QDir>
#include <QImage>
#include <QRgba64>
#include <QTest>

#include <algorithm>
#include <cmath>

using stillsprogram::contentOf;
using stillsprogram::filesIn;
using testsupport::ColourSample;
using testsupport::ProgramResult;
using testsupport::Rgb;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

const ColourSample& colourSample(const QString& file)
{
    const QList<ColourSample>& samples = testsupport::colourSamples();
    return *std::find_if(samples.begin(), samples.end(),
                         [&](const ColourSample& sample) { return sample.file == file; });
}

/// Takes the first picture of a video into the folder; returns its path, or an empty text.
QString takeFirst(const QString& video, const QStringList& options, const QString& folder)
{
    const ProgramResult result =
        stillsprogram::run(QStringList{video, QStringLiteral("--at"), QStringLiteral("0"),
                                       QStringLiteral("-o"), folder} +
                           options);
    if (!result.succeeded()) {
        qWarning("%s", result.standardError.constData());
        return {};
    }
    return folder + QLatin1Char('/') + filesIn(folder).value(0);
}

QStringList storedAs(const QString& type)
{
    return {QStringLiteral("--hdr"), QStringLiteral("stored"), QStringLiteral("--format"), type};
}

bool isNear(QRgba64 pixel, const Rgb& expected)
{
    constexpr double most = 0.0005; // half of a step of ten bits
    const Rgb got{pixel.red() / 65535.0, pixel.green() / 65535.0, pixel.blue() / 65535.0};
    for (std::size_t i = 0; i < got.size(); ++i) {
        if (std::abs(got[i] - std::clamp(expected[i], 0.0, 1.0)) > most) {
            qWarning("%f %f %f instead of %f %f %f", got[0], got[1], got[2], expected[0],
                     expected[1], expected[2]);
            return false;
        }
    }
    return true;
}

} // namespace

/// High dynamic range that stays as it is stored, for colour grading.
class StillsHdrTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedPictures_haveTheVideosValues_data();
    void storedPictures_haveTheVideosValues();
    void otherVideos_giveTheSamePictures();
    void sheets_areForScreens_alsoBesideStoredPictures();
    void stored_isRefused_forFilesThatCannotHoldIt();
    void storedPicture_canBeMadeAgain();
    void whatIsNotShown_isSaidOnce_data();
    void whatIsNotShown_isSaidOnce();
};

void StillsHdrTest::storedPictures_haveTheVideosValues_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QByteArray>("codePoints");
    const QByteArray pq("\x09\x10\0\1", 4);
    const QByteArray hlg("\x09\x12\0\1", 4);
    for (const char* const type : {"png", "tif"}) {
        QTest::addRow("PQ, %s", type)
            << QStringLiteral("colour_pq_sei.mp4") << QString::fromLatin1(type) << pq;
        QTest::addRow("PQ that the container states, %s", type)
            << QStringLiteral("colour_pq_boxes.mp4") << QString::fromLatin1(type) << pq;
        QTest::addRow("HLG, %s", type)
            << QStringLiteral("colour_hlg.mkv") << QString::fromLatin1(type) << hlg;
    }
}

void StillsHdrTest::storedPictures_haveTheVideosValues()
{
    QFETCH(const QString, file);
    QFETCH(const QString, type);
    QFETCH(const QByteArray, codePoints);
    const TestDir dir;
    const QString path = takeFirst(samplePath(file), storedAs(type), dir.path());
    const QImage image = QImage(path).convertToFormat(QImage::Format_RGBA64);
    QVERIFY(!image.isNull());
    const ColourSample& sample = colourSample(file);
    const QList<testsupport::PatchCodes> patches = testsupport::patchCodes(sample);
    for (int i = 0; i < patches.size(); ++i) {
        const QPoint middle = testsupport::patchArea(sample, i).center();
        const auto pixel =
            reinterpret_cast<const QRgba64*>(image.constScanLine(middle.y()))[middle.x()];
        QVERIFY(isNear(pixel, testsupport::valuesOf(patches[i], sample)));
    }
    // In the profile, and for PNG also in a chunk.
    const QByteArray profile = QImage(path).colorSpace().iccProfile();
    QVERIFY(profile.contains("cicp" + QByteArray(4, '\0') + codePoints));
    const bool hasChunk = contentOf(path).contains("cICP" + codePoints);
    QCOMPARE(hasChunk, type == QStringLiteral("png"));
}

void StillsHdrTest::otherVideos_giveTheSamePictures()
{
    for (const char* const file : {"h264_bframes.mp4", "hevc_10bit.mkv", "colour_p3.mp4"}) {
        const TestDir stored;
        const TestDir usual;
        const QString video = samplePath(QString::fromLatin1(file));
        const QImage a(takeFirst(video, storedAs(QStringLiteral("png")), stored.path()));
        const QImage b(
            takeFirst(video, {QStringLiteral("-f"), QStringLiteral("png")}, usual.path()));
        QVERIFY(!a.isNull());
        QCOMPARE(a, b);
        QVERIFY(a.colorSpace() == QColorSpace(QColorSpace::SRgb));
    }
}

void StillsHdrTest::sheets_areForScreens_alsoBesideStoredPictures()
{
    const QString video = samplePath(QStringLiteral("colour_pq_sei.mp4"));
    const auto sheetOf = [&video](const QStringList& options) {
        const TestDir dir;
        const ProgramResult result = stillsprogram::run(
            QStringList{video, QStringLiteral("--count"), QStringLiteral("2"),
                        QStringLiteral("--sheet"), QStringLiteral("-o"), dir.path()} +
            options);
        return result.succeeded() ? QImage(dir.filePath(QStringLiteral("colour_pq_sei-sheet.png")))
                                  : QImage();
    };
    const QStringList stored = storedAs(QStringLiteral("png"));
    const QImage alone = sheetOf({QStringLiteral("--format"), QStringLiteral("png")});
    QVERIFY(!alone.isNull());
    QCOMPARE(sheetOf(stored + QStringList{QStringLiteral("--with-pictures")}), alone);
}

void StillsHdrTest::stored_isRefused_forFilesThatCannotHoldIt()
{
    const QString video = samplePath(QStringLiteral("colour_pq_sei.mp4"));
    for (const char* const type : {"jpg", "bmp"}) {
        const TestDir dir;
        const ProgramResult result =
            stillsprogram::run(QStringList{video, QStringLiteral("-o"), dir.path()} +
                               storedAs(QString::fromLatin1(type)));
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.standardError.contains("--format png or tiff"),
                 result.standardError.constData());
        QVERIFY(filesIn(dir.path()).isEmpty());
    }
}

void StillsHdrTest::storedPicture_canBeMadeAgain()
{
    const TestDir dir;
    const QString video = samplePath(QStringLiteral("colour_pq_sei.mp4"));
    const QString path = takeFirst(video, storedAs(QStringLiteral("png")), dir.path());
    const TestDir again;
    const ProgramResult result = stillsprogram::run(
        {QStringLiteral("--like"), path, video, QStringLiteral("-o"), again.path()});
    QVERIFY2(result.succeeded(), result.standardError.constData());
    const QString second = again.path() + QLatin1Char('/') + filesIn(again.path()).value(0);
    QVERIFY(!contentOf(path).isEmpty());
    QVERIFY(contentOf(second) == contentOf(path));
}

void StillsHdrTest::whatIsNotShown_isSaidOnce_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("words");
    QTest::newRow("Dolby Vision") << QStringLiteral("colour_dolby_vision.mp4")
                                  << QByteArray("Dolby Vision; its pictures are made of the base");
    QTest::newRow("Dolby Vision alone") << QStringLiteral("colour_dolby_vision_alone.mp4")
                                        << QByteArray("colours of its pictures are not right");
    QTest::newRow("HDR10+") << QStringLiteral("colour_hdr10_plus.mkv") << QByteArray("HDR10+");
    QTest::newRow("HDR10") << QStringLiteral("colour_pq_sei.mp4") << QByteArray();
}

void StillsHdrTest::whatIsNotShown_isSaidOnce()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, words);
    const TestDir dir;
    const QStringList arguments{samplePath(file), QStringLiteral("--count"), QStringLiteral("3"),
                                QStringLiteral("-o"), dir.path()};
    const ProgramResult result = stillsprogram::run(arguments);
    QVERIFY(result.succeeded());
    QCOMPARE(filesIn(dir.path()).size(), 3);
    QCOMPARE(result.standardError.count("The video is"), words.isEmpty() ? 0 : 1);
    QVERIFY2(result.standardError.contains(words), result.standardError.constData());
    const TestDir quiet;
    const ProgramResult silent = stillsprogram::run(
        {samplePath(file), QStringLiteral("--quiet"), QStringLiteral("-o"), quiet.path()});
    QCOMPARE(silent.standardError, QByteArray());
}

QTEST_MAIN(StillsHdrTest)
#include "StillsHdrTest.moc"
