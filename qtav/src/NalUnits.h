#pragma once

#include "qtav/src/FFmpegHandles.h"

#include <QtGlobal>

#include <optional>

namespace QtAV {

/// The units that make up the packets and parameter sets of an H.264 or HEVC stream: each preceded
/// by its length (MP4, Matroska) or separated by start codes (transport and raw streams).
class NalUnits
{
public:
    struct Unit
    {
        int type = 0;                  ///< nal_unit_type
        bool isReference = true;       ///< H.264: nal_ref_idc is not 0
        const uint8_t* data = nullptr; ///< includes its header
        qsizetype size = 0;            ///< of data, in bytes; at least that of the header
    };

    /// For an unknown stream: gives no units.
    NalUnits() = default;
    explicit NalUnits(const AVCodecParameters& parameters);

    /// True for H.264 and HEVC, the two codecs made of units.
    bool areKnown() const { return m_codec != AV_CODEC_ID_NONE; }
    AVCodecID codec() const { return m_codec; }

    /// Iterates over the units of a packet.
    class Cursor
    {
    public:
        /// The next unit; nothing at the end, and if the packet is damaged.
        [[nodiscard]] std::optional<Unit> next();

        /// True at the end of a packet that could be parsed completely.
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

    /// Iterates over the units of `data`, which must outlive the cursor.
    [[nodiscard]] Cursor of(const uint8_t* data, qsizetype size) const;

    /// Like of(), for units separated by start codes regardless of the format of the stream's
    /// packets.
    [[nodiscard]] static Cursor ofMarked(AVCodecID codec, const uint8_t* data, qsizetype size);

private:
    AVCodecID m_codec = AV_CODEC_ID_NONE;
    int m_lengthBytes = 0; ///< size of the length before each unit; 0 if start codes separate them
};

/// The position behind the next start code (00 00 01); `size` if none follows.
[[nodiscard]] qsizetype behindStartCode(const uint8_t* data, qsizetype from, qsizetype size);

} // namespace QtAV
