#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/PictureSource.h"
#include "ui/mainwindow/CaptureTickets.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>
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
class Filmstrip;
class FolderSteps;
class FrameProposals;
class FullScreen;
class ImageProfile;
class PlayerSteering;
class QImage;
class RecentMenu;
class SnapshotPane;
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

/// The application's only window: a video player on the left, and on the right the snapshot taken
/// from it, which is saved or copied.
///
/// The implementation is split by topic: construction in MainWindow.cpp, files from outside and
/// closing in MainWindow_files.cpp, stored settings in MainWindow_memory.cpp, the player in
/// MainWindow_player.cpp and its zoom in MainWindow_zoom.cpp, capturing for the SnapshotPane in
/// MainWindow_snapshot.cpp, what that does in MainWindow_panes.cpp, earlier snapshots in
/// MainWindow_filmstrip.cpp, the best frames in MainWindow_best.cpp, the menus in
/// MainWindow_menus.cpp, and the keys and navigation of PlayerSteering in MainWindow_steering.cpp.
///
/// Settings: those of SnapshotPane; "recentFiles", "windowGeometry", "splitterState".
/// User-interface thread only.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The direction of step(). Any value other than Forward counts as Backward.
    enum SeekDirection { Backward = -1, Forward = 1 };

    /// Creates the video output as a child of the given object.
    using VideoOutputFactory = std::function<QtAV::VideoOutput*(QObject*)>;

    explicit MainWindow(QWidget* parent = nullptr);
    /// Like above with another video output. If that has no widget, a message box reports it and
    /// the window has no player.
    MainWindow(QWidget* parent, const VideoOutputFactory& makeVideoOutput);
    ~MainWindow() override;

    /// True if a video is open or being opened; it may still turn out to be unplayable.
    bool isVideoLoaded() const;
    /// The path of the open video; empty without one.
    QString currentVideoFilePath() const;
    /// File information about the player's file.
    QFileInfo currentVideoFileInfo() const;
    /// The name with its extension.
    QString currentVideoFileName() const;
    /// The name up to its first dot.
    QString currentVideoFileBaseName() const;
    QDir currentVideoFileDir() const;

    /// Shows the name of the open video in the title.
    void updateWindowTitle();
    /// Enables or disables everything that needs a video.
    void setVideoControlsEnabled(bool on);
    void setupVolumePopup();

    /// Writes the snapshot, replacing a file of that name. Reports the result as a debug message
    /// and in the status bar; returns false if nothing was written.
    [[nodiscard]] bool saveSnapshot(QString path);
    /// The name of the next picture in the folder: the first free one from the file counter on.
    /// Does not change the counter.
    [[nodiscard]] QString automaticFileName(QDir dir);
    void updateAutomaticFileNameDisplay();
    /// Enables or disables everything that needs a snapshot.
    void setSnapshotControlsEnabled(bool on);
    /// Fill the boxes with the profiles and select the last used one.
    void loadImageProfileComboBox();
    void loadFileNameProfileComboBox();
    /// Creates the save dialog; call it once.
    void setupFileDialogs();

    /// Restores size, place and everything else that the previous window stored at its end. Call it
    /// before the window is shown and before a video is opened.
    void restoreLayout();

    /// Restores the unsaved snapshots of the previous window, and stores those of this one in the
    /// folder from now on. Call it once. Without it, the window asks about each unsaved snapshot at
    /// its end.
    void keepSnapshots(const QString& folder);

    /// The times in the open video of the snapshots in the filmstrip: milliseconds in rising order,
    /// without duplicates.
    [[nodiscard]] QVector<qint64> snapshotTimes() const;

    /// Called when the desktop session ends or the system asks the program to end: stores
    /// everything that can be kept, and waits until it is written.
    /// @param mayAsk  whether to ask about what cannot be kept
    /// @return false if the user wants to stay
    [[nodiscard]] bool prepareForSessionEnd(bool mayAsk);

Q_SIGNALS:
    /// The result of snapshotTimes() has changed.
    void snapshotTimesChanged(const QVector<qint64>& ms);

public Q_SLOTS:
    /// Proposes the best frames of a stretch of the open video, at or after `fromMs` and before
    /// `toMs`.
    void proposeBestFrames(qint64 fromMs, qint64 toMs);
    /// Does so for the stretch from a second before the frame on screen to a second after it.
    void proposeBestFramesHere();

    /// Fits the video into its pane, shows it in full size (a pixel of the video is one of the
    /// screen) or four times that.
    void fitVideo();
    void showActualSize();
    void showFourfold();
    /// Full size, or fitted where it is in full size.
    void toggleActualSize();
    // The player.
    /// Plays or pauses the video on screen; if there is none, asks for one.
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
    /// Seek to the slider's position, or to that of a value; playback continues if it was running.
    void seekBySlider(int value);
    void seekBySlider();
    void skipBackward();
    void skipForward();
    /// Pauses and moves by `ms` milliseconds, negative for back, from the position of a pending
    /// seek: successive calls add up.
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
    /// Makes the snapshot again from the full frame, with the selected profile if null is passed. A
    /// failure is reported in the status bar, and there is no snapshot then.
    void processFullFrameImage(ImageProfile* profile);
    /// Shows the snapshot as made by the profile; does nothing while there is none.
    void imageProfileUpdated(ImageProfile* profile);
    void saveButtonPressed();
    void on_actionSaveSnapshot_triggered();
    /// Shows the most recently saved file in the file manager.
    void on_actionShow_in_Folder_triggered();
    void saveWithAutomaticFileName();
    void showSaveDialog();
    void on_actionTake_Snapshot_triggered();
    /// Takes a snapshot and saves it without asking, under the next automatic name.
    void takeAndSave();
    void on_actionCopy_Snapshot_triggered();
    void on_actionCopy_Full_Frame_triggered();
    /// Applies the chosen profile, also to the current snapshot.
    void on_imageProfileComboBox_activated(int index);
    /// Selects a profile that equals the selected one except for keeping the video's own size;
    /// creates it if necessary.
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

    /// Ends the application without a question.
    void confirmQuit();
    /// Ends the application without a question, once everything that can be kept is written.
    void quitWhenKept();
    /// Opens a video passed by another program, if an unsaved snapshot may be dropped.
    void openFromOutside(const QString& path);
    void retakeFocusAfterDialog();
    /// Raises the window, even if it was minimised.
    void comeToFront();

protected:
    /// Asks about what would be lost, then ends the application.
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// How long results stay in the status bar.
    static constexpr int messageMs = 8000;

    void setupPlayer(const VideoOutputFactory& makeVideoOutput);
    void setupLanguages();
    void connectActions();
    void refusePlayer();
    void connectPlayer();
    void connectTransport();
    void alignControls();
    void setupProfileMenus();
    void setupThemeMenu();
    void setupLooks();
    void showRecentFiles();
    void showSpeed(qreal speed);
    void showWhatIsNext(bool isUnsaved);
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
    void noteOpenFolder(const QFileInfo& video);
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

    void setupSnapshotPane();
    void capture(bool isToBeSaved = false);
    [[nodiscard]] bool takeSaving();
    void takeCapture(const MadeSnapshot& made);
    void warnOfCapture(const QString& reason);
    void resetSnapshot();
    [[nodiscard]] PictureSource sourceOfCapture(const CapturedPicture& picture) const;

    std::unique_ptr<Ui::MainWindow> m_ui;
    QSettings m_settings;
    SnapshotPane* m_snapshotPane = nullptr;   ///< created first
    Filmstrip* m_filmstrip = nullptr;         ///< created first
    SnapshotSaver* m_snapshotSaver = nullptr; ///< created first
    QString m_wantedSnapshot;                 ///< to be shown once it has been read
    QVector<qint64> m_toldSnapshotTimes;
    RecentMenu* m_recentMenu = nullptr;    ///< created first
    FolderSteps* m_folderSteps = nullptr;  ///< created first
    DropZone* m_dropZone = nullptr;        ///< created first
    VideoZoom* m_videoZoom = nullptr;      ///< created first
    FrameProposals* m_proposals = nullptr; ///< created first
    QAction* m_bestFramesAction = nullptr; ///< created first
    bool m_isEnding = false;               ///< end as soon as everything is written
    bool m_endsUnasked = false;            ///< end without asking
    /// The file and time of the last capture, for messages.
    QString m_capturedPlace;
    QString m_currentVideoPath;
    QtAV::AVPlayer* m_player = nullptr;
    /// Deleted before the window when the application ends.
    QPointer<QtAV::VideoOutput> m_videoOutput;
    /// Null in a window without a player.
    VolumePopup* m_volumePopup = nullptr;
    /// Milliseconds per step of the slider.
    qint64 m_sliderUnit = 1000;
    QIcon m_playIcon;
    QIcon m_pauseIcon;
    CaptureTickets m_captures;
    /// For each pending capture, whether to save it at once.
    std::deque<bool> m_savesCapture;
    /// Null in a window without a player, as are m_spoken and m_fullScreen.
    PlayerSteering* m_steering = nullptr;
    SpokenEvents* m_spoken = nullptr; ///< null in a window without a player
    FullScreen* m_fullScreen = nullptr;
};
