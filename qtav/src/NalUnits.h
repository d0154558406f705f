#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <optional>

namespace QtAV {

/// The units that the packets and parameter sets of an H.264 or HEVC stream consist of: with a
/// length before each (MP4, Matroska) or parted by start codes (transport and raw streams).
class NalUnits
{
public:
    struct Unit
    {
        int type = 0;                  ///< nal_unit_type
        bool isReference = true;       ///< H.264: nal_ref_idc is not 0
        const uint8_t* data = nullptr; ///< with its header
        qsizetype size = 0;            ///< of data, in bytes; at least that of the header
    };

    /// Knows no stream: gives no units.
    NalUnits() = default;
    explicit NalUnits(const AVCodecParameters& parameters);

    /// True for the two codecs that are made of units.
    bool areKnown() const { return m_codec != AV_CODEC_ID_NONE; }
    AVCodecID codec() const { return m_codec; }

    /// Goes through the units of a packet one after the other.
    class Cursor
    {
    public:
        /// The next unit; nothing at the end, and where the packet is damaged.
        [[nodiscard]] std::optional<Unit> next();

        /// True at the end of a packet that could be followed to its end.
        bool isWhole() const { return !m_isDamaged && m_place == m_size; }

    private:
        friend class NalUnits;
        Cursor(const NalUnits& units, const uint8_t* data, qsizetype size);
        [[nodiscard]] std::optional<qsizetype> nextLength();
        [[nodiscard]] std::optional<Unit> unitOf(const uint8_t* data, qsizetype size);

        AVCodecID m_codec;
        int m_lengthBytes;
        const uint8_t* m_data;
        qsizetype m_size;
        qsizetype m_place = 0;
        bool m_isDamaged = false;
    };

    /// The data must outlive the cursor.
    [[nodiscard]] Cursor of(const uint8_t* data, qsizetype size) const;

    /// The same for units that are parted by start codes whatever the stream's packets look like.
    [[nodiscard]] static Cursor ofMarked(AVCodecID codec, const uint8_t* data, qsizetype size);

private:
    AVCodecID m_codec = AV_CODEC_ID_NONE;
    int m_lengthBytes = 0; ///< of the length before each unit; 0 where start codes part them
};

/// The place behind the next start code (00 00 01); `size` where none follows.
[[nodiscard]] qsizetype behindStartCode(const uint8_t* data, qsizetype from, qsizetype size);

} // namespace QtAV
