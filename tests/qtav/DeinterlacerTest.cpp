#include <QtAV/FrameReader.h>
#include <QtAV/Times.h>

#include "tests/qtav/Decoding.h"
#include "tests/qtav/Grey.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

#include <cmath>

using decoding::never;
using QtAV::Deinterlacing;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// A picture within this distance of one of FFmpeg's filters is equally good.
constexpr double tolerance = 0.5; // dB
/// Maximum combing that counts as none: a factor, and a percentage of the samples.
constexpr double combingFactor = 1.5;
constexpr double combingRest = 0.5;

/// All frames of a sample, one after another.
QList<QtAV::VideoFrame> framesOf(const QString& file)
{
    QList<QtAV::VideoFrame> frames;
    QtAV::FrameReader reader;
    QString error;
    if (!reader.open(samplePath(file), never, error)) {
        return frames;
    }
    for (;;) {
        const QtAV::FrameResult result = reader.next(never);
        if (result.answer != QtAV::FrameAnswer::Frame) {
            return frames;
        }
        frames.append(result.frame);
    }
}

/// The pictures that FFmpeg makes from a sample with a filter.
QList<QImage> filtered(const TestDir& folder, const QString& sample, const QString& filter)
{
    const QString target = folder.filePath(filter + QStringLiteral(".mkv"));
    const auto result = testsupport::runProgram(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), samplePath(sample),
         QStringLiteral("-vf"), filter, QStringLiteral("-fps_mode"), QStringLiteral("passthrough"),
         QStringLiteral("-c:v"), QStringLiteral("ffv1"), target});
    return result.succeeded() ? grey::picturesOf(target, Deinterlacing::Off) : QList<QImage>();
}

/// The true moments of a sample's pictures: of its first fields, or of its film.
struct Truth
{
    QList<QImage> moments;
    double step; ///< moments from one picture to the next

    /// Similarity of a picture to its moment. For film, the moment of a picture is known only from
    /// the picture.
    double likenessOf(const QImage& picture, int n) const
    {
        if (step == double(int(step))) {
            return grey::likeness(picture, moments.at(n * int(step)));
        }
        double best = 0.0;
        for (int i = std::max(0, int(n * step) - 1); i <= int(n * step) + 1 && i < moments.size();
             ++i) {
            best = std::max(best, grey::likeness(picture, moments.at(i)));
        }
        return best;
    }
};

struct Quality
{
    double likeness = 0.0; ///< the mean
    double worst = 1000.0;
    double combing = 0.0; ///< the mean
};

Quality qualityOf(const QList<QImage>& pictures, const Truth& truth)
{
    Quality quality;
    for (int n = 0; n < pictures.size(); ++n) {
        const double likeness = truth.likenessOf(pictures.at(n), n);
        quality.likeness += likeness / pictures.size();
        quality.worst = std::min(quality.worst, likeness);
        quality.combing += grey::combing(pictures.at(n)) / pictures.size();
    }
    return quality;
}

} // namespace

/// Checks that pictures of fields become whole, and that all others stay unchanged.
class DeinterlacerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // First, because loaded libraries stay loaded.
    void filters_areLoaded_onlyForPicturesThatComb();
    void toImage_isAsGoodAsFiltering_whenFieldsAreApart_data();
    void toImage_isAsGoodAsFiltering_whenFieldsAreApart();
    void toImage_givesThePicturesOfTheFilm_whenTheyWereSpread_data();
    void toImage_givesThePicturesOfTheFilm_whenTheyWereSpread();
    void toImage_changesNothing_whenPicturesAreWhole_data();
    void toImage_changesNothing_whenPicturesAreWhole();
    void toImage_isTheSame_onEachWayToTheFrame_data();
    void toImage_isTheSame_onEachWayToTheFrame();
    void secondField_isAsGoodAsTheFirst_whenFieldsAreApart();
    void secondField_isInvalid_whenPicturesAreWhole();
};

void DeinterlacerTest::filters_areLoaded_onlyForPicturesThatComb()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.exists()) {
        QSKIP("This system does not tell which libraries are loaded.");
    }
    const auto areLoaded = [&maps] {
        const bool isOpen = maps.open(QIODevice::ReadOnly);
        const QByteArray libraries = isOpen ? maps.readAll() : QByteArray();
        maps.close();
        return libraries.contains("libavfilter");
    };
    for (const char* file : {"h264_bframes.mp4", "segmented_mpeg2.ts", "telecine_mpeg2.ts"}) {
        QVERIFY(!grey::picturesOf(samplePath(QString::fromLatin1(file)), Deinterlacing::Automatic)
                     .isEmpty());
        QVERIFY2(!areLoaded(), file);
    }
    QVERIFY(!grey::picturesOf(samplePath(QStringLiteral("fields_mpeg2_tff.ts")),
                              Deinterlacing::Automatic)
                 .isEmpty());
    QVERIFY(areLoaded());
}

void DeinterlacerTest::toImage_isAsGoodAsFiltering_whenFieldsAreApart_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("moments");
    const auto add = [](const char* file, const char* moments) {
        QTest::newRow(file) << QString::fromLatin1(file) << QString::fromLatin1(moments);
    };
    add("fields_mpeg2_tff.ts", "moments_50.mkv");
    add("fields_mpeg2_bff.mpg", "moments_50.mkv");
    add("fields_mpeg2_ntsc.mpg", "moments_5994.mkv");
    add("fields_h264_tff.mp4", "moments_50.mkv");
    add("fields_h264_bff.ts", "moments_50.mkv");
    add("fields_dv_pal.avi", "moments_pal.mkv");
    add("fields_dv_ntsc.avi", "moments_ntsc.mkv");
    add("fields_1080.ts", "moments_1080.mkv");
}

void DeinterlacerTest::toImage_isAsGoodAsFiltering_whenFieldsAreApart()
{
    QFETCH(const QString, file);
    QFETCH(const QString, moments);
    const TestDir folder;
    const Truth truth{grey::picturesOf(samplePath(moments), Deinterlacing::Off), 2.0};
    const QList<QImage> pictures = grey::picturesOf(samplePath(file), Deinterlacing::Automatic);
    const QList<QImage> yadif = filtered(folder, file, QStringLiteral("yadif"));
    const QList<QImage> bwdif = filtered(folder, file, QStringLiteral("bwdif=mode=send_frame"));
    const QList<QImage> asStored = grey::picturesOf(samplePath(file), Deinterlacing::Off);
    QVERIFY(!pictures.isEmpty());
    QCOMPARE(pictures.size(), yadif.size());
    QCOMPARE(pictures.size(), bwdif.size());
    const Quality ours = qualityOf(pictures, truth);
    const Quality theirs = qualityOf(yadif, truth);
    const Quality newer = qualityOf(bwdif, truth);
    const Quality stored = qualityOf(asStored, truth);
    qInfo("%s: ours %.2f (worst %.2f, combing %.2f), yadif %.2f (%.2f, %.2f), bwdif %.2f (%.2f, "
          "%.2f), stored %.2f (%.2f, %.2f)",
          qPrintable(file), ours.likeness, ours.worst, ours.combing, theirs.likeness, theirs.worst,
          theirs.combing, newer.likeness, newer.worst, newer.combing, stored.likeness, stored.worst,
          stored.combing);
    QVERIFY(ours.likeness >= theirs.likeness - tolerance);
    QVERIFY(ours.combing <= combingFactor * newer.combing + combingRest);
    // The sample is one with which a reader without deinterlacing fails.
    QVERIFY(stored.likeness < theirs.likeness - tolerance);
}

void DeinterlacerTest::toImage_givesThePicturesOfTheFilm_whenTheyWereSpread_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("telecine_mpeg2.ts") << QStringLiteral("telecine_mpeg2.ts");
    QTest::newRow("telecine_h264.mp4") << QStringLiteral("telecine_h264.mp4");
}

void DeinterlacerTest::toImage_givesThePicturesOfTheFilm_whenTheyWereSpread()
{
    QFETCH(const QString, file);
    const TestDir folder;
    const Truth truth{
        grey::picturesOf(samplePath(QStringLiteral("moments_film.mkv")), Deinterlacing::Off), 0.8};
    const QList<QImage> pictures = grey::picturesOf(samplePath(file), Deinterlacing::Automatic);
    // Marked as it was, so that its chroma is read in the same way.
    const QList<QImage> matched = filtered(folder, file, QStringLiteral("fieldmatch,setfield=tff"));
    const QList<QImage> yadif = filtered(folder, file, QStringLiteral("yadif"));
    QVERIFY(!pictures.isEmpty());
    const Quality ours = qualityOf(pictures, truth);
    const Quality theirs = qualityOf(matched, truth);
    const Quality other = qualityOf(yadif, truth);
    qInfo("%s: ours %.2f (worst %.2f, combing %.2f), fieldmatch %.2f (%.2f, %.2f), yadif %.2f",
          qPrintable(file), ours.likeness, ours.worst, ours.combing, theirs.likeness, theirs.worst,
          theirs.combing, other.likeness);
    QVERIFY(ours.likeness >= theirs.likeness - tolerance);
    QVERIFY(other.likeness < theirs.likeness - tolerance);
}

void DeinterlacerTest::toImage_changesNothing_whenPicturesAreWhole_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"segmented_mpeg2.ts", "segmented_h264.mp4", "segmented_1080.ts",
                             "telecine_by_flags.mkv", "dv.avi", "h264_bframes.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void DeinterlacerTest::toImage_changesNothing_whenPicturesAreWhole()
{
    QFETCH(const QString, file);
    const QList<QImage> pictures = grey::picturesOf(samplePath(file), Deinterlacing::Automatic);
    const QList<QImage> asStored = grey::picturesOf(samplePath(file), Deinterlacing::Off);
    QVERIFY(!pictures.isEmpty());
    QCOMPARE(pictures.size(), asStored.size());
    for (int n = 0; n < pictures.size(); ++n) {
        QVERIFY2(pictures.at(n) == asStored.at(n), qPrintable(QStringLiteral("picture %1").arg(n)));
    }
}

void DeinterlacerTest::toImage_isTheSame_onEachWayToTheFrame_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"fields_mpeg2_tff.ts", "fields_h264_tff.mp4", "fields_dv_pal.avi", "telecine_mpeg2.ts"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

/// Also if disposable frames are skipped on the way to it.
void DeinterlacerTest::toImage_isTheSame_onEachWayToTheFrame()
{
    QFETCH(const QString, file);
    const QList<QtAV::VideoFrame> frames = framesOf(file);
    QVERIFY(!frames.isEmpty());
    for (const bool isComplete : {true, false}) {
        QtAV::FrameReader reader;
        QString error;
        QVERIFY(reader.open(samplePath(file), never, error));
        for (int n = frames.size() - 1; n >= 0; --n) {
            const double seconds = frames.at(n).timestamp();
            const qint64 ms = QtAV::toMilliseconds(seconds);
            QtAV::FrameReader::Search search;
            search.ms = ms;
            search.completeFrom = isComplete ? 0 : ms;
            search.isReached = [seconds](const QtAV::VideoFrame& frame) {
                return frame.timestamp() >= seconds;
            };
            const QtAV::FrameResult found = reader.find(search, never);
            QCOMPARE(found.frame.timestamp(), seconds);
            QVERIFY2(found.frame.toImage() == frames.at(n).toImage(),
                     qPrintable(QStringLiteral("picture %1").arg(n)));
        }
    }
}

void DeinterlacerTest::secondField_isAsGoodAsTheFirst_whenFieldsAreApart()
{
    const QList<QtAV::VideoFrame> frames = framesOf(QStringLiteral("fields_mpeg2_tff.ts"));
    const QList<QImage> moments =
        grey::picturesOf(samplePath(QStringLiteral("moments_50.mkv")), Deinterlacing::Off);
    QVERIFY(!frames.isEmpty());
    double first = 0.0;
    double second = 0.0;
    for (int n = 0; n < frames.size(); ++n) {
        const QtAV::VideoFrame other = frames.at(n).secondField();
        QVERIFY(other.isValid());
        QVERIFY(other.isSecondField());
        QCOMPARE(other.firstField().timestamp(), frames.at(n).timestamp());
        QVERIFY(std::abs(other.timestamp() - frames.at(n).timestamp() - 0.02) < 1e-6);
        first += grey::likeness(frames.at(n).toImage(QImage::Format_Grayscale8), moments.at(2 * n));
        second += grey::likeness(other.toImage(QImage::Format_Grayscale8), moments.at(2 * n + 1));
    }
    QVERIFY2(second >= first - tolerance * frames.size(),
             qPrintable(QStringLiteral("%1 and %2").arg(first).arg(second)));
}

void DeinterlacerTest::secondField_isInvalid_whenPicturesAreWhole()
{
    for (const char* file : {"segmented_mpeg2.ts", "telecine_mpeg2.ts", "h264_bframes.mp4"}) {
        const QList<QtAV::VideoFrame> frames = framesOf(QString::fromLatin1(file));
        QVERIFY(!frames.isEmpty());
        for (const QtAV::VideoFrame& frame : frames) {
            QVERIFY2(!frame.secondField().isValid(), file);
        }
    }
}

QTEST_GUILESS_MAIN(DeinterlacerTest)
#include "DeinterlacerTest.moc"
