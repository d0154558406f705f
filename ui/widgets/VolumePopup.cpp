#include "ui/widgets/VolumePopup.h"

#include "ui_VolumePopup.h"

#include <QSignalBlocker>

namespace {

constexpr int maximumVolume = 100;
constexpr int defaultVolume = 50;

QString volumeKey()
{
    return QStringLiteral("volume");
}

QString mutedKey()
{
    return QStringLiteral("muted");
}

} // namespace

VolumePopup::VolumePopup(QWidget* parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , m_ui(std::make_unique<Ui::VolumePopup>())
{
    m_ui->setupUi(this);
    setFrameStyle(QFrame::WinPanel | QFrame::Raised);
    // A popup without a focused widget takes the keys from its window and ignores them.
    m_ui->volumeSlider->setFocus();

    // Restoring the stored values is not a change: nothing must be written or reported.
    const QSignalBlocker noChange(m_ui->volumeSlider);
    m_ui->volumeSlider->setRange(0, maximumVolume);
    m_ui->volumeSlider->setValue(m_settings.value(volumeKey(), defaultVolume).toInt());
    m_ui->muteCheckBox->setChecked(m_settings.value(mutedKey(), false).toBool());
}

VolumePopup::~VolumePopup() = default;

int VolumePopup::volume()
{
    return m_ui->muteCheckBox->isChecked() ? 0 : m_ui->volumeSlider->value();
}

bool VolumePopup::isMuted() const
{
    return m_ui->muteCheckBox->isChecked();
}

void VolumePopup::setMuted(bool muted)
{
    if (muted != isMuted()) {
        m_ui->muteCheckBox->click();
    }
}

void VolumePopup::on_volumeSlider_valueChanged(int value)
{
    m_settings.setValue(volumeKey(), value);
    Q_EMIT volumeChanged(volume());
}

void VolumePopup::on_muteCheckBox_clicked(bool checked)
{
    m_settings.setValue(mutedKey(), checked);
    Q_EMIT volumeChanged(volume());
}
