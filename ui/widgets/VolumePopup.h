#pragma once

#include <QFrame>
#include <QSettings>

#include <memory>

namespace Ui {
class VolumePopup;
}

/// A volume slider and a mute check box that pop up beside a button and close on a click elsewhere.
///
/// Every change of either is stored in the application's default QSettings ("volume", "muted") and
/// restored in the next run. User-interface thread only.
class VolumePopup : public QFrame
{
    Q_OBJECT

public:
    /// Starts with the stored values; half volume, not muted by default. Hidden.
    explicit VolumePopup(QWidget* parent);
    ~VolumePopup() override;

    /// The volume to play at, 0 to 100: 0 while muted, whatever the slider shows.
    int volume();

    bool isMuted() const;
    /// Acts as if the user had changed the check mark.
    void setMuted(bool muted);

Q_SIGNALS:
    /// The user changed the volume or muted it; `volume` is what volume() gives.
    void volumeChanged(int volume);

private Q_SLOTS:
    void on_volumeSlider_valueChanged(int value);
    void on_muteCheckBox_clicked(bool checked);

private:
    std::unique_ptr<Ui::VolumePopup> m_ui;
    QSettings m_settings;
};
