#include <QtAV/AudioOutput.h>

namespace QtAV {

AudioOutput::AudioOutput(QObject* parent)
    : QObject(parent)
{}

void AudioOutput::setVolume(qreal volume)
{
    const qreal clamped = qBound<qreal>(0.0, volume, 1.0);
    if (clamped == m_volume) {
        return;
    }
    m_volume = clamped;
    Q_EMIT volumeChanged(m_volume);
}

void AudioOutput::setMute(bool mute)
{
    if (mute == m_isMute) {
        return;
    }
    m_isMute = mute;
    Q_EMIT muteChanged(m_isMute);
}

} // namespace QtAV
