// Taking the frame on screen, and wiring the pane that shows it.

#include "ui/mainwindow/MainWindow.h"

#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/SpokenEvents.h"
#include "ui/widgets/PlainText.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/Times.h>

#include <QMessageBox>
#include <QScopedValueRollback>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

/// Maximum time for which ending waits for captures: the video's disk may not answer at all.
constexpr std::chrono::seconds longestCaptureWait{10};

/// The source of a picture of the player's video; empty without one.
PictureSource sourceOf(const CapturedPicture& picture, const QtAV::AVPlayer& player)
{
    if (player.file().isEmpty()) {
        return {};
    }
    const QtAV::MediaFacts facts = player.facts();
    const PictureSource video =
        PictureSource::of(player.file(), facts.tags, facts.tickNumerator, facts.tickDenominator);
    return video.at(picture.frame.timestamp(), picture.image.size());
}

/// Reports what could not be captured and the reason, if known.
void warnOfCapture(const QString& place, const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, MainWindow::tr("Morvantile video capture"),
                    MainWindow::tr("Failed to capture video frame"), QMessageBox::Ok);
    QStringList details{place, reason};
    details.removeAll(QString());
    box.setInformativeText(asPlainText(details.join(QLatin1Char('\n'))));
    box.exec();
}

} // namespace

void MainWindow::connectSnapshotPane()
{
    m_ui->actionShow_in_Folder->setEnabled(false);
    m_captureLimit = new QTimer(this);
    m_captureLimit->setObjectName(QStringLiteral("captureLimit"));
    m_captureLimit->setSingleShot(true);
    m_captureLimit->setInterval(longestCaptureWait);
    connect(m_captureLimit, &QTimer::timeout, this, &MainWindow::giveUpCaptures);
    connect(snapshotPane(), &SnapshotPane::made, this, &MainWindow::takeCapture);
    connect(snapshotPane(), &SnapshotPane::imageProfileChanged, this,
            &MainWindow::followImageProfile);
    connect(snapshotPane(), &SnapshotPane::unsavedChanged, this, &MainWindow::showWhatIsNext);
    connect(snapshotPane(), &SnapshotPane::savedFileChanged, m_ui->actionShow_in_Folder,
            [this] { m_ui->actionShow_in_Folder->setEnabled(true); });
    connect(snapshotPane(), &SnapshotPane::message, this, &MainWindow::showMessage);
    connect(snapshotPane(), &SnapshotPane::imageProfilesRequested, this,
            &MainWindow::on_editImageProfileButton_clicked);
    connect(snapshotPane(), &SnapshotPane::fileNameProfilesRequested, this,
            &MainWindow::on_editFileNameProfileButton_clicked);
    connect(snapshotPane(), &SnapshotPane::keyboardGivenUp, playerPane(),
            &PlayerPane::takeKeyboard);
    connect(snapshotPane(), &SnapshotPane::dialogClosed, this, &MainWindow::retakeFocusAfterDialog);
}

void MainWindow::snapshotButtonPressed()
{
    capture();
}

void MainWindow::on_actionTake_Snapshot_triggered()
{
    capture();
}

void MainWindow::takeAndSave()
{
    capture(true);
}

void MainWindow::capture(bool isToBeSaved)
{
    if (!maySnapshotGo()) {
        return;
    }
    m_captures.ask();
    m_savesCapture.push_back(isToBeSaved);
    m_capturedPlace = isVideoLoaded()
                          ? tr("%1 at %2").arg(currentVideoFileName(), playerPane()->time())
                          : QString();
    playerPane()->player().videoCapture()->capture();
}

/// Whether the capture that has just been answered has to be saved at once.
bool MainWindow::takeSaving()
{
    if (m_savesCapture.empty()) {
        return false;
    }
    const bool saves = m_savesCapture.front();
    m_savesCapture.pop_front();
    return saves;
}

void MainWindow::snapshotCaptured(const QImage& image)
{
    CapturedPicture picture;
    picture.image = image;
    picture.frame = playerPane()->player().videoCapture()->capturedFrame();
    picture.source = sourceOf(picture, playerPane()->player());
    snapshotPane()->capture(picture);
}

/// The video may have been closed since.
void MainWindow::takeCapture(const MadeSnapshot& made)
{
    if (!m_captures.answer()) {
        return;
    }
    {
        const QScopedValueRollback<bool> taking(m_isTakingCapture, true);
        showCapture(made, takeSaving());
    }
    continueLeaving();
}

void MainWindow::showCapture(const MadeSnapshot& made, bool isToBeSaved)
{
    snapshotPane()->showNew(made, m_capturedPlace);
    addToFilmstrip();
    // Even without a snapshot: the profile may be the cause, and can be edited then.
    setSnapshotControlsEnabled(true);
    if (!made.rendering.error.isEmpty()) {
        reportCaptureFailure(made.rendering.error);
        return;
    }
    m_spoken->tell(tr("Snapshot taken: %1").arg(m_capturedPlace));
    if (isToBeSaved) {
        snapshotPane()->saveWithAutomaticFileName();
        if (!snapshotPane()->isKept()) {
            stopLeaving();
        }
    }
}

void MainWindow::onCaptureError()
{
    if (!m_captures.answer()) {
        return;
    }
    {
        const QScopedValueRollback<bool> taking(m_isTakingCapture, true);
        (void)takeSaving();
        reportCaptureFailure({});
    }
    continueLeaving();
}

void MainWindow::reportCaptureFailure(const QString& reason)
{
    // Otherwise the box would hold up the end.
    if (!m_endsUnasked) {
        warnOfCapture(m_capturedPlace, reason);
    }
}

/// Whether nothing that was asked for is still to come, or to be answered by the user. Limits the
/// time until that is given up.
bool MainWindow::areCapturesDone()
{
    if (m_captures.arePending()) {
        if (!m_captureLimit->isActive()) {
            m_captureLimit->start();
        }
        return false;
    }
    m_captureLimit->stop();
    return m_endsUnasked || !m_isTakingCapture;
}

/// Pictures that are there are waited for, because making a snapshot of them takes a limited time.
void MainWindow::giveUpCaptures()
{
    if (!m_isEnding && !m_leaving) {
        return;
    }
    if (snapshotPane()->isCapturing()) {
        m_captureLimit->start();
        return;
    }
    m_captures.forgetAll();
    m_savesCapture.clear();
    if (!m_isEnding) {
        const QScopedValueRollback<bool> taking(m_isTakingCapture, true);
        reportCaptureFailure({});
    }
    continueLeaving();
}

/// Does what leaves the open video once all snapshots of it are taken. A later call replaces an
/// earlier one.
void MainWindow::leaveWhenCaptured(std::function<void()> action)
{
    m_leaving = std::move(action);
    continueLeaving();
}

void MainWindow::continueLeaving()
{
    if (m_isEnding) {
        endWhenSafe();
    } else if (m_leaving && !areCapturesDone()) {
        showWaiting(true);
    } else if (m_leaving) {
        showWaiting(false);
        std::exchange(m_leaving, nullptr)();
    }
}

/// What leaves the video must not go on if saving failed, unless the system ends the program.
void MainWindow::stopLeaving()
{
    m_leaving = nullptr;
    m_isEnding = m_isEnding && m_endsUnasked;
}

void MainWindow::setSnapshotControlsEnabled(bool on)
{
    m_ui->actionCopy_Full_Frame->setEnabled(on);
    m_ui->actionCopy_Snapshot->setEnabled(on);
    m_ui->actionSaveSnapshot->setEnabled(on);
    snapshotPane()->setControlsEnabled(on);
}
