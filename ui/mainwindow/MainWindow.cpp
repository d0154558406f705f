#include "ui/mainwindow/MainWindow.h"

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

namespace {

/// How long results stay in the status bar.
constexpr int messageMs = 8000;

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
    : PaneWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
{
    m_ui->setupUi(this);
    makePanes(m_settings, *m_ui->splitter);
    keepKeysForVideo();
    connectActions();
    updateWindowTitle();
    connectSnapshotPane();
    setupFilmstrip();
    setupViewMenu();
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
    const bool isShown =
        playerPane()->setupPlayer(makeVideoOutput, ReadingLimits::of(m_settings).pictureBytes);
    setupBestFrames();
    setupZoom();
    if (!isShown) {
        refusePlayer();
        return;
    }
    connectPlayerPane();
    setupProfileMenus();
    loadImageProfileComboBox();
    loadFileNameProfileComboBox();
    setupFileDialogs();
    setVideoControlsEnabled(false);
    setSnapshotControlsEnabled(false);
    setupVolumePopup();
    setupSteering();
    setupLooks();
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

void MainWindow::connectPlayerPane()
{
    connect(playerPane(), &PlayerPane::videoRequested, this, &MainWindow::showSelectVideoDialog);
    connect(playerPane(), &PlayerPane::fileChosen, this, &MainWindow::openFromOutside);
    connect(playerPane(), &PlayerPane::snapshotRequested, this, &MainWindow::snapshotButtonPressed);
    connect(playerPane(), &PlayerPane::unplayable, this, [this](const QString& reason) {
        statusBar()->showMessage(reason);
        // A snapshot taken before stays.
        setVideoControlsEnabled(false);
    });
    connect(playerPane(), &PlayerPane::message, this, &MainWindow::showMessage);
    connect(this, &MainWindow::snapshotTimesChanged, playerPane(), &PlayerPane::setSnapshotTimes);

    const QtAV::VideoCapture* const capture = playerPane()->player().videoCapture();
    connect(capture, &QtAV::VideoCapture::imageCaptured, this, &MainWindow::snapshotCaptured);
    connect(capture, &QtAV::VideoCapture::failed, this, &MainWindow::onCaptureError);
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

/// Shows the result of an action for a while.
void MainWindow::showMessage(const QString& text)
{
    statusBar()->showMessage(text, messageMs);
}
