#include "qtav/src/YuvLines.h"

#include "qtav/src/FFmpegCompat.h"
#include "qtav/src/SeveralProcessors.h"
#include "qtav/src/YuvToRgb.h"

#include <algorithm>
#include <cstddef>

namespace QtAV {

namespace {

constexpr int sampleBits = YuvLines::sampleBits;

FOR_SEVERAL_PROCESSORS
void widenLuma(const uint8_t* __restrict source, int16_t* __restrict target, int count)
{
    for (int i = 0; i < count; ++i) {
        target[i] = static_cast<int16_t>(source[i] << (sampleBits - 8));
    }
}

FOR_SEVERAL_PROCESSORS
void widenDeepLuma(const uint16_t* __restrict source, int16_t* __restrict target, int count,
                   int depth)
{
    // One bit more than needed, so that 16 bits are shifted in the same direction as fewer.
    const int shift = sampleBits + 1 - depth;
    for (int i = 0; i < count; ++i) {
        target[i] = static_cast<int16_t>((uint32_t(source[i]) << shift) >> 1);
    }
}

/// Two lines of chroma, mixed in eighths, with the middle subtracted.
FOR_SEVERAL_PROCESSORS
void mix(const uint8_t* __restrict near, const uint8_t* __restrict far, int nearEighths,
         int16_t* __restrict target, int count)
{
    const int farEighths = 8 - nearEighths;
    for (int i = 0; i < count; ++i) {
        target[i] = static_cast<int16_t>((near[i] * nearEighths + far[i] * farEighths - 1024) * 16);
    }
}

/// Does the same for every second byte.
FOR_SEVERAL_PROCESSORS
void mixInterleaved(const uint8_t* __restrict near, const uint8_t* __restrict far, int nearEighths,
                    int16_t* __restrict target, int count)
{
    const int farEighths = 8 - nearEighths;
    for (ptrdiff_t i = 0; i < count; ++i) {
        const int sum = near[2 * i] * nearEighths + far[2 * i] * farEighths;
        target[i] = static_cast<int16_t>((sum - 1024) * 16);
    }
}

FOR_SEVERAL_PROCESSORS
void mixDeep(const uint16_t* __restrict near, const uint16_t* __restrict far, int nearEighths,
             int16_t* __restrict target, int count, int depth)
{
    const int farEighths = 8 - nearEighths;
    const int shift = sampleBits + 1 - depth;
    for (int i = 0; i < count; ++i) {
        const uint32_t sum = near[i] * uint32_t(nearEighths) + far[i] * uint32_t(farEighths);
        target[i] = static_cast<int16_t>(int32_t((sum << shift) >> 4) - YuvLines::chromaMiddle);
    }
}

/// Doubles the samples: every second one stays in place, the others lie halfway to the next.
/// source[count] repeats the last.
FOR_SEVERAL_PROCESSORS
void doubleFromLeft(const int16_t* __restrict source, int16_t* __restrict target, int count)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        target[2 * i] = source[i];
        target[2 * i + 1] = static_cast<int16_t>((source[i] + source[i + 1] + 1) >> 1);
    }
}

/// Doubles the samples, a quarter to the left and to the right of the old ones. source[-1] and
/// source[count] repeat the outermost.
FOR_SEVERAL_PROCESSORS
void doubleFromCentre(const int16_t* __restrict source, int16_t* __restrict target, int count)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        target[2 * i] = static_cast<int16_t>((source[i] * 3 + source[i - 1] + 2) >> 2);
        target[2 * i + 1] = static_cast<int16_t>((source[i] * 3 + source[i + 1] + 2) >> 2);
    }
}

} // namespace

YuvLines::YuvLines(const AVFrame& frame)
    : m_frame(frame)
    , m_format(*av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format)))
    , m_siting(sitingOf(frame))
    , m_depth(m_format.comp[0].depth)
    , m_hasChroma(m_format.nb_components >= 3)
    , m_halvesWidth(m_format.log2_chroma_w == 1)
    , m_halvesHeight(m_format.log2_chroma_h == 1)
    , m_chromaWidth(AV_CEIL_RSHIFT(frame.width, m_format.log2_chroma_w))
    , m_chromaHeight(AV_CEIL_RSHIFT(frame.height, m_format.log2_chroma_h))
    , m_luma(static_cast<size_t>(frame.width))
    , m_narrowCb(static_cast<size_t>(m_chromaWidth) + 2)
    , m_narrowCr(static_cast<size_t>(m_chromaWidth) + 2)
    , m_cb(static_cast<size_t>(m_chromaWidth) * 2)
    , m_cr(static_cast<size_t>(m_chromaWidth) * 2)
{}

void YuvLines::moveTo(int line)
{
    m_line = line;
    if (!m_hasChroma) {
        return;
    }
    const ChromaLines lines = chromaLines();
    if (!m_halvesWidth) {
        mixChroma(1, lines, m_cb.data());
        mixChroma(2, lines, m_cr.data());
        return;
    }
    mixChroma(1, lines, m_narrowCb.data() + 1);
    mixChroma(2, lines, m_narrowCr.data() + 1);
    repeatEnds(m_narrowCb);
    repeatEnds(m_narrowCr);
}

bool YuvLines::isPlainHalved() const
{
    return m_hasChroma && m_halvesWidth && m_depth == 8 && m_siting.isLeft;
}

void YuvLines::widen(int from)
{
    if (m_hasChroma && m_halvesWidth) {
        widenChroma(m_narrowCb, m_cb, from);
        widenChroma(m_narrowCr, m_cr, from);
    }
    const int count = m_frame.width - from;
    if (m_depth == 8) {
        widenLuma(at(0, m_line) + from, m_luma.data() + from, count);
    } else {
        widenDeepLuma(deepAt(0, m_line) + from, m_luma.data() + from, count, m_depth);
    }
}

YuvLines::Siting YuvLines::sitingOf(const AVFrame& frame)
{
    switch (YuvToRgb::chromaLocationOf(frame)) {
    case AVCHROMA_LOC_CENTER:
        return {false, Siting::Vertical::Centre};
    case AVCHROMA_LOC_TOPLEFT:
        return {true, Siting::Vertical::Top};
    case AVCHROMA_LOC_TOP:
        return {false, Siting::Vertical::Top};
    case AVCHROMA_LOC_BOTTOMLEFT:
        return {true, Siting::Vertical::Bottom};
    case AVCHROMA_LOC_BOTTOM:
        return {false, Siting::Vertical::Bottom};
    default:
        return {true, Siting::Vertical::Centre};
    }
}

YuvLines::ChromaLines YuvLines::chromaLines() const
{
    if (!m_halvesHeight) {
        return {m_line, m_line, 8};
    }
    return isInterlaced(m_frame) ? fieldChromaLinesFor(m_line, m_chromaHeight, m_siting.vertical)
                                 : chromaLinesFor(m_line, m_chromaHeight, m_siting.vertical);
}

YuvLines::ChromaLines YuvLines::chromaLinesFor(int line, int lines, Siting::Vertical vertical)
{
    const int own = line / 2;
    const bool isUpper = line % 2 == 0;
    const int above = std::max(own - 1, 0);
    const int below = std::min(own + 1, lines - 1);
    switch (vertical) {
    case Siting::Vertical::Top:
        return isUpper ? ChromaLines{own, own, 8} : ChromaLines{own, below, 4};
    case Siting::Vertical::Bottom:
        return isUpper ? ChromaLines{own, above, 4} : ChromaLines{own, own, 8};
    case Siting::Vertical::Centre:
        break;
    }
    return {own, isUpper ? above : below, 6};
}

/// The lines of an interlaced picture belong to two moments: chroma stays within its own field.
///
/// Chroma lines keep their position relative to the whole picture. Halfway between two lines of the
/// picture is a quarter below a line of the upper field, and three quarters below one of the lower
/// field.
YuvLines::ChromaLines YuvLines::fieldChromaLinesFor(int line, int lines, Siting::Vertical vertical)
{
    const int field = line % 2;
    const int fieldLines = (lines + 1 - field) / 2;
    if (fieldLines == 0) {
        return {0, 0, 8};
    }
    const int lineOfField = line / 2;
    const int own = std::min(lineOfField / 2, fieldLines - 1);
    const bool isUpper = lineOfField % 2 == 0;
    const int above = std::max(own - 1, 0);
    const int below = std::min(own + 1, fieldLines - 1);
    // Converts to the lines of the picture, as used for progressive pictures.
    const auto inPicture = [field](int near, int far, int nearEighths) {
        return ChromaLines{2 * near + field, 2 * far + field, nearEighths};
    };
    switch (vertical) {
    case Siting::Vertical::Top:
        return isUpper ? inPicture(own, own, 8) : inPicture(own, below, 4);
    case Siting::Vertical::Bottom:
        return isUpper ? inPicture(own, above, 4) : inPicture(own, own, 8);
    case Siting::Vertical::Centre:
        break;
    }
    const bool isNearer = isUpper == (field == 0);
    return inPicture(own, isUpper ? above : below, isNearer ? 7 : 5);
}

const uint8_t* YuvLines::at(int component, int line) const
{
    const AVComponentDescriptor& c = m_format.comp[component];
    return m_frame.data[c.plane] + ptrdiff_t(line) * m_frame.linesize[c.plane] + c.offset;
}

const uint16_t* YuvLines::deepAt(int component, int line) const
{
    return reinterpret_cast<const uint16_t*>(at(component, line));
}

/// As many samples as are stored.
void YuvLines::mixChroma(int component, ChromaLines lines, int16_t* samples) const
{
    if (m_depth > 8) {
        mixDeep(deepAt(component, lines.near), deepAt(component, lines.far), lines.nearEighths,
                samples, m_chromaWidth, m_depth);
    } else if (m_format.comp[component].step == 2) {
        mixInterleaved(at(component, lines.near), at(component, lines.far), lines.nearEighths,
                       samples, m_chromaWidth);
    } else {
        mix(at(component, lines.near), at(component, lines.far), lines.nearEighths, samples,
            m_chromaWidth);
    }
}

void YuvLines::repeatEnds(std::vector<int16_t>& narrow)
{
    narrow.front() = narrow[1];
    narrow.back() = narrow[narrow.size() - 2];
}

/// Starts at the pixel `from`, which must be even.
void YuvLines::widenChroma(const std::vector<int16_t>& narrow, std::vector<int16_t>& wide,
                           int from) const
{
    const int16_t* const source = narrow.data() + 1 + from / 2;
    int16_t* const target = wide.data() + from;
    const int count = m_chromaWidth - from / 2;
    if (m_siting.isLeft) {
        doubleFromLeft(source, target, count);
    } else {
        doubleFromCentre(source, target, count);
    }
}

} // namespace QtAV
