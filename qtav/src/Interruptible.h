#pragma once

#include <QtAV/AVDemuxer.h>

namespace QtAV {

/// Sets the demuxer's interrupt callback during its lifetime.
class Interruptible
{
public:
    Interruptible(AVDemuxer& demuxer, const IsCancelled& isCancelled)
        : m_demuxer(demuxer)
    {
        m_demuxer.setInterrupt(isCancelled);
    }
    ~Interruptible() { m_demuxer.setInterrupt({}); }
    Interruptible(const Interruptible&) = delete;
    Interruptible& operator=(const Interruptible&) = delete;

private:
    AVDemuxer& m_demuxer;
};

} // namespace QtAV
