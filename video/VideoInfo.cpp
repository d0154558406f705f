#include "video/VideoInfo.h"

#include <QtAV/AVDemuxer.h>

#include <QDebug>
#include <QException>

#include <utility>

void VideoInfo::setInterrupt(QtAV::IsCancelled isCancelled)
{
    m_isCancelled = std::move(isCancelled);
}

void VideoInfo::loadFromVideo(QString path)
{
    try {
        if (internalLoadFromVideo(path)) {
            loaded = true;
        } else {
            qDebug("Error loading VideoInfo");
        }
    } catch (const QException& exception) {
        qDebug("Exception loading VideoInfo");
        qDebug("%s", exception.what());
    }
}

bool VideoInfo::internalLoadFromVideo(QString path)
{
    QtAV::AVDemuxer demuxer;
    demuxer.unload();
    demuxer.setMedia(path);
    demuxer.setInterrupt(m_isCancelled);
    if (!demuxer.load()) {
        return false;
    }
    duration = demuxer.duration();
    if (demuxer.videoStreams().isEmpty()) {
        demuxer.unload();
        return false;
    }
    const QtAV::VideoCodecContext* const context = demuxer.videoCodecContext();
    if (context == nullptr) {
        qDebug("AVCodecContext did not exist");
        return false;
    }
    width = context->width;
    height = context->height;
    return true;
}

void VideoInfo::setFacts(const VideoFacts& facts)
{
    duration = facts.duration;
    width = facts.width;
    height = facts.height;
    loaded = facts.loaded;
}
