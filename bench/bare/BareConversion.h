#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <memory>

namespace bench {

/// How FFmpeg's scaler is told to convert.
enum class ScalerFlags {
    Default, ///< SWS_BICUBIC, its default: takes the fast conversions, which are several levels off
    Exact,   ///< the same with SWS_ACCURATE_RND and SWS_FULL_CHR_H_INT: right to the last level
};

/// The first picture of a video and FFmpeg's bare conversion of it to BGRA of the same size: what
/// VideoFrame::toImage() is measured against.
///
/// Scaler and target are made once, so that a run() is sws_scale() and nothing else. Colours go by
/// the BT.709 matrix from limited to full range. One thread at a time.
class BareConversion
{
public:
    /// Opens and decodes. On failure the object stays invalid and error() says why.
    BareConversion(const QString& video, ScalerFlags flags);
    ~BareConversion();
    BareConversion(const BareConversion&) = delete;
    BareConversion& operator=(const BareConversion&) = delete;

    [[nodiscard]] bool isValid() const { return m_error.isEmpty(); }
    /// Empty unless something failed.
    [[nodiscard]] QString error() const { return m_error; }

    /// Converts once; false when FFmpeg refuses. Only when valid.
    [[nodiscard]] bool run();

    /// The result of run(), owned by this object: four bytes a pixel, bytesPerLine() a line.
    [[nodiscard]] std::uint8_t* pixels();
    [[nodiscard]] int bytesPerLine() const;
    /// The picture's size in pixels; empty when not valid.
    [[nodiscard]] QSize size() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
    QString m_error;
};

/// The version of the FFmpeg libraries in use.
[[nodiscard]] QString ffmpegVersion();

} // namespace bench
