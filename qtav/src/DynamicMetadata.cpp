#include "qtav/src/DynamicMetadata.h"

#include "qtav/src/FFmpegCompat.h"

#include <QCoreApplication>

extern "C" {
#include <libavutil/dovi_meta.h>
}

namespace QtAV {

BaseLayer baseLayerOf(const AVStream& stream)
{
    const SideData data = sideDataOf(stream, AV_PKT_DATA_DOVI_CONF);
    if (!data.data || data.size < sizeof(AVDOVIDecoderConfigurationRecord)) {
        return BaseLayer::Whole;
    }
    const auto& record = *reinterpret_cast<const AVDOVIDecoderConfigurationRecord*>(data.data);
    // Profile 5 of Dolby Vision has a colour representation of its own.
    return record.dv_bl_signal_compatibility_id == 0 ? BaseLayer::OfDolbyVisionAlone
                                                     : BaseLayer::OfDolbyVision;
}

BaseLayer baseLayerOf(const AVFrame& frame, BaseLayer stated)
{
    if (stated != BaseLayer::Whole) {
        return stated;
    }
    if (av_frame_get_side_data(&frame, AV_FRAME_DATA_DOVI_METADATA) ||
        av_frame_get_side_data(&frame, AV_FRAME_DATA_DOVI_RPU_BUFFER)) {
        return BaseLayer::OfDolbyVision;
    }
    return av_frame_get_side_data(&frame, AV_FRAME_DATA_DYNAMIC_HDR_PLUS) ? BaseLayer::OfHdr10Plus
                                                                          : BaseLayer::Whole;
}

QString textOf(BaseLayer layer)
{
    switch (layer) {
    case BaseLayer::Whole:
        break;
    case BaseLayer::OfHdr10Plus:
        return QCoreApplication::translate(
            "QtAV::VideoFrame", "The video is HDR10+; its pictures are made of the HDR10 in it.");
    case BaseLayer::OfDolbyVision:
        return QCoreApplication::translate(
            "QtAV::VideoFrame",
            "The video is Dolby Vision; its pictures are made of the base layer.");
    case BaseLayer::OfDolbyVisionAlone:
        return QCoreApplication::translate(
            "QtAV::VideoFrame",
            "The video is Dolby Vision without a base layer that other programs "
            "can show; the colours of its pictures are not right.");
    }
    return {};
}

} // namespace QtAV
