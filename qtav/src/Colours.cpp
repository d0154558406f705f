#include "qtav/src/Colours.h"

#include "qtav/src/FFmpegCompat.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

extern "C" {
#include <libavutil/mastering_display_metadata.h>
}

namespace QtAV {

namespace {

constexpr double usualPeakNits = 1000.0;

/// Values outside this range are not valid statements; PQ ends at the upper limit.
constexpr double leastPeakNits = 100.0;
constexpr double brightestNits = 10000.0;

// SMPTE ST 2084.
constexpr double m1 = 2610.0 / 16384.0;
constexpr double m2 = 2523.0 / 4096.0 * 128.0;
constexpr double c1 = 3424.0 / 4096.0;
constexpr double c2 = 2413.0 / 4096.0 * 32.0;
constexpr double c3 = 2392.0 / 4096.0 * 32.0;

// ITU-R BT.2100.
constexpr double hlgA = 0.17883277;
constexpr double hlgB = 1.0 - 4.0 * hlgA;

double hlgC()
{
    return 0.5 - hlgA * std::log(4.0 * hlgA);
}

/// Copies side data of the stream to a picture. Skips it when memory runs out.
void addSideData(AVFrame& frame, AVFrameSideDataType type, const SideData& data)
{
    AVFrameSideData* const copy =
        data.data ? av_frame_new_side_data(&frame, type, data.size) : nullptr;
    if (copy) {
        std::copy_n(data.data, data.size, copy->data);
    }
}

void completeSideData(AVFrame& frame, const AVFrame& stated, AVFrameSideDataType type)
{
    const AVFrameSideData* const data = av_frame_get_side_data(&stated, type);
    if (data && !av_frame_get_side_data(&frame, type)) {
        addSideData(frame, type, {data->data, data->size});
    }
}

std::optional<double> contentPeak(const AVFrame& frame)
{
    const AVFrameSideData* const data =
        av_frame_get_side_data(&frame, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL);
    if (!data || data->size < sizeof(AVContentLightMetadata)) {
        return std::nullopt;
    }
    return reinterpret_cast<const AVContentLightMetadata*>(data->data)->MaxCLL;
}

std::optional<double> masteringPeak(const AVFrame& frame)
{
    const AVFrameSideData* const data =
        av_frame_get_side_data(&frame, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA);
    if (!data || data->size < sizeof(AVMasteringDisplayMetadata)) {
        return std::nullopt;
    }
    const auto& display = *reinterpret_cast<const AVMasteringDisplayMetadata*>(data->data);
    if (!display.has_luminance || display.max_luminance.den == 0) {
        return std::nullopt;
    }
    return av_q2d(display.max_luminance);
}

double peakOf(const AVFrame& frame)
{
    for (const std::optional<double> peak : {contentPeak(frame), masteringPeak(frame)}) {
        if (peak && *peak >= leastPeakNits && *peak <= brightestNits) {
            return *peak;
        }
    }
    return usualPeakNits;
}

Colours::Transfer transferOf(const AVFrame& frame)
{
    switch (frame.color_trc) {
    case AVCOL_TRC_SMPTE2084:
        return Colours::Transfer::Pq;
    case AVCOL_TRC_ARIB_STD_B67:
        return Colours::Transfer::Hlg;
    default:
        return Colours::Transfer::Standard;
    }
}

Colours::Primaries primariesOf(const AVFrame& frame)
{
    switch (frame.color_primaries) {
    case AVCOL_PRI_BT2020:
        return Colours::Primaries::Bt2020;
    case AVCOL_PRI_SMPTE431:
    case AVCOL_PRI_SMPTE432:
        return Colours::Primaries::P3;
    default:
        break;
    }
    // The defaults for high dynamic range if the file does not state them.
    const bool isHdr = transferOf(frame) != Colours::Transfer::Standard;
    return isHdr && frame.color_primaries == AVCOL_PRI_UNSPECIFIED ? Colours::Primaries::Bt2020
                                                                   : Colours::Primaries::Standard;
}

/// The value, or another one if it is none of its enumeration: FFmpeg passes on any number that it
/// finds in a file.
template <typename Value>
Value knownOr(Value other, const Value& value, Value end)
{
    int number = 0;
    static_assert(sizeof number == sizeof value);
    std::memcpy(&number, &value, sizeof number);
    return number >= 0 && number < static_cast<int>(end) ? value : other;
}

} // namespace

bool Colours::isStandard() const
{
    return transfer == Transfer::Standard && primaries == Primaries::Standard;
}

bool Colours::operator==(const Colours& other) const
{
    return StoredColours::operator==(other) && peakNits == other.peakNits;
}

FramePtr statedColours(const AVStream& stream)
{
    FramePtr stated = makeFrame();
    const AVCodecParameters& codec = *stream.codecpar;
    stated->color_primaries = knownOr(AVCOL_PRI_UNSPECIFIED, codec.color_primaries, AVCOL_PRI_NB);
    stated->color_trc = knownOr(AVCOL_TRC_UNSPECIFIED, codec.color_trc, AVCOL_TRC_NB);
    stated->colorspace = knownOr(AVCOL_SPC_UNSPECIFIED, codec.color_space, AVCOL_SPC_NB);
    stated->color_range = knownOr(AVCOL_RANGE_UNSPECIFIED, codec.color_range, AVCOL_RANGE_NB);
    addSideData(*stated, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL,
                sideDataOf(stream, AV_PKT_DATA_CONTENT_LIGHT_LEVEL));
    addSideData(*stated, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA,
                sideDataOf(stream, AV_PKT_DATA_MASTERING_DISPLAY_METADATA));
    return stated;
}

void forgetUnknownColours(AVFrame& frame)
{
    frame.color_primaries = knownOr(AVCOL_PRI_UNSPECIFIED, frame.color_primaries, AVCOL_PRI_NB);
    frame.color_trc = knownOr(AVCOL_TRC_UNSPECIFIED, frame.color_trc, AVCOL_TRC_NB);
    frame.colorspace = knownOr(AVCOL_SPC_UNSPECIFIED, frame.colorspace, AVCOL_SPC_NB);
    frame.color_range = knownOr(AVCOL_RANGE_UNSPECIFIED, frame.color_range, AVCOL_RANGE_NB);
    frame.chroma_location =
        knownOr(AVCHROMA_LOC_UNSPECIFIED, frame.chroma_location, AVCHROMA_LOC_NB);
}

void completeColours(AVFrame& frame, const AVFrame& stated)
{
    if (frame.color_primaries == AVCOL_PRI_UNSPECIFIED) {
        frame.color_primaries = stated.color_primaries;
    }
    if (frame.color_trc == AVCOL_TRC_UNSPECIFIED) {
        frame.color_trc = stated.color_trc;
    }
    if (frame.colorspace == AVCOL_SPC_UNSPECIFIED) {
        frame.colorspace = stated.colorspace;
    }
    if (frame.color_range == AVCOL_RANGE_UNSPECIFIED) {
        frame.color_range = stated.color_range;
    }
    completeSideData(frame, stated, AV_FRAME_DATA_CONTENT_LIGHT_LEVEL);
    completeSideData(frame, stated, AV_FRAME_DATA_MASTERING_DISPLAY_METADATA);
}

Colours coloursOf(const AVFrame& frame)
{
    Colours colours;
    colours.transfer = transferOf(frame);
    colours.primaries = primariesOf(frame);
    if (colours.transfer == Colours::Transfer::Pq) {
        colours.peakNits = peakOf(frame);
    } else if (colours.transfer == Colours::Transfer::Hlg) {
        colours.peakNits = usualPeakNits; // the display for which its system gamma is 1.2
    }
    return colours;
}

std::array<double, 9> matrixToStandard(Colours::Primaries primaries)
{
    switch (primaries) {
    case Colours::Primaries::P3:
        return {1.2249401763, -0.2249401763, 0.0,           -0.0420569547, 1.0420569547,
                0.0,          -0.0196375546, -0.0786360456, 1.0982736001};
    case Colours::Primaries::Bt2020:
        return {1.6604910021,  -0.5876411388, -0.0728498633, -0.1245504745, 1.1328998971,
                -0.0083494226, -0.0181507634, -0.1005788980, 1.1187296614};
    case Colours::Primaries::Standard:
        break;
    }
    return {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
}

std::array<double, 9> matrixFromStandard(Colours::Primaries primaries)
{
    switch (primaries) {
    case Colours::Primaries::P3:
        return {0.8224619687, 0.1775380313, 0.0,          0.0331941989, 0.9668058011,
                0.0,          0.0170826307, 0.0723974407, 0.9105199286};
    case Colours::Primaries::Bt2020:
        return {0.6274038959, 0.3292830384, 0.0433130657, 0.0690972894, 0.9195403951,
                0.0113623156, 0.0163914389, 0.0880133079, 0.8955952532};
    case Colours::Primaries::Standard:
        break;
    }
    return {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
}

double pqToNits(double value)
{
    const double power = std::pow(std::clamp(value, 0.0, 1.0), 1.0 / m2);
    return brightestNits * std::pow(std::max(power - c1, 0.0) / (c2 - c3 * power), 1.0 / m1);
}

double nitsToPq(double nits)
{
    const double power = std::pow(std::clamp(nits / brightestNits, 0.0, 1.0), m1);
    return std::pow((c1 + c2 * power) / (1.0 + c3 * power), m2);
}

double hlgToScene(double value)
{
    const double v = std::clamp(value, 0.0, 1.0);
    return v <= 0.5 ? v * v / 3.0 : (std::exp((v - hlgC()) / hlgA) + hlgB) / 12.0;
}

double sceneToHlg(double light)
{
    const double l = std::clamp(light, 0.0, 1.0);
    return l <= 1.0 / 12.0 ? std::sqrt(3.0 * l) : hlgA * std::log(12.0 * l - hlgB) + hlgC();
}

double linearToSrgb(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

double srgbToLinear(double value)
{
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double toneMapped(double nits, double peakNits, double whiteNits)
{
    const double peak = nitsToPq(peakNits);
    const double white = nitsToPq(whiteNits) / peak;
    const double value = std::min(nitsToPq(nits) / peak, 1.0);
    const double knee = 1.5 * white - 0.5;
    if (white >= 1.0 || value <= knee) {
        return std::min(nits, whiteNits);
    }
    // Hermite's spline from the knee to white.
    const double t = (value - knee) / (1.0 - knee);
    const double t2 = t * t;
    const double t3 = t2 * t;
    const double result = (2.0 * t3 - 3.0 * t2 + 1.0) * knee + (t3 - 2.0 * t2 + t) * (1.0 - knee) +
                          (-2.0 * t3 + 3.0 * t2) * white;
    return pqToNits(result * peak);
}

} // namespace QtAV
