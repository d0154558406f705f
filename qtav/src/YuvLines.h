#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <cstdint>
#include <vector>

namespace QtAV {

/// Reads a picture of luma and chroma line by line. Chroma is interpolated for the position at
/// which it was sampled, and within its own field if the picture is interlaced.
///
/// Samples have 15 bits, whatever the picture's depth; the middle of the range is subtracted from
/// those of chroma.
class YuvLines
{
public:
    static constexpr int sampleBits = 15;
    static constexpr int chromaMiddle = 1 << (sampleBits - 1);

    /// @param frame  in a format that YuvToRgb reads; must outlive this object.
    explicit YuvLines(const AVFrame& frame);

    /// Moves to a line.
    void moveTo(int line);

    /// True if the picture has 8 bits and half as many chroma samples, each at the position of
    /// every second luma sample. Then the following give luma as stored, and that chroma with its
    /// last sample repeated.
    bool isPlainHalved() const;
    const uint8_t* storedLuma() const { return at(0, m_line); }
    const int16_t* halvedCb() const { return m_narrowCb.data() + 1; }
    const int16_t* halvedCr() const { return m_narrowCr.data() + 1; }

    /// Computes the following values, from an even column to the line's end.
    void widen(int from = 0);
    const int16_t* luma() const { return m_luma.data(); }
    const int16_t* cb() const { return m_cb.data(); }
    const int16_t* cr() const { return m_cr.data(); }

    bool hasAlpha() const { return m_format.nb_components == 4; }
    /// As stored, in bytes or words.
    const uint8_t* storedAlpha() const { return at(3, m_line); }

    int width() const { return m_frame.width; }
    int depth() const { return m_depth; }

private:
    /// Position of chroma samples between the lines and columns of luma.
    struct Siting
    {
        enum class Vertical { Top, Centre, Bottom };
        bool isLeft = true;
        Vertical vertical = Vertical::Centre;
    };

    /// The two lines of chroma between which a line of luma lies.
    struct ChromaLines
    {
        int near;
        int far;
        int nearEighths;
    };

    static Siting sitingOf(const AVFrame& frame);
    ChromaLines chromaLines() const;
    static ChromaLines chromaLinesFor(int line, int lines, Siting::Vertical vertical);
    static ChromaLines fieldChromaLinesFor(int line, int lines, Siting::Vertical vertical);

    const uint8_t* at(int component, int line) const;
    const uint16_t* deepAt(int component, int line) const;
    void mixChroma(int component, ChromaLines lines, int16_t* samples) const;
    static void repeatEnds(std::vector<int16_t>& narrow);
    void widenChroma(const std::vector<int16_t>& narrow, std::vector<int16_t>& wide,
                     int from) const;

    const AVFrame& m_frame;
    const AVPixFmtDescriptor& m_format;
    const Siting m_siting;
    const int m_depth;
    const bool m_hasChroma;
    const bool m_halvesWidth;
    const bool m_halvesHeight;
    const int m_chromaWidth;
    const int m_chromaHeight;
    int m_line = 0;
    std::vector<int16_t> m_luma;
    std::vector<int16_t> m_narrowCb; ///< a line of chroma with one extra sample at either end
    std::vector<int16_t> m_narrowCr;
    std::vector<int16_t> m_cb; ///< zero, the middle, in a grey picture
    std::vector<int16_t> m_cr;
};

} // namespace QtAV
