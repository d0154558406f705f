#include "tests/support/ColourSamples.h"

namespace testsupport {

namespace {

constexpr QSize standardSize{320, 240};
constexpr QSize highSize{1280, 720};
constexpr int columns = 4;
constexpr int rows = 2;
constexpr int margin = 16;

QString container(int bits)
{
    return bits == 8 ? QStringLiteral("8bit.mp4") : QStringLiteral("10bit.mkv");
}

QList<ColourSample> colourSampleTable()
{
    const QList<QPair<QString, Matrix>> matrices{{QStringLiteral("bt601"), Matrix::Bt601},
                                                 {QStringLiteral("bt709"), Matrix::Bt709},
                                                 {QStringLiteral("bt2020"), Matrix::Bt2020}};
    QList<ColourSample> samples;
    for (const int bits : {8, 10}) {
        for (const auto& [name, matrix] : matrices) {
            for (const bool full : {false, true}) {
                const QString range = full ? QStringLiteral("full") : QStringLiteral("limited");
                const bool isWide = matrix == Matrix::Bt2020;
                samples.append({QStringLiteral("colour_%1_%2_%3").arg(name, range, container(bits)),
                                matrix, full, true, bits, standardSize, Transfer::Standard,
                                isWide ? Primaries::Bt2020 : Primaries::Standard});
            }
        }
        samples.append({QStringLiteral("colour_untagged_sd_") + container(bits), Matrix::Bt601,
                        false, false, bits, standardSize});
        samples.append({QStringLiteral("colour_untagged_hd_") + container(bits), Matrix::Bt709,
                        false, false, bits, highSize});
    }
    samples.append({QStringLiteral("colour_untagged_cropped.mp4"), Matrix::Bt709, false, false, 8,
                    QSize(1280, 528)});
    samples.append({QStringLiteral("colour_p3.mp4"), Matrix::Bt709, false, true, 8, standardSize,
                    Transfer::Standard, Primaries::P3});
    const auto addHdr = [&samples](const char* file, Transfer transfer, double peakNits) {
        samples.append({QLatin1String(file), Matrix::Bt2020, false, true, 10, standardSize,
                        transfer, Primaries::Bt2020, peakNits});
    };
    addHdr("colour_pq_sei.mp4", Transfer::Pq, 600.0);
    addHdr("colour_dolby_vision.mp4", Transfer::Pq, 600.0);
    addHdr("colour_hdr10_plus.mkv", Transfer::Pq, 600.0);
    addHdr("colour_pq_boxes.mp4", Transfer::Pq, 4000.0);
    addHdr("colour_pq_plain.mkv", Transfer::Pq, 1000.0);
    addHdr("colour_hlg.mkv", Transfer::Hlg, 1000.0);
    return samples;
}

} // namespace

const QList<ColourSample>& colourSamples()
{
    static const QList<ColourSample> samples = colourSampleTable();
    return samples;
}

QList<PatchCodes> patchCodes(const ColourSample& sample)
{
    // The values of tests/media/recipes/40_colours.sh.
    QList<PatchCodes> codes{{16, 128, 128},  {235, 128, 128}, {60, 128, 128},  {120, 100, 160},
                            {120, 160, 100}, {150, 100, 110}, {100, 150, 150}, {81, 90, 240}};
    if (sample.bits == 10) {
        for (PatchCodes& patch : codes) {
            patch = {4 * patch.y + 1, 4 * patch.cb + 1, 4 * patch.cr + 1};
        }
    }
    return codes;
}

QRect patchArea(const ColourSample& sample, int patch)
{
    const int top = sample.size.height() / 12 * 2;
    const int width = sample.size.width() / columns;
    const int height = (sample.size.height() - top) / rows;
    const QRect whole(patch % columns * width, top + patch / columns * height, width, height);
    return whole.adjusted(margin, margin, -margin, -margin);
}

} // namespace testsupport
