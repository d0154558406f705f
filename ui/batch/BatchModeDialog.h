#pragma once

#include "batch/BatchWorkerConfig.h"

#include <QDialog>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVariantList>
#include <QVector>

#include <memory>

class BatchModeListModel;
class Field;
class ProfileManager;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;
class VideoInfoLoader;

namespace Ui {
class BatchModeDialog;
}

/// Prepares and starts a batch: a list of videos, one job each, and a form that edits all selected
/// jobs together.
///
/// Input is applied to the selected jobs at once, except invalid numbers, which are reverted when
/// their field is left. If the selected jobs differ, the form shows "[Multiple]". New jobs start
/// with the settings last stored by "Use for New Videos", also in later dialogs.
///
/// Videos are read in the background, and a job is listed when its video has been read. The batch
/// can start when all are. Closing the dialog drops unread videos, unless the list is kept.
///
/// Before a batch starts, missing folders are created if the user agrees, and a large number of
/// images has to be confirmed. Jobs with failures are marked, and only these can be run again.
///
/// Jobs, including removed ones, live as long as the dialog. User-interface thread only.
class BatchModeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchModeDialog(QWidget* parent = nullptr);
    ~BatchModeDialog() override;

    /// Starts reading the videos, after those already being read, and returns at once. They are
    /// listed in this order, including unreadable ones, each as a job with the settings for new
    /// videos. When all have been read, only they become selected, unless other jobs were selected
    /// meanwhile.
    void loadVideos(const QStringList& files);

    /// Restores the list of the previous dialog that called this, and stores the list of this
    /// dialog at each start of a batch and when the dialog ends. Call it once, while the list is
    /// empty.
    void keepList();

    /// Makes the job of a video take images from one stretch only, with this many milliseconds
    /// skipped at both ends. Uses the first job of that video in the list, or else creates one,
    /// which is read as in loadVideos().
    void loadStretch(const QString& video, qint64 skipFront, qint64 skipBack);

    /// True while videos are being read.
    bool isLoading() const;

Q_SIGNALS:
    /// All videos are listed, or loading was stopped.
    void loadingFinished();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void on_loadVideoButton_clicked();
    void on_stopLoadingButton_clicked();
    void on_removeVideoButton_clicked();
    void on_selectAllVideoButton_clicked();
    void loadFormValues();
    void updateFieldsEnabled();
    void setWidgetEnabled(QWidget* widget, bool enabled);
    QList<BatchWorkerConfig*> getSelectedConfigs() const;
    void fieldUpdated(Field* field);
    void loadSingleShotComboBox();
    void on_cancelButton_clicked();
    void on_startButton_clicked();
    void on_retryFailedButton_clicked();
    void on_useForNewVideosButton_clicked();
    void on_intervalMillisecondsTextEdit_textChanged(QString const& arg1);
    void on_intervalImagesTextEdit_textChanged(QString const& arg1);
    void on_intervalMillisecondsTextEdit_editingFinished();
    void on_intervalImagesTextEdit_editingFinished();
    void on_skipFrontTextEdit_editingFinished();
    void on_skipBackTextEdit_editingFinished();
    void on_fileOutputFolderTextEdit_editingFinished();
    void on_fileOutputFolderSelectButton_clicked();
    void on_imageProfileComboBox_currentIndexChanged(int index);
    void on_imageProfileEditButton_clicked();
    void on_filenameProfileComboBox_currentIndexChanged(int index);
    void on_filenameProfileEditButton_clicked();
#if QT_VERSION_MAJOR >= 6 // has no such signal: the constructor connects its successor
private:
#endif
    void on_filenameProfileComboBox_activated(QString const&);
private Q_SLOTS:
    void resetIntervalWidgets();
    void saveBatchWorkerConfigDefault();

private:
    void setupLoading();
    void addVideos(const QStringList& files);
    [[nodiscard]] BatchWorkerConfig* jobOf(const QString& video) const;
    [[nodiscard]] BatchWorkerConfig* newJob(const QString& video);
    void read(const QList<BatchWorkerConfig*>& jobs);
    void listJob(BatchWorkerConfig* job);
    void showLoading();
    void endLoading();
    void selectNewJobs();
    void setupFilesTable();
    void setupPropertyFields();
    void arrangeButtons();
    void alignCaptions();
    void wrapButtonsOnNarrowScreens();
    void addField(char const* property, QWidget* widget, int value);
    void addSecondsField(char const* property, QLineEdit* edit);
    void loadProfileComboBox(QComboBox* comboBox, ProfileManager* manager);
    void setupComboBox(QComboBox* comboBox);
    bool isSensible(const QLineEdit& edit) const;
    [[nodiscard]] bool isUntouched(const QLineEdit& edit) const;
    void useInterval(QRadioButton& radioButton, QLineEdit& edit, const QString& text);
    void takeBackUnlessSensible(QLineEdit& edit);
    void showJobsAnew();
    void showImageSum();
    [[nodiscard]] bool areFoldersUsable(const QList<BatchWorkerConfig*>& jobs);
    [[nodiscard]] bool isNumberWanted(const QList<BatchWorkerConfig*>& jobs);
    /// How a batch treats jobs with earlier failures.
    enum class Extent { WholeJobs, WhatFailed };
    void run(const QList<BatchWorkerConfig*>& jobs, Extent extent);
    [[nodiscard]] QVector<qint64> positionsToRetry(const BatchWorkerConfig& job) const;
    void saveList(const QList<BatchWorkerConfig*>& unread = {}) const;
    void endList();

    const std::unique_ptr<Ui::BatchModeDialog> m_ui;
    BatchModeListModel* const m_model;
    VideoInfoLoader* const m_loader;
    /// The jobs of the last loadVideos(); empty once all are loaded.
    QSet<BatchWorkerConfig*> m_newJobs;
    /// Delays the display of loading progress.
    QTimer m_loadingDelay;
    /// Shown in the list while it is empty.
    QLabel* m_emptyListHint = nullptr;
    QList<Field*> m_fields;
    /// What remains to be done of a failed job, as long as its sampling settings are unchanged.
    struct Rest
    {
        QVector<qint64> positions; ///< in milliseconds; empty if unknown
        QVariantList settings;     ///< the settings that determine the positions of the whole job
    };
    QHash<const BatchWorkerConfig*, Rest> m_rests;
    /// True while the program fills the form, so that changes are not treated as user input.
    bool m_isLoading = false;
    bool m_keepsList = false; ///< until the list has ended
};
