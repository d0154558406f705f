#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/PictureSource.h"
#include "ui/mainwindow/CaptureTickets.h"
#include "ui/mainwindow/PaneWindow.h"

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
class QAction;
class QImage;
class QTimer;
class RecentMenu;
class SnapshotSaver;
struct MadeSnapshot;
class SpokenEvents;

namespace Ui {
class MainWindow;
}

/// The application's only window: the PlayerPane with the filmstrip on the left, and on the right
/// the SnapshotPane. The window connects these with each other, the menus, and other files.
///
/// Construction is in MainWindow.cpp; the other files, MainWindow_*.cpp, start with their topic.
///
/// Settings: those of SnapshotPane; "recentFiles", "windowGeometry", "splitterState".
/// User-interface thread only.
class MainWindow : public PaneWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    /// Like above with another video output. If that has no widget, a message box reports it and
    /// the window has no player.
    MainWindow(QWidget* parent, const VideoOutputFactory& makeVideoOutput);
    ~MainWindow() override;

    /// Shows the name of the open video in the title.
    void updateWindowTitle();
    /// Enable or disable everything that needs a video or a snapshot, in the panes and the menus.
    void setVideoControlsEnabled(bool on);
    void setSnapshotControlsEnabled(bool on);

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
    void showSelectVideoDialog();
    void openVideo(QString path);
    void closeVideo();
    /// Opens a video as soon as no snapshot is being taken or saved, if an unsaved one may be
    /// dropped.
    void openFromOutside(const QString& path);

    /// Proposes the best frames of the open video at or after `fromMs` and before `toMs`.
    void proposeBestFrames(qint64 fromMs, qint64 toMs);
    /// Does so for the marked stretch, or from a second before the frame on screen to a second
    /// after it.
    void proposeBestFramesHere();

    /// Takes a snapshot of the frame on screen; the player answers with one of the next two.
    void snapshotButtonPressed();
    void snapshotCaptured(const QImage& image);
    void onCaptureError();
    /// Takes a snapshot and saves it without asking, under the next automatic name.
    void takeAndSave();

    /// Ends the application without a question.
    void confirmQuit();
    /// Ends the application without a question, once everything that can be kept is written.
    void quitWhenKept();
    void retakeFocusAfterDialog();
    /// Raises the window, even if it was minimised.
    void comeToFront();

    // Dialogs and menus, named after their controls.
    void on_actionOpen_triggered();
    void on_actionExit_triggered();
    void on_actionTake_Snapshot_triggered();
    void on_actionBatch_Mode_triggered();
    void on_actionImage_Filters_Test_triggered();
    void on_actionAbout_triggered();
    void on_actionDocumentation_triggered();
    void on_actionCommandLineOptions_triggered();
    void on_editImageProfileButton_clicked();
    void on_editFileNameProfileButton_clicked();

protected:
    /// Asks about what would be lost, then ends the application.
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setupPlayer(const VideoOutputFactory& makeVideoOutput);
    void refusePlayer();
    void connectPlayerPane();
    void connectSnapshotPane();
    void keepKeysForVideo();
    void showMessage(const QString& text);

    void connectActions();
    void setupProfileMenus();
    void setupViewMenu();
    void setupFileMenu();
    void setupLooks();
    void showWhatIsNext(bool isUnsaved);
    void chooseDeinterlacing(const QString& name);
    void chooseHdr(int hdr);
    void followImageProfile();
    void runBatchMode(const QStringList& videos);
    void loadMarkedStretch(BatchModeDialog& dialog) const;

    void setupSteering();
    void connectPlayback();
    void connectSteering();
    void setupZoom();
    void connectMute();
    void setupFullScreen();
    void setSteeringEnabled(bool on);
    void setupBestFrames();

    void setupDrops();
    void openDropped(const QStringList& videos);
    void quit();
    void endWhenSafe();
    void showWaiting(bool on);
    void saveLayout();

    [[nodiscard]] bool maySnapshotGo();
    [[nodiscard]] int snapshotsAtRisk() const;
    [[nodiscard]] bool mayAllGo();
    [[nodiscard]] int askAboutSnapshots(int count);

    void setupFilmstrip();
    void addToFilmstrip();
    void returnToSnapshot(const QString& id);
    void showSnapshotAgain(const QString& id);
    void returnToFrame(const PictureSource& source);
    void showKeptSnapshot(const QString& id, const CapturedPicture& picture);
    void followShownSnapshot();
    void noteProfileOfSnapshot();
    void tellSnapshotTimes();
    void saveSnapshots(const QStringList& ids);
    void reportSavedSnapshots(int saved, int failed, const QString& lastFile);

    void capture(bool isToBeSaved = false);
    [[nodiscard]] bool takeSaving();
    void takeCapture(const MadeSnapshot& made);
    void showCapture(const MadeSnapshot& made, bool isToBeSaved);
    void reportCaptureFailure(const QString& reason);
    [[nodiscard]] bool areCapturesDone();
    void giveUpCaptures();
    void openWhenSafe(const QString& path);
    void leaveWhenCaptured(std::function<void()> action);
    void continueLeaving();
    void stopLeaving();

    std::unique_ptr<Ui::MainWindow> m_ui;
    QSettings m_settings;
    // Their parents own them; the constructor sets those without a comment.
    Filmstrip* m_filmstrip = nullptr;
    SnapshotSaver* m_snapshotSaver = nullptr;
    RecentMenu* m_recentMenu = nullptr;
    FolderSteps* m_folderSteps = nullptr;
    DropZone* m_dropZone = nullptr;
    FrameProposals* m_proposals = nullptr;
    QAction* m_bestFramesAction = nullptr;
    SpokenEvents* m_spoken = nullptr;   ///< null in a window without a player
    FullScreen* m_fullScreen = nullptr; ///< null in a window without a player
    QTimer* m_captureLimit = nullptr;
    CaptureTickets m_captures;
    std::deque<bool> m_savesCapture; ///< for each pending capture, whether to save it at once
    QString m_capturedPlace;         ///< the file and time of the last capture, for messages
    QString m_wantedSnapshot;        ///< to be shown once it has been read
    QVector<qint64> m_toldSnapshotTimes;
    bool m_isTakingCapture = false;  ///< a capture was answered and is being shown, or saved
    std::function<void()> m_leaving; ///< waits until everything is taken; empty for nothing
    bool m_isEnding = false;         ///< end as soon as everything is taken and written
    bool m_endsUnasked = false;      ///< end without asking
};
