#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/FilePublisher.h"
#include "imaging/ImageRecipe.h"
#include "imaging/PictureSource.h"
#include "ui/mainwindow/CaptureTickets.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVector>

#include <deque>
#include <functional>
#include <memory>

class BatchModeDialog;
class DropZone;
class FileNameProfile;
class Filmstrip;
class FolderSteps;
class FolderSweeper;
class FrameProposals;
class FullScreen;
class ImageProfile;
class PlayerSteering;
class QFileDialog;
class QPushButton;
class RecentMenu;
class SnapshotMaker;
class SnapshotSaver;
struct MadeSnapshot;
class VideoZoom;
class SpokenEvents;
class VolumePopup;

namespace QtAV {
class AVPlayer;
class VideoOutput;
} // namespace QtAV

namespace Ui {
class MainWindow;
}

/// The application's one window: on the left a video player, on the right the snapshot taken from
/// it, which is saved or copied.
///
/// Its sources are split by topic: construction in MainWindow.cpp, videos from outside and ending
/// in MainWindow_files.cpp, what is remembered in MainWindow_memory.cpp, the player in
/// MainWindow_player.cpp and how large it shows the video in MainWindow_zoom.cpp, the snapshot in
/// MainWindow_snapshot.cpp and what is told of it in MainWindow_summary.cpp, those that were taken
/// before in MainWindow_filmstrip.cpp, the best frames in MainWindow_best.cpp, the menus in
/// MainWindow_menus.cpp, and the ways to a frame that PlayerSteering adds, with the keys, in
/// MainWindow_steering.cpp.
///
/// Settings: "lastOpenDir", the folder that the save dialog starts in, and "lastSaveDir" in place
/// of it where the user saved elsewhere; "outputFolder" of the automatic names,
/// "automaticFileName", "recentFiles", "windowGeometry", "splitterState". User-interface thread
/// only.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Which way step() goes. What is not Forward counts as Backward.
    enum SeekDirection { Backward = -1, Forward = 1 };

    /// Makes what shows the video, as a child of the object that it is given.
    using VideoOutputFactory = std::function<QtAV::VideoOutput*(QObject*)>;

    explicit MainWindow(QWidget* parent = nullptr);
    /// The same with another video output. Where that has no widget, says so in a message box and
    /// gives a window without a player.
    MainWindow(QWidget* parent, const VideoOutputFactory& makeVideoOutput);
    ~MainWindow() override;

    /// A video is open, or being opened; it may still turn out to be unplayable.
    bool isVideoLoaded() const;
    /// The path of the open video; empty without one.
    QString currentVideoFilePath() const;
    /// About the file that the player has.
    QFileInfo currentVideoFileInfo() const;
    /// The name with its extension.
    QString currentVideoFileName() const;
    /// The name up to its first dot.
    QString currentVideoFileBaseName() const;
    QDir currentVideoFileDir() const;

    /// Names the open video in the title.
    void updateWindowTitle();
    /// Enables or disables whatever works on a video.
    void setVideoControlsEnabled(bool on);
    void setupVolumePopup();

    /// Writes the snapshot, in place of a file of that name. Notes the outcome on the debug stream
    /// and in the status bar; false when nothing was written.
    [[nodiscard]] bool saveSnapshot(QString path);
    /// The name of the next picture in the folder: the first from the file counter on that is free.
    /// The counter stays there.
    [[nodiscard]] QString automaticFileName(QDir dir);
    void updateAutomaticFileNameDisplay();
    /// Enables or disables whatever works on a snapshot.
    void setSnapshotControlsEnabled(bool on);
    /// Fill the choices from the profiles; what was used last becomes the selected one.
    void loadImageProfileComboBox();
    void loadFileNameProfileComboBox();
    /// Makes the save dialog; to be called once.
    void setupFileDialogs();

    /// Gives the window the size, the place and all else that the last one kept at its end. Before
    /// it is shown, and before a video is opened.
    void restoreLayout();

    /// Brings back the unsaved snapshots of the window before, and keeps those of this one in the
    /// folder from now on. Once. A window that does not do so asks about each at its end.
    void keepSnapshots(const QString& folder);

    /// Where in the open video snapshots were taken that are in the filmstrip: milliseconds, in
    /// rising order, each once.
    [[nodiscard]] QVector<qint64> snapshotTimes() const;

    /// The desktop's session ends, or the system asks the program to: keeps all that can be kept,
    /// and waits until that is written.
    /// @param mayAsk  about what cannot be kept
    /// @return false where the user wants to stay
    [[nodiscard]] bool prepareForSessionEnd(bool mayAsk);

Q_SIGNALS:
    /// snapshotTimes() is another one.
    void snapshotTimesChanged(const QVector<qint64>& ms);

public Q_SLOTS:
    /// Proposes the best frames of a stretch of the open video: those at `fromMs` or later and
    /// before `toMs`.
    void proposeBestFrames(qint64 fromMs, qint64 toMs);
    /// The same a second before and behind the frame on screen.
    void proposeBestFramesHere();

    /// Fits the video into its pane, shows it in full size (a pixel of the video is one of the
    /// screen) or four times that.
    void fitVideo();
    void showActualSize();
    void showFourfold();
    /// Full size, or fitted where it is in full size.
    void toggleActualSize();
    // The player.
    /// Plays and pauses the video that is shown; where there is none, asks for one.
    void openVideoLabelClicked();
    void showSelectVideoDialog();
    void openVideo(QString path);
    void closeVideo();
    void pause();
    void playPause();
    void updatePlayButton();
    void updateSliderUnit();
    void updateSlider();
    void updateSlider(qint64 position);
    void durationChanged(qint64 duration);
    void positionChanged(qint64 position);
    /// Go where the slider stands, or would stand at this value; plays on if it was playing.
    void seekBySlider(int value);
    void seekBySlider();
    void skipBackward();
    void skipForward();
    /// Pauses and goes `ms` milliseconds on, or back where it is negative, from where the player is
    /// going: calls that come before a frame does add up.
    void seekRelative(qint64 ms);
    void stepBackward();
    void stepForward();
    void step(SeekDirection direction);
    /// @param volume  0 to 100
    void volumeChanged(int volume);
    void on_volumeButton_clicked();
    void on_actionOpen_triggered();

    // The snapshot.
    void snapshotButtonPressed();
    void snapshotCaptured(const QImage& image);
    void onCaptureError();
    /// Makes the snapshot anew from the full frame; with the selected profile when given null. Says
    /// in the status bar when that fails, and there is no snapshot then.
    void processFullFrameImage(ImageProfile* profile);
    /// Shows the snapshot as the profile makes it; nothing happens while there is none.
    void imageProfileUpdated(ImageProfile* profile);
    void saveButtonPressed();
    void on_actionSaveSnapshot_triggered();
    /// Shows the file that was saved last in the file manager.
    void on_actionShow_in_Folder_triggered();
    void saveWithAutomaticFileName();
    void showSaveDialog();
    void on_actionTake_Snapshot_triggered();
    /// Takes a snapshot and saves it without asking, under the next automatic name.
    void takeAndSave();
    void on_actionCopy_Snapshot_triggered();
    void on_actionCopy_Full_Frame_triggered();
    /// The chosen profile is used from now on, also for the snapshot that is there.
    void on_imageProfileComboBox_activated(int index);
    /// Selects a profile like the selected one, but in the video's own size; makes it if need be.
    void on_originalSizeButton_clicked();
    void on_filenameProfileComboBox_activated(int index);
    void on_selectOutputFolderButton_clicked();
    void on_automaticFileNameGroupBox_toggled(bool on);

    // Profile editing and the menus.
    void on_editImageProfileButton_clicked();
    void on_editFileNameProfileButton_clicked();
    void on_actionBatch_Mode_triggered();
    void on_actionImage_Filters_Test_triggered();
    void on_actionAbout_triggered();
    void on_actionDocumentation_triggered();
    void on_actionCommandLineOptions_triggered();
    void on_actionExit_triggered();

    /// Ends the application, without a question.
    void confirmQuit();
    /// Ends the application without a question, once what can be kept is written.
    void quitWhenKept();
    /// Opens what another program passed on, when a snapshot that is not saved may go.
    void openFromOutside(const QString& path);
    void retakeFocusAfterDialog();
    /// Shows the window above all others, also where it was minimised.
    void comeToFront();

protected:
    /// Asks about what would be lost; then ends the application.
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// How long the outcome of what was done stays in the status bar.
    static constexpr int messageMs = 8000;

    void setupPlayer(const VideoOutputFactory& makeVideoOutput);
    void setupLanguages();
    void refusePlayer();
    void connectPlayer();
    void connectTransport();
    void alignControls();
    void setupProfileMenus();
    void setupThemeMenu();
    void setupLooks();
    void showRecentFiles();
    void showSpeed(qreal speed);
    void showWhatIsNext();
    void chooseDeinterlacing(const QString& name);
    void chooseHdr(int hdr);
    void followImageProfile();
    void keepKeysForVideo();
    void setupSteering();
    void connectSteering();
    void connectStretch();
    void connectMute();
    void setupFullScreen();
    void setupKeyTips();
    void setupSpokenEvents();
    [[nodiscard]] QString spokenPlace() const;
    void setSteeringEnabled(bool on);
    void giveKeyboardToVideo();
    void loadMarkedStretch(BatchModeDialog& dialog) const;
    void quit();
    void endWhenSafe();
    void saveLayout();
    void setupShowInFolder();
    void offerToShowSavedFile(const QString& text);

    void showOutputFolder(const QFileInfo& video);
    void noteOutputFolder();
    void noteSaveFolder();
    void noteOpenFolder(const QFileInfo& video);
    void followVideoFolder(const QFileInfo& video);
    void proposeFileName(const QFileInfo& video);
    void noticeMediaStatus();
    void noticeBaseLayer();
    void noticeFailedRead(const QString& reason);
    void showOpenButton(const QString& text);
    void hideOpenButton();
    [[nodiscard]] bool isVideoShown() const;

    [[nodiscard]] bool maySnapshotGo();
    [[nodiscard]] bool isSnapshotAtRisk() const;
    [[nodiscard]] int snapshotsAtRisk() const;
    [[nodiscard]] bool mayAllGo();
    [[nodiscard]] int askAboutSnapshots(int count);

    void setupFileMenu();
    void setupDrops();
    void openDropped(const QStringList& videos);
    void runBatchMode(const QStringList& videos);
    void setupZoom();
    void setupBestFrames();

    void setupFilmstrip();
    void addToFilmstrip();
    void returnToSnapshot(const QString& id);
    void returnToFrame(const PictureSource& source);
    void showKeptSnapshot(const QString& id, const CapturedPicture& picture);
    void followShownSnapshot();
    void noteProfileOfSnapshot();
    void tellSnapshotTimes();
    void saveSnapshots(const QStringList& ids);
    void reportSavedSnapshots(int saved, int failed, const QString& lastFile);
    [[nodiscard]] QString folderForSnapshots();

    void capture(bool isToBeSaved = false);
    [[nodiscard]] bool takeSaving();
    void takeCapture(const MadeSnapshot& made);
    void takeRemade(const MadeSnapshot& made);
    void showSnapshot(const MadeSnapshot& made);
    void warnOfCapture(const QString& reason);
    void resetSnapshot();
    void selectImageProfile(ImageProfile& profile);
    [[nodiscard]] QString typeToSave() const;
    void showSnapshotSummary();
    [[nodiscard]] bool isOutputFolderUsable(const QDir& folder);
    [[nodiscard]] PictureSource sourceOfCapture(const CapturedPicture& picture) const;
    struct Saving;
    [[nodiscard]] Saving savingNow();
    [[nodiscard]] WriteResult write(const Saving& saving, const QString& path,
                                    ExistingFile existing, WriteFailure& failure);
    [[nodiscard]] WriteResult save(const Saving& saving, const QString& path,
                                   ExistingFile existing);
    void reportSaved(const QString& path);
    void reportUnsaved(const QString& path, const WriteFailure& failure);
    void saveAs(const QString& chosen);
    [[nodiscard]] bool isReplacingWanted(const QString& path);

    std::unique_ptr<Ui::MainWindow> m_ui;
    QSettings m_settings;
    /// As processed; null until the first capture.
    QImage m_snapshotImage;
    /// There is none, or it was saved or copied.
    bool m_isSnapshotKept = true;
    /// What m_snapshotImage was made by.
    ImageRecipe m_snapshotRecipe;
    /// What m_snapshotImage was made of.
    CapturedPicture m_captured;
    Filmstrip* m_filmstrip = nullptr;         ///< made first
    SnapshotSaver* m_snapshotSaver = nullptr; ///< likewise
    SnapshotMaker* m_snapshotMaker = nullptr; ///< likewise
    QString m_shownSnapshot;                  ///< its name in the filmstrip; empty for none there
    QString m_wantedSnapshot;                 ///< to be shown when it has been read
    QVector<qint64> m_toldSnapshotTimes;
    RecentMenu* m_recentMenu = nullptr;    ///< made first
    FolderSteps* m_folderSteps = nullptr;  ///< likewise
    DropZone* m_dropZone = nullptr;        ///< likewise
    VideoZoom* m_videoZoom = nullptr;      ///< likewise
    FrameProposals* m_proposals = nullptr; ///< likewise
    QAction* m_bestFramesAction = nullptr; ///< likewise
    const std::unique_ptr<FolderSweeper> m_sweeper;
    bool m_isEnding = false;    ///< as soon as all is written
    bool m_endsUnasked = false; ///< likewise
    /// The file and the time of the last capture, for messages.
    QString m_capturedPlace;
    QString m_currentVideoPath;
    QtAV::AVPlayer* m_player = nullptr;
    /// Goes before the window when the application ends.
    QPointer<QtAV::VideoOutput> m_videoOutput;
    QDir m_lastOpenDir;
    QDir m_saveDialogDir;
    /// Of the automatic names, as the user chose it; empty for that of the video.
    QString m_outputFolder;
    QString m_lastSavedFile;
    QString m_saveDialogFileName;
    QString m_saveDialogNameFilter;
    QFileDialog* m_saveDialog = nullptr;
    /// Null in a window without a player.
    VolumePopup* m_volumePopup = nullptr;
    /// Milliseconds per step of the slider.
    qint64 m_sliderUnit = 1000;
    QIcon m_playIcon;
    QIcon m_pauseIcon;
    /// The number of the next automatic file name.
    int m_fileCounter = 1;
    ImageProfile* m_imageProfile = nullptr;
    FileNameProfile* m_fileNameProfile = nullptr;
    CaptureTickets m_captures;
    /// Of the captures that are still to come, which are to be saved at once.
    std::deque<bool> m_savesCapture;
    /// Null in a window without a player, as are m_spoken and m_fullScreen.
    PlayerSteering* m_steering = nullptr;
    SpokenEvents* m_spoken = nullptr; ///< likewise
    FullScreen* m_fullScreen = nullptr;
};
