#pragma once

#include <QString>

#include <memory>

namespace QtAV {

class StreamParameters;

/// What a container says of one video stream, enough to make a decoder for it.
///
/// Made by the demuxer, read by VideoDecoder::setCodecContext(). Immutable, so that it may be
/// read from any thread.
class VideoCodecContext
{
public:
    explicit VideoCodecContext(std::shared_ptr<const StreamParameters> parameters);
    ~VideoCodecContext();
    VideoCodecContext(const VideoCodecContext&) = delete;
    VideoCodecContext& operator=(const VideoCodecContext&) = delete;

    /// The stored picture's size in pixels, before turning it upright and making its pixels
    /// square.
    const int width;
    const int height;

    /// The codec's short name, such as "h264".
    QString codecName() const;

    /// For the library itself.
    const std::shared_ptr<const StreamParameters>& parameters() const { return m_parameters; }

private:
    std::shared_ptr<const StreamParameters> m_parameters;
};

} // namespace QtAV
