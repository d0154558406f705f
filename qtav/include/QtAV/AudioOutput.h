#pragma once

#include <QObject>

namespace QtAV {

/// How loud a player plays. Owned by its player; holds for every file that it plays.
/// User-interface thread only.
class AudioOutput : public QObject
{
    Q_OBJECT

public:
    explicit AudioOutput(QObject* parent = nullptr);

    /// From 0, silent, to 1, as recorded, which it is at first.
    qreal volume() const { return m_volume; }
    bool isMute() const { return m_isMute; }

public Q_SLOTS:
    /// Values outside of 0 to 1 are clamped.
    void setVolume(qreal volume);
    /// Silences without touching the volume.
    void setMute(bool mute);

Q_SIGNALS:
    void volumeChanged(qreal volume);
    void muteChanged(bool isMute);

private:
    qreal m_volume = 1.0;
    bool m_isMute = false;
};

} // namespace QtAV
