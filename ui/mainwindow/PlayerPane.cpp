#include "ui/mainwindow/PlayerPane.h"

#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/KeyTips.h"
#include "ui/mainwindow/PlaybackSpeeds.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/RecentFiles.h"
#include "ui/mainwindow/VideoFactsText.h"
#include "ui/mainwindow/VideoZoom.h"
#include "ui/widgets/VolumePopup.h"
#include "ui_PlayerPane.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QFileInfo>

namespace {

/// Width of the widest time, so that the row does not move while the digits change.
int widestTime(const QWidget& widget)
{
    return widget.fontMetrics().horizontalAdvance(QStringLiteral("00:00:00.000"));
}

} // namespace

PlayerPane::PlayerPane(QSettings& settings, QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::PlayerPane>())
    , m_settings(settings)
{
    setObjectName(QStringLiteral("playerPane"));
    m_ui->setupUi(this);
}

PlayerPane::~PlayerPane() = default;

bool PlayerPane::setupPlayer(const VideoOutputFactory& makeVideoOutput, qint64 pictureBytes)
{
    m_player = new QtAV::AVPlayer(this);
    m_player->setPictureMemory(pictureBytes);
    m_videoOutput = makeVideoOutput(this);
    // The button over the video receives its mouse events.
    m_zoom = new VideoZoom(*m_ui->openVideoLabel, *m_player, *m_videoOutput, this);
    QWidget* const screen = m_videoOutput->widget();
    if (screen == nullptr) {
        return false;
    }
    m_player->setRenderer(m_videoOutput);
    m_player->setMediaEndAction(QtAV::MediaEndAction_Pause);
    screen->setAttribute(Qt::WA_TransparentForMouseEvents);
    screen->setAccessibleName(tr("Picture of the video"));
    m_ui->videoLayout->addWidget(screen, 0, 0);
    m_ui->openVideoLabel->raise();
    connectPlayer();
    connectControls();
    alignControls();
    setupSteering();
    showSpeed(m_player->speed());
    showOpenButton(m_ui->openVideoLabel->text());
    return true;
}

void PlayerPane::connectPlayer()
{
    using QtAV::AVPlayer;
    connect(m_player, &AVPlayer::started, this, &PlayerPane::updateSlider);
    connect(m_player, &AVPlayer::started, this, &PlayerPane::noticeBaseLayer);
    connect(m_player, &AVPlayer::durationChanged, this, &PlayerPane::showDuration);
    connect(m_player, &AVPlayer::positionChanged, this, &PlayerPane::showPosition);
    // The frame at the sought position may already have been on screen, and differ from the slider.
    connect(m_player, &AVPlayer::seekFinished, this, &PlayerPane::updateSlider);
    connect(m_player, &AVPlayer::notifyIntervalChanged, this, &PlayerPane::updateSliderUnit);
    connect(m_player, &AVPlayer::stateChanged, this, &PlayerPane::updatePlayButton);
    connect(m_player, &AVPlayer::mediaStatusChanged, this, &PlayerPane::updatePlayButton);
    connect(m_player, &AVPlayer::mediaStatusChanged, this, &PlayerPane::noticeMediaStatus);
    connect(m_player, &AVPlayer::failed, this, &PlayerPane::noticeFailedRead);
    connect(m_player, &AVPlayer::speedChanged, this, &PlayerPane::showSpeed);
}

void PlayerPane::connectControls()
{
    connect(m_ui->openVideoLabel, &QPushButton::clicked, this, &PlayerPane::clickVideo);
    connect(m_ui->openVideoLabel, &OpenVideoButton::fileChosen, this, &PlayerPane::fileChosen);
    connect(m_ui->videoSlider, &QSlider::sliderMoved, this,
            [this](int value) { seekBySlider(value); });
    connect(m_ui->videoSlider, &QSlider::sliderPressed, this, [this] { seekBySlider(); });
    connect(m_ui->videoSlider, &QSlider::sliderReleased, this, &PlayerPane::updateSlider);
    connect(m_ui->playButton, &QPushButton::clicked, this, &PlayerPane::playPause);
    connect(m_ui->stepBackwardButton, &QPushButton::clicked, this, &PlayerPane::stepBackward);
    connect(m_ui->stepForwardButton, &QPushButton::clicked, this, &PlayerPane::stepForward);
    connect(m_ui->skipBackwardButton, &QPushButton::clicked, this, &PlayerPane::skipBackward);
    connect(m_ui->skipForwardButton, &QPushButton::clicked, this, &PlayerPane::skipForward);
    connect(m_ui->volumeButton, &QPushButton::clicked, this, &PlayerPane::showVolumePopup);
    connect(m_ui->snapshotButton, &QPushButton::clicked, this, &PlayerPane::snapshotRequested);
    connect(m_ui->timecodeField, &TimecodeField::givenUp, this, &PlayerPane::takeKeyboard);
}

void PlayerPane::alignControls()
{
    m_ui->timecodeField->setTextWidth(widestTime(*m_ui->timecodeField));
    constexpr int rounding = 2;
    m_ui->durationLabel->setMinimumWidth(widestTime(*m_ui->durationLabel) + rounding);
    m_ui->videoControlsFrame->setParts(*m_ui->timePart, *m_ui->transportPart,
                                       *m_ui->videoFactsLabel, *m_ui->snapshotButton);
    m_ui->videoFactsLabel->setSeparator(VideoFactsText::separator);
}

void PlayerPane::setupSteering()
{
    const PlayerSteering::Parts parts{*m_player, *m_ui->videoSlider, *m_ui->timecodeField,
                                      *m_ui->videoFactsLabel};
    m_steering = new PlayerSteering(parts, this);
    connect(m_steering, &PlayerSteering::message, this, &PlayerPane::message);
    connect(m_steering, &PlayerSteering::typedPositionTaken, this, &PlayerPane::takeKeyboard);
}

void PlayerPane::setupVolumePopup()
{
    m_volumePopup = new VolumePopup(window());
    connect(m_volumePopup, &VolumePopup::volumeChanged, this, &PlayerPane::setVolume);
}

void PlayerPane::releaseVideo()
{
    if (m_videoOutput != nullptr) {
        m_videoOutput->deleteLater();
    }
}

ActionButton& PlayerPane::snapshotButton() const
{
    return *m_ui->snapshotButton;
}

void PlayerPane::addFilmstrip(Filmstrip& filmstrip)
{
    m_ui->playerLayout->addWidget(&filmstrip);
    filmstrip.comeAfter(*m_ui->snapshotButton);
}

void PlayerPane::setSpeedMenu(QMenu& menu)
{
    m_ui->speedButton->setMenu(&menu);
}

void PlayerPane::showKeys(KeyTips& tips, const Actions& actions)
{
    tips.add(*m_ui->playButton, actions.playPause);
    tips.add(*m_ui->stepForwardButton, actions.stepForward);
    tips.add(*m_ui->stepBackwardButton, actions.stepBackward);
    tips.add(*m_ui->skipForwardButton, actions.skipForward);
    tips.add(*m_ui->skipBackwardButton, actions.skipBackward);
    tips.add(*m_ui->snapshotButton, actions.takeSnapshot);
    tips.add(*m_ui->timecodeField, actions.goToTime);
    m_ui->snapshotButton->setKeys(
        actions.takeSnapshot.shortcut().toString(QKeySequence::NativeText));
}

bool PlayerPane::isVideoShown() const
{
    return isVideoLoaded() && m_player->mediaStatus() != QtAV::InvalidMedia;
}

void PlayerPane::open(const QString& path)
{
    m_video = path;
    m_player->play(path);
    setVolume(m_volumePopup->volume());
    hideOpenButton();
    // Keys control the video, so no button needs the focus.
    takeKeyboard();
}

void PlayerPane::showOpened()
{
    updatePlayButton();
    updateSliderUnit();
    noticeMediaStatus();
}

void PlayerPane::close()
{
    m_player->stop();
    m_player->setFile(QString());
    m_video.clear();
    m_zoom->fit();
    showOpenButton(tr("Click to open video"));
}

void PlayerPane::setControlsEnabled(bool on)
{
    m_ui->snapshotButton->setEnabled(on);
    m_ui->videoSlider->setEnabled(on);
    m_ui->videoControlsFrame->setEnabled(on);
    m_ui->timecodeField->setEnabled(on);
    if (!on) {
        showDuration(0);
        showPosition();
    }
}

void PlayerPane::showRecentFiles()
{
    m_ui->openVideoLabel->setRecentFiles(isVideoLoaded() ? QStringList()
                                                         : RecentFiles::in(m_settings));
}

void PlayerPane::showOpenButton(const QString& text)
{
    m_ui->openVideoLabel->invite(text);
    showRecentFiles();
    m_ui->openVideoLabel->setAccessibleName(QString());
    m_ui->openVideoLabel->setAccessibleDescription(QString());
    m_ui->openVideoLabel->setToolTip(tr("Open a video, or drop one here"));
    m_ui->openVideoLabel->setFocusPolicy(Qt::TabFocus);
    m_ui->openVideoLabel->raise();
}

/// The invisible button still receives the clicks on the video. It has no tool tip then, which
/// would cover the picture.
void PlayerPane::hideOpenButton()
{
    m_ui->openVideoLabel->withdraw();
    m_videoOutput->widget()->raise();
    m_ui->openVideoLabel->setAccessibleName(tr("Video"));
    m_ui->openVideoLabel->setAccessibleDescription(tr("Plays and pauses"));
    m_ui->openVideoLabel->setToolTip(QString());
    m_ui->openVideoLabel->setFocusPolicy(Qt::NoFocus);
}

/// Otherwise an unplayable file would just leave a black screen.
void PlayerPane::noticeMediaStatus()
{
    if (!isVideoLoaded() || m_player->mediaStatus() != QtAV::InvalidMedia) {
        return;
    }
    const auto fitting = [this](const QString& text) {
        const QPushButton& button = *m_ui->openVideoLabel;
        return button.fontMetrics().elidedText(text, Qt::ElideMiddle, button.width() * 3 / 4);
    };
    const QString name = QFileInfo(m_video).fileName();
    showOpenButton(
        tr("%1\ncannot be played as a video.\n\nClick to open another video").arg(fitting(name)));
    Q_EMIT unplayable(m_player->errorString());
}

void PlayerPane::noticeBaseLayer()
{
    const QString text = QtAV::textOf(m_player->facts().baseLayer);
    if (!text.isEmpty()) {
        Q_EMIT message(text);
    }
}

/// The picture that stays on screen does not explain why the video stops.
void PlayerPane::noticeFailedRead(const QString& reason)
{
    Q_EMIT message(tr("%1: %2").arg(QFileInfo(m_player->file()).fileName(), reason));
}

void PlayerPane::showSpeed(qreal speed)
{
    const QString text = PlaybackSpeeds::text(speed);
    m_ui->speedButton->setText(text);
    m_ui->speedButton->setAccessibleDescription(text);
}

QString PlayerPane::time() const
{
    return m_ui->timecodeField->time();
}

QString PlayerPane::describePlace()
{
    const auto frame = m_steering->frameOnScreen();
    const QString place = frame ? tr("%1, frame %2").arg(time()).arg(frame->value) : time();
    m_videoOutput->widget()->setAccessibleDescription(place);
    return place;
}

void PlayerPane::setSnapshotTimes(const QVector<qint64>& ms)
{
    m_ui->videoSlider->setSnapshotTicks(ms);
}

void PlayerPane::typePosition()
{
    m_ui->timecodeField->type();
}

void PlayerPane::takeKeyboard()
{
    m_ui->videoFrame->setFocus();
}
