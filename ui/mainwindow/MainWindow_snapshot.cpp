// Taking the frame on screen, and wiring the pane that shows it.

#include "ui/mainwindow/MainWindow.h"

#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/PlayerSteering.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/SpokenEvents.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/Times.h>

#include <QMessageBox>

void MainWindow::setupSnapshotPane()
{
    m_ui->actionShow_in_Folder->setEnabled(false);
    connect(m_snapshotPane, &SnapshotPane::made, this, &MainWindow::takeCapture);
    connect(m_snapshotPane, &SnapshotPane::imageProfileChanged, this,
            &MainWindow::followImageProfile);
    connect(m_snapshotPane, &SnapshotPane::unsavedChanged, this, &MainWindow::showWhatIsNext);
    connect(m_snapshotPane, &SnapshotPane::savedFileChanged, m_ui->actionShow_in_Folder,
            [this] { m_ui->actionShow_in_Folder->setEnabled(true); });
    connect(m_snapshotPane, &SnapshotPane::message, this,
            [this](const QString& text) { statusBar()->showMessage(text, messageMs); });
    connect(m_snapshotPane, &SnapshotPane::imageProfilesRequested, this,
            &MainWindow::on_editImageProfileButton_clicked);
    connect(m_snapshotPane, &SnapshotPane::fileNameProfilesRequested, this,
            &MainWindow::on_editFileNameProfileButton_clicked);
    connect(m_snapshotPane, &SnapshotPane::keyboardGivenUp, this, &MainWindow::giveKeyboardToVideo);
    connect(m_snapshotPane, &SnapshotPane::dialogClosed, this, &MainWindow::retakeFocusAfterDialog);
}

void MainWindow::capture(bool isToBeSaved)
{
    if (!maySnapshotGo()) {
        return;
    }
    m_captures.ask();
    m_savesCapture.push_back(isToBeSaved);
    m_capturedPlace = isVideoLoaded()
                          ? tr("%1 at %2").arg(currentVideoFileName(), m_ui->timecodeField->time())
                          : QString();
    m_player->videoCapture()->capture();
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
    picture.frame = m_player->videoCapture()->capturedFrame();
    picture.source = sourceOfCapture(picture);
    m_snapshotPane->capture(picture);
}

/// The video may have been closed since.
void MainWindow::takeCapture(const MadeSnapshot& made)
{
    if (!m_captures.answer()) {
        return;
    }
    const bool isToBeSaved = takeSaving();
    m_snapshotPane->showNew(made, m_capturedPlace);
    addToFilmstrip();
    // Even without a snapshot: the profile may be the cause, and can be edited then.
    setSnapshotControlsEnabled(true);
    if (!made.rendering.error.isEmpty()) {
        warnOfCapture(made.rendering.error);
        return;
    }
    m_spoken->tell(tr("Snapshot taken: %1").arg(m_capturedPlace));
    if (isToBeSaved) {
        m_snapshotPane->saveWithAutomaticFileName();
    }
}

/// The source of a capture of the open video.
PictureSource MainWindow::sourceOfCapture(const CapturedPicture& picture) const
{
    if (!isVideoLoaded()) {
        return {};
    }
    const QtAV::MediaFacts facts = m_player->facts();
    const PictureSource video =
        PictureSource::of(m_player->file(), facts.tags, facts.tickNumerator, facts.tickDenominator);
    return video.at(picture.frame.timestamp(), picture.image.size());
}

void MainWindow::onCaptureError()
{
    if (m_captures.answer()) {
        (void)takeSaving();
        warnOfCapture(QString());
    }
}

/// Reports what could not be captured and the reason, if known.
void MainWindow::warnOfCapture(const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, tr("Morvantile video capture"),
                    tr("Failed to capture video frame"), QMessageBox::Ok);
    QStringList details{m_capturedPlace.toHtmlEscaped(), reason.toHtmlEscaped()};
    details.removeAll(QString());
    if (!details.isEmpty()) {
        // Marked as rich text, because otherwise the box guesses from the file's name.
        box.setInformativeText(
            QStringLiteral("<qt>%1</qt>").arg(details.join(QStringLiteral("<br>"))));
    }
    box.exec();
}

void MainWindow::resetSnapshot()
{
    m_wantedSnapshot.clear();
    m_snapshotPane->clear();
    m_filmstrip->setCurrent({});
}

void MainWindow::setSnapshotControlsEnabled(bool on)
{
    m_ui->actionCopy_Full_Frame->setEnabled(on);
    m_ui->actionCopy_Snapshot->setEnabled(on);
    m_ui->actionSaveSnapshot->setEnabled(on);
    m_snapshotPane->setControlsEnabled(on);
}
