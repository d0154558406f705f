#include "imaging/HdrColours.h"

#include <QColor>
#include <QRgba64>
#include <QtEndian>

#include <lcms2.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace {

using QtAV::StoredColours;
using Primaries = StoredColours::Primaries;
using Transfer = StoredColours::Transfer;

struct ProfileDeleter
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using ProfilePtr = std::unique_ptr<void, ProfileDeleter>;

struct CurveDeleter
{
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using CurvePtr = std::unique_ptr<cmsToneCurve, CurveDeleter>;

struct TextDeleter
{
    void operator()(cmsMLU* text) const { cmsMLUfree(text); }
};
using TextPtr = std::unique_ptr<cmsMLU, TextDeleter>;

constexpr cmsCIExyY whiteOfD65{0.3127, 0.3290, 1.0};
constexpr int curveEntries = 4096;

constexpr Transfer transfers[] = {Transfer::Pq, Transfer::Hlg};
constexpr Primaries allPrimaries[] = {Primaries::Bt2020, Primaries::P3, Primaries::Standard};

char numberOf(Primaries primaries)
{
    switch (primaries) {
    case Primaries::Bt2020:
        return 9;
    case Primaries::P3:
        return 12;
    case Primaries::Standard:
        break;
    }
    return 1;
}

/// The code points of ITU-T H.273 for primaries, curve, matrix (none) and range (full).
QByteArray codePointsOf(const StoredColours& colours)
{
    const std::array<char, 4> codes{numberOf(colours.primaries),
                                    static_cast<char>(colours.transfer == Transfer::Pq ? 16 : 18),
                                    0, 1};
    return {codes.data(), static_cast<int>(codes.size())};
}

/// Written as a raw tag: the library's own writer puts four superfluous bytes before them.
bool writeCodePoints(void* profile, const StoredColours& colours)
{
    const QByteArray content = "cicp" + QByteArray(4, '\0') + codePointsOf(colours);
    return cmsWriteRawTag(profile, cmsSigcicpTag, content.constData(),
                          static_cast<cmsUInt32Number>(content.size())) != 0;
}

/// The profile's file with a fixed date, so that the same picture always gives the same file.
QByteArray withoutDate(QByteArray file)
{
    constexpr int dateOffset = 24;
    const std::array<char, 12> firstOf2026{0x07, static_cast<char>(0xEA), 0, 1, 0, 1};
    return file.replace(dateOffset, static_cast<int>(firstOf2026.size()), firstOf2026.data(),
                        static_cast<int>(firstOf2026.size()));
}

cmsCIExyYTRIPLE chromaticitiesOf(Primaries primaries)
{
    switch (primaries) {
    case Primaries::Bt2020:
        return {{0.708, 0.292, 1.0}, {0.170, 0.797, 1.0}, {0.131, 0.046, 1.0}};
    case Primaries::P3:
        return {{0.680, 0.320, 1.0}, {0.265, 0.690, 1.0}, {0.150, 0.060, 1.0}};
    case Primaries::Standard:
        break;
    }
    return {{0.640, 0.330, 1.0}, {0.300, 0.600, 1.0}, {0.150, 0.060, 1.0}};
}

const char* nameOf(const StoredColours& colours)
{
    const bool isPq = colours.transfer == Transfer::Pq;
    switch (colours.primaries) {
    case Primaries::Bt2020:
        return isPq ? "BT.2020 PQ" : "BT.2020 HLG";
    case Primaries::P3:
        return isPq ? "Display P3 PQ" : "Display P3 HLG";
    case Primaries::Standard:
        break;
    }
    return isPq ? "BT.709 PQ" : "BT.709 HLG";
}

CurvePtr curveOf(const StoredColours& colours)
{
    std::vector<cmsUInt16Number> entries(curveEntries);
    for (int i = 0; i < curveEntries; ++i) {
        const double light = colours.lightOf(static_cast<double>(i) / (curveEntries - 1));
        entries[static_cast<std::size_t>(i)] =
            static_cast<cmsUInt16Number>(std::clamp(light, 0.0, 1.0) * 65535.0 + 0.5);
    }
    return CurvePtr(cmsBuildTabulatedToneCurve16(nullptr, curveEntries, entries.data()));
}

bool writeText(void* profile, cmsTagSignature tag, const char* text)
{
    const TextPtr written(cmsMLUalloc(nullptr, 1));
    return written && cmsMLUsetASCII(written.get(), "en", "US", text) != 0 &&
           cmsWriteTag(profile, tag, written.get()) != 0;
}

/// The profile's file; empty if memory runs out.
QByteArray profileOf(const StoredColours& colours)
{
    const CurvePtr curve = curveOf(colours);
    if (!curve) {
        return {};
    }
    std::array<cmsToneCurve*, 3> curves{curve.get(), curve.get(), curve.get()};
    const cmsCIExyYTRIPLE primaries = chromaticitiesOf(colours.primaries);
    const ProfilePtr profile(cmsCreateRGBProfile(&whiteOfD65, &primaries, curves.data()));
    if (!profile) {
        return {};
    }
    cmsSetProfileVersion(profile.get(), 4.4);
    const cmsCIEXYZ brightest{0.0, colours.brightestNits(), 0.0};
    const bool isWhole = writeText(profile.get(), cmsSigProfileDescriptionTag, nameOf(colours)) &&
                         writeText(profile.get(), cmsSigCopyrightTag, "No copyright, use freely") &&
                         writeCodePoints(profile.get(), colours) &&
                         cmsWriteTag(profile.get(), cmsSigLuminanceTag, &brightest) != 0;
    cmsUInt32Number size = 0;
    if (!isWhole || cmsSaveProfileToMem(profile.get(), nullptr, &size) == 0) {
        return {};
    }
    QByteArray bytes(static_cast<int>(size), '\0');
    return cmsSaveProfileToMem(profile.get(), bytes.data(), &size) != 0 ? withoutDate(bytes)
                                                                        : QByteArray();
}

struct KnownSpace
{
    StoredColours colours;
    QColorSpace space;
};

const std::vector<KnownSpace>& knownSpaces()
{
    static const std::vector<KnownSpace> known = [] {
        std::vector<KnownSpace> spaces;
        for (const Transfer transfer : transfers) {
            for (const Primaries primaries : allPrimaries) {
                const StoredColours colours{transfer, primaries};
                spaces.push_back({colours, QColorSpace::fromIccProfile(profileOf(colours))});
            }
        }
        return spaces;
    }();
    return known;
}

void appendNumber(QByteArray& bytes, quint32 number)
{
    std::array<char, 4> digits{};
    qToBigEndian(number, digits.data());
    bytes.append(digits.data(), static_cast<int>(digits.size()));
}

QByteArray chunkOf(const QByteArray& name, const QByteArray& content)
{
    QByteArray chunk;
    appendNumber(chunk, static_cast<quint32>(content.size()));
    const QByteArray checked = name + content;
    chunk += checked;
    const auto* const bytes = reinterpret_cast<const Bytef*>(checked.constData());
    appendNumber(chunk, static_cast<quint32>(crc32(0, bytes, static_cast<uInt>(checked.size()))));
    return chunk;
}

QRgba64 valuesFor(QRgb premultiplied, const StoredColours& colours)
{
    const QColor colour = QColor::fromRgb(qUnpremultiply(premultiplied));
    const std::array<double, 3> values =
        colours.valuesOf({colour.redF(), colour.greenF(), colour.blueF()});
    const auto code = [](double value) { return static_cast<quint16>(value * 65535.0 + 0.5); };
    return qRgba64(code(values[0]), code(values[1]), code(values[2]), 65535);
}

/// Blends a pixel over another with an opacity from 0 to 255.
QRgba64 mixed(QRgba64 below, QRgba64 above, int opacity)
{
    const auto mix = [opacity](quint16 b, quint16 a) {
        return static_cast<quint16>((b * (255 - opacity) + a * opacity + 127) / 255);
    };
    const int alpha = below.alpha() + (65535 - below.alpha()) * opacity / 255;
    return qRgba64(mix(below.red(), above.red()), mix(below.green(), above.green()),
                   mix(below.blue(), above.blue()), static_cast<quint16>(alpha));
}

} // namespace

QColorSpace HdrColours::colorSpaceOf(const StoredColours& colours)
{
    const std::vector<KnownSpace>& spaces = knownSpaces();
    const auto found = std::find_if(spaces.begin(), spaces.end(), [&](const KnownSpace& known) {
        return known.colours == colours;
    });
    return found != spaces.end() ? found->space : QColorSpace();
}

std::optional<StoredColours> HdrColours::of(const QImage& image)
{
    const QByteArray profile = image.colorSpace().iccProfile();
    if (profile.isEmpty()) {
        return std::nullopt;
    }
    const std::vector<KnownSpace>& spaces = knownSpaces();
    const auto found = std::find_if(spaces.begin(), spaces.end(), [&](const KnownSpace& known) {
        return known.space.iccProfile() == profile;
    });
    return found != spaces.end() ? std::make_optional(found->colours) : std::nullopt;
}

QByteArray HdrColours::withCodePoints(const QByteArray& png, const StoredColours& colours)
{
    // The signature, and the header chunk with its length, name and checksum.
    constexpr int endOfHeader = 8 + 4 + 4 + 13 + 4;
    if (png.size() < endOfHeader || png.mid(12, 4) != "IHDR") {
        return png;
    }
    QByteArray result = png;
    return result.insert(endOfHeader, chunkOf("cICP", codePointsOf(colours)));
}

void HdrColours::drawOver(QImage& image, const QImage& layer, const StoredColours& colours)
{
    // Neighbouring pixels of a watermark mostly have the same colour.
    QRgb lastColour = 0;
    QRgba64 lastValues = valuesFor(lastColour, colours);
    for (int y = 0; y < image.height(); ++y) {
        const auto* const above = reinterpret_cast<const QRgb*>(layer.constScanLine(y));
        auto* const line = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int opacity = qAlpha(above[x]);
            if (opacity == 0) {
                continue;
            }
            if (above[x] != lastColour) {
                lastColour = above[x];
                lastValues = valuesFor(lastColour, colours);
            }
            line[x] = mixed(line[x], lastValues, opacity);
        }
    }
}
