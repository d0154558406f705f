#include <QtAV/VideoCodecContext.h>

#include "qtav/src/StreamParameters.h"

namespace QtAV {

namespace {

/// The size of the visible part of the stored pictures.
QSize sizeOf(const StreamParameters& parameters)
{
    return parameters.cleanAperture ? parameters.cleanAperture->size()
                                    : QSize(parameters.codec->width, parameters.codec->height);
}

} // namespace

VideoCodecContext::VideoCodecContext(std::shared_ptr<const StreamParameters> parameters)
    : width(sizeOf(*parameters).width())
    , height(sizeOf(*parameters).height())
    , m_parameters(std::move(parameters))
{}

VideoCodecContext::~VideoCodecContext() = default;

QString VideoCodecContext::codecName() const
{
    return QString::fromLatin1(avcodec_get_name(m_parameters->codec->codec_id));
}

} // namespace QtAV
