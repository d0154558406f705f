#include "ui/mainwindow/MainWindow.h"

#include "ui/mainwindow/LanguageMenu.h"
#include "ui/mainwindow/ReturnKey.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui_MainWindow.h"
#include "video/ReadingLimits.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QMessageBox>
#include <QStatusBar>

namespace {

/// Width of the widest time, so that the row does not move while the digits change.
int widestTime(const QWidget& widget)
{
    return widget.fontMetrics().horizontalAdvance(QStringLiteral("00:00:00.000"));
}

/// Whether the space key presses the control.
bool isPressedBySpace(const QWidget* control)
{
    const auto* const box = qobject_cast<const QGroupBox*>(control);
    return qobject_cast<const QAbstractButton*>(control) != nullptr ||
           qobject_cast<const QComboBox*>(control) != nullptr ||
           (box != nullptr && box->isCheckable());
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : MainWindow(parent, [](QObject* owner) { return new QtAV::VideoOutput(owner); })
{}

MainWindow::MainWindow(QWidget* parent, const VideoOutputFactory& makeVideoOutput)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    m_snapshotPane = new SnapshotPane(m_settings, m_ui->splitter);
    keepKeysForVideo();
    connectActions();
    updateWindowTitle();
    setupLanguages();
    setupSnapshotPane();
    setupFilmstrip();
    setupThemeMenu();
    setupFileMenu();
    setupDrops();
    setupPlayer(makeVideoOutput);
    updatePlayButton();
}

MainWindow::~MainWindow()
{
    // Clears the focus while everything still exists, because its control reacts to losing it.
    if (QWidget* const control = focusWidget()) {
        control->clearFocus();
    }
}

void MainWindow::setupPlayer(const VideoOutputFactory& makeVideoOutput)
{
    m_player = new QtAV::AVPlayer(this);
    m_player->setPictureMemory(ReadingLimits::of(m_settings).pictureBytes);
    m_videoOutput = makeVideoOutput(this);
    setupBestFrames();
    setupZoom();
    QWidget* const screen = m_videoOutput->widget();
    if (screen == nullptr) {
        refusePlayer();
        return;
    }
    m_player->setRenderer(m_videoOutput);
    m_player->setMediaEndAction(QtAV::MediaEndAction_Pause);
    screen->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->videoLayout->addWidget(screen, 0, 0);
    m_ui->openVideoLabel->raise();
    connectPlayer();
    connectTransport();
    alignControls();
    setupProfileMenus();
    loadImageProfileComboBox();
    loadFileNameProfileComboBox();
    setupFileDialogs();
    setVideoControlsEnabled(false);
    setSnapshotControlsEnabled(false);
    updateAutomaticFileNameDisplay();
    setupVolumePopup();
    setupSteering();
    setupLooks();
}

void MainWindow::setupLanguages()
{
    auto* const menu = new LanguageMenu(m_ui->menuView);
    m_ui->menuView->addSeparator();
    m_ui->menuView->addMenu(menu);
    connect(menu, &LanguageMenu::message, this,
            [this](const QString& text) { statusBar()->showMessage(text, messageMs); });
}

/// Reports that no video can be shown, and leaves only what works without a player.
void MainWindow::refusePlayer()
{
    QMessageBox::warning(nullptr, tr("Morvantile error"), tr("Can not create video renderer"),
                         QMessageBox::Ok);
    setAcceptDrops(false);
    m_ui->centralWidget->setEnabled(false);
    setVideoControlsEnabled(false);
    setSnapshotControlsEnabled(false);
    m_ui->actionOpen->setEnabled(false);
}

void MainWindow::connectPlayer()
{
    using QtAV::AVPlayer;
    const auto updateSliderNow = [this] { updateSlider(); };
    connect(m_player, &AVPlayer::started, this, updateSliderNow);
    connect(m_player, &AVPlayer::started, this, &MainWindow::noticeBaseLayer);
    connect(m_player, &AVPlayer::durationChanged, this, &MainWindow::durationChanged);
    connect(m_player, &AVPlayer::positionChanged, this, &MainWindow::positionChanged);
    // The frame at the sought position may already have been on screen, and differ from the slider.
    connect(m_player, &AVPlayer::seekFinished, this, updateSliderNow);
    connect(m_player, &AVPlayer::notifyIntervalChanged, this, &MainWindow::updateSliderUnit);
    connect(m_player, &AVPlayer::stateChanged, this, &MainWindow::updatePlayButton);
    connect(m_player, &AVPlayer::mediaStatusChanged, this, &MainWindow::updatePlayButton);
    connect(m_player, &AVPlayer::mediaStatusChanged, this, &MainWindow::noticeMediaStatus);
    connect(m_player, &AVPlayer::failed, this, &MainWindow::noticeFailedRead);

    const QtAV::VideoCapture* const capture = m_player->videoCapture();
    connect(capture, &QtAV::VideoCapture::imageCaptured, this, &MainWindow::snapshotCaptured);
    connect(capture, &QtAV::VideoCapture::failed, this, &MainWindow::onCaptureError);
}

void MainWindow::connectTransport()
{
    connect(m_ui->openVideoLabel, &QPushButton::clicked, this, &MainWindow::openVideoLabelClicked);
    connect(m_ui->videoSlider, &QSlider::sliderMoved, this,
            [this](int value) { seekBySlider(value); });
    connect(m_ui->videoSlider, &QSlider::sliderPressed, this, [this] { seekBySlider(); });
    connect(m_ui->videoSlider, &QSlider::sliderReleased, this, [this] { updateSlider(); });
    connect(m_ui->playButton, &QPushButton::clicked, this, &MainWindow::playPause);
    connect(m_ui->stepBackwardButton, &QPushButton::clicked, this, &MainWindow::stepBackward);
    connect(m_ui->stepForwardButton, &QPushButton::clicked, this, &MainWindow::stepForward);
    connect(m_ui->skipBackwardButton, &QPushButton::clicked, this, &MainWindow::skipBackward);
    connect(m_ui->skipForwardButton, &QPushButton::clicked, this, &MainWindow::skipForward);
    connect(m_ui->actionPlayPause, &QAction::triggered, this, &MainWindow::playPause);
    connect(m_ui->actionSkipBackward, &QAction::triggered, this, &MainWindow::skipBackward);
    connect(m_ui->actionSkipForward, &QAction::triggered, this, &MainWindow::skipForward);
    connect(m_ui->actionStepBackward, &QAction::triggered, this, &MainWindow::stepBackward);
    connect(m_ui->actionStepForward, &QAction::triggered, this, &MainWindow::stepForward);
    connect(m_ui->actionStepFieldForward, &QAction::triggered, m_player,
            &QtAV::AVPlayer::stepFieldForward);
    connect(m_ui->actionStepFieldBackward, &QAction::triggered, m_player,
            &QtAV::AVPlayer::stepFieldBackward);
    connect(m_ui->volumeButton, &QPushButton::clicked, this, &MainWindow::on_volumeButton_clicked);
    connect(m_ui->snapshotButton, &QPushButton::clicked, this, &MainWindow::snapshotButtonPressed);
}

void MainWindow::alignControls()
{
    m_ui->splitter->setChildrenCollapsible(false);
    m_ui->timecodeField->setTextWidth(widestTime(*m_ui->timecodeField));
    constexpr int rounding = 2;
    m_ui->durationLabel->setMinimumWidth(widestTime(*m_ui->durationLabel) + rounding);
}

/// Keys control the video wherever the focus is, except while typing: Return, not Space, presses a
/// control reached by Tab. A click does not move the focus.
void MainWindow::keepKeysForVideo()
{
    ReturnKey::pressControls(*m_ui->centralWidget);
    const auto controls = m_ui->centralWidget->findChildren<QWidget*>();
    for (QWidget* const control : controls) {
        if (isPressedBySpace(control)) {
            control->setFocusPolicy(Qt::TabFocus);
        }
    }
}

void MainWindow::retakeFocusAfterDialog()
{
    raise();
    activateWindow();
}
