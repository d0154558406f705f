#include <QtAV/VideoCodecContext.h>

#include "qtav/src/StreamParameters.h"

namespace QtAV {

VideoCodecContext::VideoCodecContext(std::shared_ptr<const StreamParameters> parameters)
    : width(parameters->codec->width)
    , height(parameters->codec->height)
    , m_parameters(std::move(parameters))
{}

VideoCodecContext::~VideoCodecContext() = default;

QString VideoCodecContext::codecName() const
{
    return QString::fromLatin1(avcodec_get_name(m_parameters->codec->codec_id));
}

} // namespace QtAV
