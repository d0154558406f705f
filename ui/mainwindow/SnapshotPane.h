#pragma once

#include "imaging/CapturedPicture.h"
#include "imaging/FilePublisher.h"
#include "imaging/ImageRecipe.h"
#include "ui/mainwindow/SaveDialog.h"
#include "ui/mainwindow/SnapshotMaker.h"

#include <QImage>
#include <QString>
#include <QWidget>

#include <memory>

class ActionButton;
class FileNameProfile;
class FolderSweeper;
class ImageProfile;
class QDir;
class QFileInfo;
class QSettings;

namespace Ui {
class SnapshotPane;
}

/// The right pane of the window: the snapshot with a line that describes its file, the profiles,
/// the automatic name, the button that saves, and the result.
///
/// It makes the snapshot from a captured frame, saves and copies it. A file is named after the
/// video of its snapshot, which need not be open any more. The owner captures the frames, names the
/// open video, and keeps the other snapshots: id() is the name of the shown one among them.
/// Implemented in SnapshotPane.cpp and, for files and their names, SnapshotPane_saving.cpp.
///
/// Settings: those of SaveDialog; "outputFolder" of the automatic names, "automaticFileName".
/// User-interface thread only.
class SnapshotPane : public QWidget
{
    Q_OBJECT

public:
    /// Has neither profiles nor a save dialog yet.
    /// @param settings  must outlive the pane
    explicit SnapshotPane(QSettings& settings, QWidget* parent = nullptr);
    ~SnapshotPane() override;

    /// Restores what storeState() of the previous window stored.
    void restoreState();
    void storeState();

    /// Fill the boxes with the profiles and select the last used one.
    void loadImageProfileComboBox();
    void loadFileNameProfileComboBox();
    /// The selected profiles, which belong to their managers; null before the boxes are filled.
    [[nodiscard]] ImageProfile* imageProfile() const { return m_imageProfile; }
    [[nodiscard]] FileNameProfile* fileNameProfile() const { return m_fileNameProfile; }

    /// Creates the save dialog; call it once, after the pane was put into its window.
    void setupFileDialogs();

    /// Sets the open video, in whose folder files are saved unless the user chooses another; an
    /// empty path for none. The snapshot stays.
    void setVideo(const QString& path);

    /// Makes a snapshot of a frame with the selected profile; made() answers every call.
    void capture(const CapturedPicture& picture);
    /// Whether made() is still to come.
    [[nodiscard]] bool isCapturing() const;
    /// Shows the answer to capture() as a new snapshot without an id, unsaved.
    /// @param place  the video and time of its frame, for messages
    void showNew(const MadeSnapshot& made, const QString& place);
    /// Shows an earlier snapshot, made with the selected profile.
    void showEarlier(const CapturedPicture& picture, const QString& place, const QString& id,
                     bool isKept);
    /// Shows no snapshot.
    void clear();

    /// The frame of the snapshot; its image is null if there is no snapshot.
    [[nodiscard]] const CapturedPicture& captured() const { return m_captured; }

    /// True if there is no snapshot, or it was saved or copied.
    [[nodiscard]] bool isKept() const { return m_isKept; }
    /// Marks the snapshot as saved elsewhere, or given up.
    void setKept();

    /// Whether the snapshot would be lost if it were replaced: neither kept, nor the owner's.
    [[nodiscard]] bool isAtRisk() const { return !m_isKept && m_id.isEmpty(); }

    /// The name that the owner gave to the snapshot; empty for none.
    [[nodiscard]] const QString& id() const { return m_id; }
    void setId(const QString& id) { m_id = id; }

    /// Enables or disables what needs a snapshot.
    void setControlsEnabled(bool on);

    /// Makes the snapshot again from the full frame, with the selected profile if null is passed. A
    /// failure is reported by message(), and there is no snapshot then.
    void processFullFrameImage(ImageProfile* profile);
    /// Shows the snapshot as made by the profile; does nothing while there is none.
    void imageProfileUpdated(ImageProfile* profile);
    /// Selects the profile that the user chose in its box, also for the snapshot.
    void chooseImageProfile();
    void chooseFileNameProfile();
    /// Selects a profile that equals the selected one except for keeping the video's own size;
    /// creates it if necessary.
    void chooseOriginalSize();

    /// Saves under the next automatic name or, if that is off, asks for a name.
    void save();
    void saveWithAutomaticFileName();
    void showSaveDialog();
    /// Writes the snapshot, replacing a file of that name. Reports the result as a debug message,
    /// by message() and below the button; returns false if nothing was written.
    [[nodiscard]] bool saveSnapshot(const QString& path);

    /// Copy to the clipboard; do nothing without a snapshot.
    void copySnapshot();
    void copyFullFrame();

    /// The name of the next picture in the folder: the first free one from the file counter on.
    /// Does not change the counter.
    [[nodiscard]] QString automaticFileName(const QDir& dir);
    void updateAutomaticFileNameDisplay();
    void chooseOutputFolder();
    /// The folder for several files: that of the automatic names, or one that the user chooses;
    /// empty if cancelled.
    [[nodiscard]] QString folderForSnapshots();

    /// Show the result of saving below the button. The file can be shown in its folder.
    void tellSaved(const QString& text, const QString& file);
    void tellFailed(const QString& text, const QString& cause);
    /// Shows the most recently saved file in the file manager.
    void showSavedFile();

    [[nodiscard]] ActionButton& saveButton() const;

Q_SIGNALS:
    /// Answers capture(), in the order of the calls.
    void made(const MadeSnapshot& snapshot);
    /// Another image profile is selected, or the selected one was loaded again.
    void imageProfileChanged();
    /// Whether the snapshot has to be saved may have changed.
    void unsavedChanged(bool isUnsaved);
    /// The snapshot of this id was written; not necessarily the one that is shown by now.
    void saved(const QString& id);
    /// There is a file for showSavedFile().
    void savedFileChanged();
    /// A message for the status bar.
    void message(const QString& text);
    /// The user requests to edit the profiles.
    void imageProfilesRequested();
    void fileNameProfilesRequested();
    /// The keyboard is not needed here any more.
    void keyboardGivenUp();
    /// A dialog was closed, after which the window may have to be raised.
    void dialogClosed();

private:
    void connectControls();
    void setupLooks();
    void selectImageProfile(ImageProfile& profile);
    void takeRemade(const MadeSnapshot& made);
    void showMade(const MadeSnapshot& made);
    void showSummary();
    void showWhatIsNext();
    [[nodiscard]] QString typeToSave() const;
    [[nodiscard]] QString videoForNames() const;
    void followVideoForNames();
    [[nodiscard]] QString freeName(const QString& video, const QDir& dir, int& counter) const;
    void restoreOutputFolder();
    void showOutputFolder(const QString& usual);
    void fillOutputFolder(const QString& text);
    void noteTypedFolder();
    void noteOutputFolder();
    [[nodiscard]] bool isOutputFolderUsable(const QDir& folder);
    struct Saving;
    [[nodiscard]] Saving savingNow();
    [[nodiscard]] WriteResult write(const Saving& saving, const QString& path,
                                    ExistingFile existing, WriteFailure& failure);
    [[nodiscard]] WriteResult save(const Saving& saving, const QString& path,
                                   ExistingFile existing);
    void reportSaved(const QString& path);
    void reportUnsaved(const QString& path, const WriteFailure& failure);

    std::unique_ptr<Ui::SnapshotPane> m_ui;
    QSettings& m_settings;
    const std::unique_ptr<FolderSweeper> m_sweeper;
    SaveDialog m_saveDialog;
    SnapshotMaker* const m_maker;
    ImageProfile* m_imageProfile = nullptr;
    FileNameProfile* m_fileNameProfile = nullptr;
    QString m_video;      ///< the open one
    QString m_namesVideo; ///< the one that files are named after, as followed last
    /// The frame, the recipe and the result; the latter is null until the first capture.
    CapturedPicture m_captured;
    ImageRecipe m_recipe;
    QImage m_image;
    QString m_place; ///< the file and time of m_captured, for messages
    QString m_id;
    bool m_isKept = true;
    /// For automatic names, as chosen by the user; empty for the video's folder.
    QString m_outputFolder;
    QString m_notedFolder; ///< the text of the field, as filled in or noted last
    QString m_lastSavedFile;
    int m_fileCounter = 1; ///< the number of the next automatic file name
};
