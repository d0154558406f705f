#pragma once

#include <QList>
#include <QRect>
#include <QString>

/// The losslessly coded samples of flat colours, and their contents.
namespace testsupport {

/// The matrix for converting a file's codes, whether tagged or implied by the size.
enum class Matrix { Bt601, Bt709, Bt2020 };

/// The transfer function of a file's values.
enum class Transfer { Standard, Pq, Hlg };
enum class Primaries { Standard, P3, Bt2020 };

struct ColourSample
{
    QString file;
    Matrix matrix = Matrix::Bt601;
    bool fullRange = false;
    bool tagged = true; ///< false if the file states nothing, and the picture's size decides
    int bits = 8;       ///< depth of the codes: 8 or 10
    QSize size;
    Transfer transfer = Transfer::Standard;
    Primaries primaries = Primaries::Standard;
    double peakNits = 0.0; ///< of the brightest light, for high dynamic range
};

/// The codes of one patch, in the bit depth of its file.
struct PatchCodes
{
    int y = 0;
    int cb = 0;
    int cr = 0;
};

/// All of them; each has 5 frames that differ only in their number, at 25 per second.
[[nodiscard]] const QList<ColourSample>& colourSamples();

/// The codes of the eight patches of a sample, from the upper left in reading order.
[[nodiscard]] QList<PatchCodes> patchCodes(const ColourSample& sample);

/// The inner part of a patch, counted from 0, unaffected by the chroma of its neighbours.
[[nodiscard]] QRect patchArea(const ColourSample& sample, int patch);

} // namespace testsupport
