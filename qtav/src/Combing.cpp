#include "qtav/src/Combing.h"

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace QtAV {

namespace {

/// Pictures are judged in tiles, because something small may move in front of something still.
constexpr int tileWidth = 64;
constexpr int tileLines = 16; ///< of the second field

/// Smaller differences, in levels of 8 bits, are noise.
constexpr int combNoise = 6;
/// A sample and its neighbours above and below have moved if they differ by more in total.
constexpr int motionNoise = 28;
/// The mean comb over all samples of a tile from which on it is visible.
constexpr double visibleComb = 0.75;

/// Two moments stick out of each other about as much as out of the next one: at most by this factor
/// less…
constexpr double asGoodAsOther = 1.35;
/// …and more than the lines of one field stick out of each other, by this factor.
constexpr double moreThanDetail = 1.5;

/// Matching fields leave at most this fraction of the comb, which comes from fine detail and noise.
constexpr double combOfFitting = 0.7;

/// A repeated field differs in so few samples relative to the other field.
constexpr int movedOfRepeated = 10; // per cent
constexpr int fewestMoved = 64;     ///< otherwise nothing moves in either

/// The pictures that the two fields of a picture are taken from.
struct Weave
{
    const AVFrame* first = nullptr;
    const AVFrame* second = nullptr;
};

/// Sums over the samples of a tile that differ between two weaves; over all without another weave.
struct Tile
{
    int own = 0;    ///< how far lines of the second field stick out between those of the first
    int other = 0;  ///< the same in the other weave
    int detail = 0; ///< how far lines stick out between those of their own field

    Tile& operator+=(const Tile& more)
    {
        own += more.own;
        other += more.other;
        detail += more.detail;
        return *this;
    }
};

/// How far a line sticks out between two others.
template <typename Sample>
struct Lines
{
    const Sample* above;
    const Sample* line;
    const Sample* below;
};

inline int16_t sticksOut(int16_t above, int16_t line, int16_t below)
{
    const int16_t low = std::min(above, below);
    const int16_t high = std::max(above, below);
    const auto out = static_cast<int16_t>(
        std::max<int16_t>(static_cast<int16_t>(low - line), static_cast<int16_t>(line - high)) -
        combNoise);
    return std::max<int16_t>(out, 0);
}

inline int16_t distance(int16_t a, int16_t b)
{
    return static_cast<int16_t>(std::max(a, b) - std::min(a, b));
}

/// Compares a tile's part of a line of the second field with two lines of the first one, in two
/// weaves, and a line with two of its own field. The sums fit into 16 bits, which makes it fast.
template <typename Sample>
Tile sumOf(const Lines<Sample>& own, const Lines<Sample>& other, const Lines<Sample>& field,
           int from, int count, int shift, int16_t motion)
{
    uint16_t ownSum = 0;
    uint16_t otherSum = 0;
    uint16_t detailSum = 0;
    const auto level = [shift](Sample sample) { return static_cast<int16_t>(sample >> shift); };
    for (int x = from; x < from + count; ++x) {
        const int16_t above = level(own.above[x]);
        const int16_t line = level(own.line[x]);
        const int16_t below = level(own.below[x]);
        const int16_t otherAbove = level(other.above[x]);
        const int16_t otherLine = level(other.line[x]);
        const int16_t otherBelow = level(other.below[x]);
        const auto moved =
            static_cast<int16_t>(distance(above, otherAbove) + distance(below, otherBelow) +
                                 2 * distance(line, otherLine));
        const auto mask = static_cast<int16_t>(moved > motion ? -1 : 0);
        const int16_t detail =
            sticksOut(level(field.above[x]), level(field.line[x]), level(field.below[x]));
        ownSum = static_cast<uint16_t>(ownSum + (sticksOut(above, line, below) & mask));
        otherSum =
            static_cast<uint16_t>(otherSum + (sticksOut(otherAbove, otherLine, otherBelow) & mask));
        detailSum = static_cast<uint16_t>(detailSum + (detail & mask));
    }
    return {ownSum, otherSum, detailSum};
}

template <typename Sample>
int movedIn(const Sample* a, const Sample* b, int count, int shift)
{
    int moved = 0;
    for (int x = 0; x < count; ++x) {
        moved += std::abs((a[x] >> shift) - (b[x] >> shift)) > motionNoise / 2 ? 1 : 0;
    }
    return moved;
}

/// The tiles of a picture, row by row.
class Comparison
{
public:
    Comparison(const AVFrame& like, bool isTopFirst)
        : m_width(like.width)
        , m_height(like.height)
        , m_firstLine(isTopFirst ? 1 : 2)
        , m_depth(av_pix_fmt_desc_get(static_cast<AVPixelFormat>(like.format))->comp[0].depth)
        , m_columns((like.width + tileWidth - 1) / tileWidth)
        , m_rows((like.height / 2 + tileLines - 1) / tileLines)
    {}

    /// Compares two weaves.
    std::vector<Tile> compare(const Weave& weave, const Weave& other) const
    {
        return m_depth > 8 ? compareAs<uint16_t>(weave, other, motionNoise)
                           : compareAs<uint8_t>(weave, other, motionNoise);
    }

    /// Examines a single weave as a whole.
    std::vector<Tile> look(const Weave& weave) const
    {
        return m_depth > 8 ? compareAs<uint16_t>(weave, weave, -1)
                           : compareAs<uint8_t>(weave, weave, -1);
    }

    /// Number of samples that differ between the first or the second fields of two pictures.
    int movement(const AVFrame& a, const AVFrame& b, bool isOfFirst) const
    {
        const int from = isOfFirst == (m_firstLine == 1) ? 0 : 1;
        return m_depth > 8 ? movementAs<uint16_t>(a, b, from) : movementAs<uint8_t>(a, b, from);
    }

    /// The comb from which on a tile is visible.
    int visible() const
    {
        return static_cast<int>(visibleComb * tileWidth * tileLines / lineStep());
    }

private:
    /// In large pictures every other line of a field is enough.
    int lineStep() const { return m_height >= 720 ? 2 : 1; }

    template <typename Sample>
    static const Sample* lineOf(const AVFrame& frame, int y)
    {
        return reinterpret_cast<const Sample*>(frame.data[0] + ptrdiff_t(y) * frame.linesize[0]);
    }

    template <typename Sample>
    static Lines<Sample> between(const AVFrame& outer, const AVFrame& inner, int y, int distance)
    {
        return {lineOf<Sample>(outer, y - distance), lineOf<Sample>(inner, y),
                lineOf<Sample>(outer, y + distance)};
    }

    template <typename Sample>
    int movementAs(const AVFrame& a, const AVFrame& b, int from) const
    {
        int moved = 0;
        for (int y = from; y < m_height; y += 2 * lineStep()) {
            moved += movedIn(lineOf<Sample>(a, y), lineOf<Sample>(b, y), m_width,
                             std::max(0, m_depth - 8));
        }
        return moved;
    }

    template <typename Sample>
    std::vector<Tile> compareAs(const Weave& weave, const Weave& other, int motion) const
    {
        std::vector<Tile> tiles(static_cast<size_t>(m_columns) * static_cast<size_t>(m_rows));
        const int shift = std::max(0, m_depth - 8);
        // Noise makes a line stick out and seem to move. So the detail is measured in the field
        // that differs.
        const bool isOtherFirst = weave.first != other.first;
        const AVFrame& field = isOtherFirst ? *weave.first : *weave.second;
        const int offset = isOtherFirst ? 1 : 0;
        int fieldLine = 0;
        for (int y = m_firstLine; y + 3 < m_height; y += 2 * lineStep(), fieldLine += lineStep()) {
            const Lines<Sample> lines = between<Sample>(*weave.first, *weave.second, y, 1);
            const Lines<Sample> otherLines = between<Sample>(*other.first, *other.second, y, 1);
            const int fieldY = std::max(2, y + offset);
            const Lines<Sample> fieldLines = between<Sample>(field, field, fieldY, 2);
            Tile* row = tiles.data() + ptrdiff_t(fieldLine / tileLines) * m_columns;
            for (int x = 0; x < m_width; x += tileWidth, ++row) {
                *row += sumOf(lines, otherLines, fieldLines, x, std::min(tileWidth, m_width - x),
                              shift, static_cast<int16_t>(motion));
            }
        }
        return tiles;
    }

    int m_width;
    int m_height;
    int m_firstLine; ///< of the second field that has one of the first above it
    int m_depth;
    int m_columns;
    int m_rows;
};

/// How a picture's fields match each other, compared with the fields next in time: the first field
/// with the second one of the previous picture, and the second field with the first one of the next
/// picture. Empty for a missing neighbour.
struct Sides
{
    std::vector<Tile> before;
    std::vector<Tile> after;
};

/// How much better the fields match each other than the field next in time; the maximum if no comb
/// is visible.
double fit(const Tile& tile, int visible)
{
    constexpr double perfect = 1000.0;
    return tile.own >= visible ? double(tile.other) / tile.own : perfect;
}

bool isCombed(const Tile& before, const Tile& after, int visible)
{
    const double fitBefore = fit(before, visible);
    const double fitAfter = fit(after, visible);
    if (std::min(fitBefore, fitAfter) > asGoodAsOther) {
        return false;
    }
    const int own = fitBefore < fitAfter ? before.own : after.own;
    return own - moreThanDetail * std::max(before.detail, after.detail) >= visible / 2.0;
}

bool combs(const Sides& sides, int visible)
{
    const size_t count = std::max(sides.before.size(), sides.after.size());
    for (size_t i = 0; i < count; ++i) {
        const Tile before = sides.before.empty() ? Tile() : sides.before[i];
        const Tile after = sides.after.empty() ? Tile() : sides.after[i];
        if (isCombed(before, after, visible)) {
            return true;
        }
    }
    return false;
}

/// Without neighbours: lines stick out visibly, and more than fine detail does.
bool combsByItself(const std::vector<Tile>& tiles, int visible)
{
    return std::any_of(tiles.begin(), tiles.end(), [visible](const Tile& tile) {
        return tile.own >= 2 * visible && tile.own >= 2 * moreThanDetail * tile.detail;
    });
}

/// True if the other weave leaves no more of the comb than fine detail does.
bool leavesNone(const std::vector<Tile>& tiles, int visible)
{
    Tile all;
    for (const Tile& tile : tiles) {
        all += tile;
    }
    return all.own >= visible && all.other <= combOfFitting * all.own;
}

/// Film is shown for three and two fields alternately: of pictures with fields of two moments, a
/// neighbour repeats one field.
bool isFilm(const FieldPictures& pictures, const Comparison& comparison)
{
    const auto isRepeated = [&](const AVFrame* neighbour, bool isFirst) {
        if (!neighbour) {
            return false;
        }
        const int moved = comparison.movement(*pictures.picture, *neighbour, isFirst);
        const int movedOfOther = comparison.movement(*pictures.picture, *neighbour, !isFirst);
        return movedOfOther >= fewestMoved && moved * 100 <= movedOfOther * movedOfRepeated;
    };
    return isRepeated(pictures.before, true) || isRepeated(pictures.after, false);
}

} // namespace

bool combing::reads(AVPixelFormat format)
{
    const AVPixFmtDescriptor* descriptor = av_pix_fmt_desc_get(format);
    if (!descriptor) {
        return false;
    }
    constexpr auto others = AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BAYER |
                            AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BITSTREAM |
                            AV_PIX_FMT_FLAG_FLOAT | AV_PIX_FMT_FLAG_BE;
    const AVComponentDescriptor& luma = descriptor->comp[0];
    return !(descriptor->flags & others) && luma.plane == 0 && luma.offset == 0 &&
           luma.shift == 0 && luma.depth >= 8 && luma.depth <= 16 &&
           luma.step == (luma.depth > 8 ? 2 : 1);
}

combing::Fields combing::fieldsOf(const FieldPictures& pictures, bool isTopFirst)
{
    const auto& [before, picture, after] = pictures;
    const Comparison comparison(*picture, isTopFirst);
    const int visible = comparison.visible();
    const Weave own{picture, picture};
    if (!before && !after) {
        return combsByItself(comparison.look(own), visible) ? Fields::Apart : Fields::Whole;
    }

    Sides sides;
    if (before) {
        sides.before = comparison.compare(own, {picture, before});
    }
    if (after) {
        sides.after = comparison.compare(own, {after, picture});
    }
    if (!combs(sides, visible)) {
        return Fields::Whole;
    }

    if (!isFilm(pictures, comparison)) {
        return Fields::Apart;
    }
    // A field that seems to match may be the next moment after a cut, so the woven picture is
    // examined like any other.
    const auto fits = [&](const Weave& weave, const Weave& third) {
        return !combs({{}, comparison.compare(weave, third)}, visible);
    };
    if (before && leavesNone(sides.before, visible) && fits({picture, before}, {before, before})) {
        return Fields::FirstWithBefore;
    }
    if (after && leavesNone(sides.after, visible) && fits({after, picture}, {after, after})) {
        return Fields::SecondWithAfter;
    }
    return Fields::Apart;
}

FramePtr combing::woven(const AVFrame& first, const AVFrame& second, bool isTopFirst)
{
    FramePtr made = makeFrame();
    made->format = first.format;
    made->width = first.width;
    made->height = first.height;
    if (av_frame_get_buffer(made.get(), 0) < 0 || av_frame_copy(made.get(), &first) < 0 ||
        av_frame_copy_props(made.get(), &first) < 0) {
        return nullptr;
    }
    const int from = isTopFirst ? 1 : 0;
    const AVPixFmtDescriptor& format =
        *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(first.format));
    for (int plane = 0; plane < av_pix_fmt_count_planes(static_cast<AVPixelFormat>(first.format));
         ++plane) {
        const bool isChroma = plane == 1 || plane == 2;
        const int height =
            isChroma ? AV_CEIL_RSHIFT(first.height, format.log2_chroma_h) : first.height;
        const int bytes =
            av_image_get_linesize(static_cast<AVPixelFormat>(first.format), first.width, plane);
        const ptrdiff_t source = second.linesize[plane];
        const ptrdiff_t target = made->linesize[plane];
        av_image_copy_plane(made->data[plane] + from * target, static_cast<int>(2 * target),
                            second.data[plane] + from * source, static_cast<int>(2 * source), bytes,
                            (height - from + 1) / 2);
    }
    return made;
}

} // namespace QtAV
