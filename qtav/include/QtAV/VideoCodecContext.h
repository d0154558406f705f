#pragma once

#include <QString>

#include <memory>

namespace QtAV {

class StreamParameters;

/// What a container states about one video stream, enough to create a decoder for it.
///
/// Created by the demuxer, read by VideoDecoder::setCodecContext(). Immutable, so it may be read
/// from any thread.
class VideoCodecContext
{
public:
    explicit VideoCodecContext(std::shared_ptr<const StreamParameters> parameters);
    ~VideoCodecContext();
    VideoCodecContext(const VideoCodecContext&) = delete;
    VideoCodecContext& operator=(const VideoCodecContext&) = delete;

    /// Size of the stored picture in pixels, before rotation and before its pixels are made square.
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
