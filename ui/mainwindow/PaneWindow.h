#pragma once

#include "ui/mainwindow/PlayerPane.h"

#include <QDir>
#include <QFileInfo>
#include <QMainWindow>
#include <QString>

class ImageProfile;
class QSettings;
class QSplitter;
class SnapshotPane;

/// A window with a PlayerPane on the left and a SnapshotPane on the right, whose functions it
/// offers as its own: most of them only call the pane, whose header describes them. User-interface
/// thread only.
class PaneWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The direction of step(). Any value other than Forward counts as Backward.
    enum SeekDirection { Backward = -1, Forward = 1 };

    using VideoOutputFactory = PlayerPane::VideoOutputFactory;

    using QMainWindow::QMainWindow;

    bool isVideoLoaded() const;
    /// The path of the open video; empty without one.
    QString currentVideoFilePath() const;
    /// The player's file, its name with the extension, its name up to the first dot, its folder.
    QFileInfo currentVideoFileInfo() const;
    QString currentVideoFileName() const;
    QString currentVideoFileBaseName() const;
    QDir currentVideoFileDir() const;
    void setupVolumePopup();

    [[nodiscard]] bool saveSnapshot(QString path);
    [[nodiscard]] QString automaticFileName(QDir dir);
    void updateAutomaticFileNameDisplay();
    void loadImageProfileComboBox();
    void loadFileNameProfileComboBox();
    void setupFileDialogs();

public Q_SLOTS:
    // The player. A position that is passed is ignored in favour of the player's.
    void openVideoLabelClicked();
    void pause();
    void playPause();
    void updatePlayButton();
    void updateSliderUnit();
    void updateSlider();
    void updateSlider(qint64 position);
    void durationChanged(qint64 duration);
    void positionChanged(qint64 position);
    void seekBySlider(int value);
    void seekBySlider();
    void skipBackward();
    void skipForward();
    void seekRelative(qint64 ms);
    void stepBackward();
    void stepForward();
    void step(SeekDirection direction);
    void volumeChanged(int volume);
    void on_volumeButton_clicked();
    void showActualSize();
    void showFourfold();
    void toggleActualSize();

    // The snapshot.
    void processFullFrameImage(ImageProfile* profile);
    void imageProfileUpdated(ImageProfile* profile);
    void saveButtonPressed();
    void saveWithAutomaticFileName();
    void showSaveDialog();
    void on_actionSaveSnapshot_triggered();
    void on_actionShow_in_Folder_triggered();
    void on_actionCopy_Snapshot_triggered();
    void on_actionCopy_Full_Frame_triggered();
    void on_imageProfileComboBox_activated(int index);
    void on_filenameProfileComboBox_activated(int index);
    void on_selectOutputFolderButton_clicked();
    void on_automaticFileNameGroupBox_toggled(bool on);

protected:
    /// Creates the panes in the splitter, which owns them; call it once, first of all.
    /// @param settings  must outlive the panes
    void makePanes(QSettings& settings, QSplitter& splitter);
    [[nodiscard]] PlayerPane* playerPane() const { return m_playerPane; }
    [[nodiscard]] SnapshotPane* snapshotPane() const { return m_snapshotPane; }

private:
    PlayerPane* m_playerPane = nullptr;
    SnapshotPane* m_snapshotPane = nullptr;
};
