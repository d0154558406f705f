#pragma once

#include <QObject>

namespace QtAV {

/// Volume and mute of a player. Owned by its player; applies to every file that it plays.
/// User-interface thread only.
class AudioOutput : public QObject
{
    Q_OBJECT

public:
    explicit AudioOutput(QObject* parent = nullptr);

    /// From 0, silent, to 1, as recorded, which is the initial value.
    qreal volume() const { return m_volume; }
    bool isMute() const { return m_isMute; }

public Q_SLOTS:
    /// Values outside 0 to 1 are clamped.
    void setVolume(qreal volume);
    /// Silences the sound without changing the volume.
    void setMute(bool mute);

Q_SIGNALS:
    void volumeChanged(qreal volume);
    void muteChanged(bool isMute);

private:
    qreal m_volume = 1.0;
    bool m_isMute = false;
};

} // namespace QtAV
