#pragma once

#include <QList>
#include <QRect>
#include <QString>

/// The samples of flat colours, coded without loss, and what is in them.
namespace testsupport {

/// The matrix by which a file's codes are to be converted, be it tagged or taken by the size.
enum class Matrix { Bt601, Bt709, Bt2020 };

/// What the light of a file's values is.
enum class Transfer { Standard, Pq, Hlg };
enum class Primaries { Standard, P3, Bt2020 };

struct ColourSample
{
    QString file;
    Matrix matrix = Matrix::Bt601;
    bool fullRange = false;
    bool tagged = true; ///< false: the file says nothing, and the picture's size decides
    int bits = 8;       ///< depth of the codes: 8 or 10
    QSize size;
    Transfer transfer = Transfer::Standard;
    Primaries primaries = Primaries::Standard;
    double peakNits = 0.0; ///< of the brightest light, where it is high dynamic range
};

/// The codes of one patch, in the depth of its file.
struct PatchCodes
{
    int y = 0;
    int cb = 0;
    int cr = 0;
};

/// All of them; each has 5 equal frames, but for the number, at 25 a second.
[[nodiscard]] const QList<ColourSample>& colourSamples();

/// The codes of the eight patches of a sample, from the upper left in reading order.
[[nodiscard]] QList<PatchCodes> patchCodes(const ColourSample& sample);

/// The inner part of a patch, counted from 0, clear of what chroma bleeds in from its neighbours.
[[nodiscard]] QRect patchArea(const ColourSample& sample, int patch);

} // namespace testsupport
