// The menus, and the dialogs that they and the panes open.

#include "ui/mainwindow/MainWindow.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/mainwindow/LanguageMenu.h"
#include "ui/mainwindow/Shortcuts.h"
#include "ui/mainwindow/SnapshotPane.h"
#include "ui/mainwindow/ThemeMenu.h"
#include "ui/mainwindow/UserGuide.h"
#include "ui_MainWindow.h"

#include <QtAV/AVPlayer.h>

#include <QActionGroup>
#include <QDesktopServices>

namespace {

/// Makes the profile that a dialog returned, if any, the last used one: it is then selected in the
/// window, now and after the next start.
void adopt(ProfileManager& manager, BaseProfile* profile)
{
    if (profile != nullptr) {
        manager.setLastUsedProfile(profile);
    }
}

} // namespace

void MainWindow::on_editImageProfileButton_clicked()
{
    pause();
    ImageProfileDialog dialog(this);
    dialog.setPreview([this](ImageProfile* edited) { imageProfileUpdated(edited); });
    const QtAV::Statistics& video = playerPane()->player().statistics();
    dialog.setVideoDimensions(video.video_only.width, video.video_only.height);
    dialog.setExampleImage(snapshotPane()->captured().image);
    dialog.setSelectedProfile(snapshotPane()->imageProfile());
    dialog.exec();
    adopt(*ImageProfile::profileManager(), dialog.selectedProfile());
    loadImageProfileComboBox();
    // This also reverts the preview of a cancelled change.
    imageProfileUpdated(snapshotPane()->imageProfile());
    retakeFocusAfterDialog();
}

void MainWindow::on_editFileNameProfileButton_clicked()
{
    pause();
    FileNameProfileDialog dialog(this);
    dialog.setExampleFileName(currentVideoFileName());
    dialog.setSelectedProfile(snapshotPane()->fileNameProfile());
    dialog.exec();
    adopt(*FileNameProfile::profileManager(), dialog.selectedProfile());
    loadFileNameProfileComboBox();
    updateAutomaticFileNameDisplay();
    retakeFocusAfterDialog();
}

void MainWindow::on_actionBatch_Mode_triggered()
{
    runBatchMode({});
}

/// Adds these videos to the list first.
void MainWindow::runBatchMode(const QStringList& videos)
{
    pause();
    BatchModeDialog dialog(this);
    dialog.keepList();
    loadMarkedStretch(dialog);
    dialog.loadVideos(videos);
    dialog.exec();
    // Profiles may have been added, renamed and chosen there.
    loadImageProfileComboBox();
    loadFileNameProfileComboBox();
    imageProfileUpdated(snapshotPane()->imageProfile());
    updateAutomaticFileNameDisplay();
    retakeFocusAfterDialog();
}

void MainWindow::on_actionImage_Filters_Test_triggered()
{
    pause();
    ImageFiltersDialog dialog(this);
    dialog.setFrame(snapshotPane()->captured().image.isNull()
                        ? playerPane()->player().displayedFrame().toImage()
                        : snapshotPane()->captured().image);
    dialog.setProfile(snapshotPane()->imageProfile());
    dialog.exec();
    imageProfileUpdated(snapshotPane()->imageProfile());
    retakeFocusAfterDialog();
}

void MainWindow::connectActions()
{
    const auto on = [this](const QAction* action, auto slot) {
        connect(action, &QAction::triggered, this, slot);
    };
    on(m_ui->actionOpen, &MainWindow::on_actionOpen_triggered);
    on(m_ui->actionSaveSnapshot, &MainWindow::on_actionSaveSnapshot_triggered);
    on(m_ui->actionShow_in_Folder, &MainWindow::on_actionShow_in_Folder_triggered);
    on(m_ui->actionExit, &MainWindow::on_actionExit_triggered);
    on(m_ui->actionTake_Snapshot, &MainWindow::on_actionTake_Snapshot_triggered);
    on(m_ui->actionTakeAndSave, &MainWindow::takeAndSave);
    on(m_ui->actionCopy_Snapshot, &MainWindow::on_actionCopy_Snapshot_triggered);
    on(m_ui->actionCopy_Full_Frame, &MainWindow::on_actionCopy_Full_Frame_triggered);
    on(m_ui->actionBatch_Mode, &MainWindow::on_actionBatch_Mode_triggered);
    on(m_ui->actionImage_Filters_Test, &MainWindow::on_actionImage_Filters_Test_triggered);
    on(m_ui->actionShortcuts, [this] {
        Shortcuts::showPage(*this, *m_ui->menuBar);
        retakeFocusAfterDialog();
    });
    on(m_ui->actionDocumentation, &MainWindow::on_actionDocumentation_triggered);
    on(m_ui->actionCommandLineOptions, &MainWindow::on_actionCommandLineOptions_triggered);
    on(m_ui->actionAbout, &MainWindow::on_actionAbout_triggered);
}

/// The menus that show and change settings of the selected image profile.
void MainWindow::setupProfileMenus()
{
    auto* const deinterlacing = new QActionGroup(this);
    const auto addName = [&](QAction* action, const QString& name) {
        action->setData(name);
        deinterlacing->addAction(action);
        connect(action, &QAction::triggered, this, [this, name] { chooseDeinterlacing(name); });
    };
    addName(m_ui->actionDeinterlaceAutomatic, QStringLiteral("auto"));
    addName(m_ui->actionDeinterlaceOn, QStringLiteral("on"));
    addName(m_ui->actionDeinterlaceOff, QStringLiteral("off"));

    auto* const hdrs = new QActionGroup(this);
    const auto addHdr = [&](QAction* action, int hdr) {
        hdrs->addAction(action);
        connect(action, &QAction::triggered, this, [this, hdr] { chooseHdr(hdr); });
    };
    addHdr(m_ui->actionHdrToneMapped, ImageProfile::ToneMapped);
    addHdr(m_ui->actionHdrAsStored, ImageProfile::HdrAsStored);
}

void MainWindow::setupViewMenu()
{
    auto* const languages = new LanguageMenu(m_ui->menuView);
    m_ui->menuView->addSeparator();
    m_ui->menuView->addMenu(languages);
    connect(languages, &LanguageMenu::message, this, &MainWindow::showMessage);
    m_ui->menuView->addSeparator();
    m_ui->menuView->addMenu(new ThemeMenu(m_settings, this));
}

void MainWindow::chooseDeinterlacing(const QString& name)
{
    snapshotPane()->imageProfile()->setDeinterlacing(name);
    ImageProfile::profileManager()->saveProfiles();
    followImageProfile();
}

void MainWindow::chooseHdr(int hdr)
{
    snapshotPane()->imageProfile()->setHdr(hdr);
    ImageProfile::profileManager()->saveProfiles();
    followImageProfile();
}

/// Updates the player and the menus for the selected image profile.
void MainWindow::followImageProfile()
{
    noteProfileOfSnapshot();
    const QString name = snapshotPane()->imageProfile()->deinterlacing();
    const QtAV::Deinterlacing deinterlacing = QtAV::deinterlacingNamed(name);
    playerPane()->player().setDeinterlacing(deinterlacing);
    const QList<QAction*> actions = m_ui->menuDeinterlace->actions();
    for (QAction* const action : actions) {
        action->setChecked(QtAV::deinterlacingNamed(action->data().toString()) == deinterlacing);
    }
    const bool keepsHdr = snapshotPane()->imageProfile()->hdr() == ImageProfile::HdrAsStored;
    (keepsHdr ? m_ui->actionHdrAsStored : m_ui->actionHdrToneMapped)->setChecked(true);
}

void MainWindow::on_actionAbout_triggered()
{
    AboutDialog(this).exec();
    retakeFocusAfterDialog();
}

void MainWindow::on_actionDocumentation_triggered()
{
    QDesktopServices::openUrl(UserGuide::url());
}

void MainWindow::on_actionCommandLineOptions_triggered()
{
    QDesktopServices::openUrl(UserGuide::url(QStringLiteral("command-line")));
}
