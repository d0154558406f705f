#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <memory>

namespace bench {

/// FFmpeg's flags for the conversion.
enum class ScalerFlags {
    Default, ///< SWS_BICUBIC, its default: uses the fast conversions, which are several levels off
    Exact,   ///< with SWS_ACCURATE_RND and SWS_FULL_CHR_H_INT: exact to the last level
};

/// The first picture of a video, and FFmpeg's bare conversion of it to BGRA of the same size, for
/// comparison with VideoFrame::toImage().
///
/// Scaler and target are created once, so that run() is only sws_scale(). Colours are converted by
/// the BT.709 matrix from limited to full range. One thread at a time may use an object.
class BareConversion
{
public:
    /// Opens the video and decodes. On failure the object stays invalid, and error() has the
    /// reason.
    BareConversion(const QString& video, ScalerFlags flags);
    ~BareConversion();
    BareConversion(const BareConversion&) = delete;
    BareConversion& operator=(const BareConversion&) = delete;

    [[nodiscard]] bool isValid() const { return m_error.isEmpty(); }
    /// Empty unless something failed.
    [[nodiscard]] QString error() const { return m_error; }

    /// Converts once; false if FFmpeg refuses. Call only if valid.
    [[nodiscard]] bool run();

    /// The result of run(), owned by this object: four bytes per pixel, bytesPerLine() per line.
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
