#include "tests/support/ColourSamples.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Samples.h"

#include <QFile>
#include <QTest>

using namespace testsupport;

Q_DECLARE_METATYPE(testsupport::ColourSample)

namespace {

/// The tag of a matrix as ffprobe names it.
QByteArray matrixTag(const ColourSample& sample)
{
    if (!sample.tagged) {
        return "unknown";
    }
    switch (sample.matrix) {
    case Matrix::Bt601:
        return "smpte170m";
    case Matrix::Bt709:
        return "bt709";
    case Matrix::Bt2020:
        return "bt2020nc";
    }
    return {};
}

QByteArray rangeTag(const ColourSample& sample)
{
    if (!sample.tagged) {
        return "unknown";
    }
    return sample.fullRange ? "pc" : "tv";
}

/// The stored planes of the first frame, with each code in the bytes of its depth.
QByteArray storedFrame(const ColourSample& sample)
{
    return runProgram(QStringLiteral("ffmpeg"),
                      {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"),
                       samplePath(sample.file), QStringLiteral("-frames:v"), QStringLiteral("1"),
                       QStringLiteral("-f"), QStringLiteral("rawvideo"), QStringLiteral("-")})
        .standardOutput;
}

int codeAt(const QByteArray& frame, const ColourSample& sample, int index)
{
    const auto byte = [&](int at) { return int(quint8(frame.at(at))); };
    return sample.bits == 8 ? byte(index) : byte(2 * index) + 256 * byte(2 * index + 1);
}

} // namespace

class ColourSamplesTest : public QObject
{
    Q_OBJECT

    static void addRows()
    {
        QTest::addColumn<ColourSample>("sample");
        for (const ColourSample& sample : colourSamples()) {
            QTest::newRow(qUtf8Printable(sample.file)) << sample;
        }
    }

private slots:
    void tags_areThoseOfTheManifest_data() { addRows(); }
    void tags_areThoseOfTheManifest()
    {
        QFETCH(ColourSample, sample);
        const auto result = runProgram(
            QStringLiteral("ffprobe"),
            {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
             QStringLiteral("stream=width,height,color_range,color_space"), QStringLiteral("-of"),
             QStringLiteral("csv=p=0"), samplePath(sample.file)});
        if (sample.file == QLatin1String("colour_pq_boxes.mp4")) {
            // The stream states nothing, and then ffprobe drops what the container states.
            QFile file(samplePath(sample.file));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QVERIFY(file.readAll().contains(QByteArray("colrnclx\0\x09\0\x10\0\x09\0", 15)));
            return;
        }
        const QByteArray size = QByteArray::number(sample.size.width()) + "," +
                                QByteArray::number(sample.size.height());
        // A comma follows them if the stream has side data, too.
        const QList<QByteArray> told = result.standardOutput.trimmed().split(',').mid(0, 4);
        QCOMPARE(told.join(','), size + "," + rangeTag(sample) + "," + matrixTag(sample));
    }

    void codes_areThoseOfTheManifest_inWholePatches_data() { addRows(); }
    void codes_areThoseOfTheManifest_inWholePatches()
    {
        QFETCH(ColourSample, sample);
        const QByteArray frame = storedFrame(sample);
        const int width = sample.size.width();
        const int luma = width * sample.size.height();
        QCOMPARE(frame.size(), luma * 3 / 2 * (sample.bits == 8 ? 1 : 2));
        const QList<PatchCodes> codes = patchCodes(sample);
        for (int patch = 0; patch < codes.size(); ++patch) {
            const QRect area = patchArea(sample, patch);
            for (int y = area.top(); y <= area.bottom(); ++y) {
                for (int x = area.left(); x <= area.right(); ++x) {
                    const int chroma = luma + y / 2 * (width / 2) + x / 2;
                    QCOMPARE(codeAt(frame, sample, y * width + x), codes[patch].y);
                    QCOMPARE(codeAt(frame, sample, chroma), codes[patch].cb);
                    QCOMPARE(codeAt(frame, sample, chroma + luma / 4), codes[patch].cr);
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(ColourSamplesTest)
#include "ColourSamplesTest.moc"
