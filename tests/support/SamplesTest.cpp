#include "tests/support/Samples.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/RunProgram.h"

#include <QtTest>

using namespace testsupport;

Q_DECLARE_METATYPE(testsupport::Sample)

namespace {

/// The pictures of the first video, upright, in the order of showing and in the size as stored.
QList<QImage> decodedByFfmpeg(const Sample& sample)
{
    const bool sideways = sample.has(Trait::Sideways);
    const QSize size = sideways ? sample.codedSize.transposed() : sample.codedSize;
    const auto result = runProgram(
        QStringLiteral("ffmpeg"),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-nostdin"),
         QStringLiteral("-i"), samplePath(sample.file), QStringLiteral("-map"),
         QStringLiteral("0:V:0"), QStringLiteral("-vsync"), QStringLiteral("passthrough"),
         QStringLiteral("-pix_fmt"), QStringLiteral("gray"), QStringLiteral("-f"),
         QStringLiteral("rawvideo"), QStringLiteral("-")});
    if (!result.succeeded())
        qWarning("%s", result.standardError.constData());
    const int pictureBytes = size.width() * size.height();
    QList<QImage> pictures;
    for (int at = 0; at + pictureBytes <= result.standardOutput.size(); at += pictureBytes) {
        const auto* bytes = reinterpret_cast<const uchar*>(result.standardOutput.constData());
        pictures.append(
            QImage(bytes + at, size.width(), size.height(), size.width(), QImage::Format_Grayscale8)
                .copy());
    }
    return pictures;
}

} // namespace

/// Compares the manifest with what ffmpeg finds in the files.
class SamplesTest : public QObject
{
    Q_OBJECT

    static void addVideoRows()
    {
        QTest::addColumn<Sample>("sample");
        for (const Sample& sample : allVideoSamples())
            QTest::newRow(qUtf8Printable(sample.file)) << sample;
    }

private slots:
    void frames_bearTheirNumbers_data() { addVideoRows(); }
    void frames_bearTheirNumbers()
    {
        QFETCH(Sample, sample);
        const QList<QImage> pictures = decodedByFfmpeg(sample);
        QCOMPARE(pictures.size(), sample.frames);
        for (int n = 0; n < pictures.size(); ++n)
            QCOMPARE(frameNumber(pictures[n]).value_or(-1), sample.firstNumber + n);
    }
};

QTEST_GUILESS_MAIN(SamplesTest)
#include "SamplesTest.moc"
