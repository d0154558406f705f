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

/// Prepares a batch: a list of videos, each a job, and one form that edits all selected jobs
/// together; starts it.
///
/// What is typed or chosen goes into the selected jobs at once, but for numbers that make no sense:
/// these are taken back when their field is left. Where the selected jobs differ, the form shows
/// "[Multiple]". New jobs begin with the settings that "Use for New Videos" kept last, also in the
/// next dialog.
///
/// Videos are read in the background, and each one's job is listed when it has been read. The batch
/// can start when all are. Closing the dialog drops those that have not been read, unless the list
/// is kept.
///
/// Before a batch starts, missing folders are made if the user agrees, and large numbers of images
/// are asked about. Jobs for which something failed are marked and can be run again alone.
///
/// The jobs live as long as the dialog, removed ones too. User-interface thread only.
class BatchModeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchModeDialog(QWidget* parent = nullptr);
    ~BatchModeDialog() override;

    /// Begins to read the videos, behind those being read, and returns at once. They are listed in
    /// this order, unreadable ones too, each with a job of the settings for new ones. When all are,
    /// they become selected alone, unless other jobs were selected meanwhile.
    void loadVideos(const QStringList& files);

    /// Brings back the list of the last dialog that did so, and keeps the one of this dialog for
    /// the next, from each start of a batch and from the end of the dialog on. To be called once,
    /// while the list is empty.
    void keepList();

    /// Has the job of a video take the images of one stretch of it alone, with so many milliseconds
    /// skipped at both ends: the first job of that video in the list, or else a new one, which is
    /// read as in loadVideos().
    void loadStretch(const QString& video, qint64 skipFront, qint64 skipBack);

    /// Whether videos are still being read.
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
    void on_fileOutputFolderSelectButton_clicked();
    void on_imageProfileComboBox_currentIndexChanged(int index);
    void on_imageProfileEditButton_clicked();
    void on_filenameProfileComboBox_currentIndexChanged(int index);
    void on_filenameProfileEditButton_clicked();
    void on_filenameProfileComboBox_activated(QString const&);
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
    void useInterval(QRadioButton& radioButton, QLineEdit& edit, const QString& text);
    void takeBackUnlessSensible(QLineEdit& edit);
    void showJobsAnew();
    void showImageSum();
    [[nodiscard]] bool areFoldersUsable(const QList<BatchWorkerConfig*>& jobs);
    [[nodiscard]] bool isNumberWanted(const QList<BatchWorkerConfig*>& jobs);
    /// What a batch does with jobs of which something failed before.
    enum class Extent { WholeJobs, WhatFailed };
    void run(const QList<BatchWorkerConfig*>& jobs, Extent extent);
    [[nodiscard]] QVector<qint64> positionsToRetry(const BatchWorkerConfig& job) const;
    void saveList(const QList<BatchWorkerConfig*>& unread = {}) const;
    void endList();

    const std::unique_ptr<Ui::BatchModeDialog> m_ui;
    BatchModeListModel* const m_model;
    VideoInfoLoader* const m_loader;
    /// What loadVideos() was last called for; empty once all is loaded.
    QSet<BatchWorkerConfig*> m_newJobs;
    /// Runs until it shows that videos are being read.
    QTimer m_loadingDelay;
    /// Shown in the list as long as it is empty.
    QLabel* m_emptyListHint = nullptr;
    QList<Field*> m_fields;
    /// What is left to do of a job for which something failed, as long as it asks for the same.
    struct Rest
    {
        QVector<qint64> positions; ///< in milliseconds; empty where they are not known
        QVariantList settings;     ///< which say the positions of the whole job
    };
    QHash<const BatchWorkerConfig*, Rest> m_rests;
    /// True while the program fills the form, so that nothing of it is taken for the user's wish.
    bool m_isLoading = false;
    bool m_keepsList = false;
};
