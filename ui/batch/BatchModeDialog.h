#pragma once

#include <QDialog>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class BatchModeListModel;
class BatchWorkerConfig;
class Field;
class ProfileManager;
class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

namespace Ui {
class BatchModeDialog;
}

/// Prepares a batch: a list of videos, each a job, and one form that edits all selected jobs
/// together; starts it.
///
/// What is typed or chosen goes into the selected jobs at once, but for numbers that make no sense:
/// these are taken back when their field is left. Where the selected jobs differ, the form shows
/// "[Multiple]". New jobs begin with the settings of the one edited last, also in the next dialog.
///
/// The jobs live as long as the dialog, removed ones too. User-interface thread only.
class BatchModeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BatchModeDialog(QWidget* parent = nullptr);
    ~BatchModeDialog() override;

    /// Lists the videos, each with a job like the one edited last, and selects them alone.
    void loadVideos(const QStringList& files);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void on_loadVideoButton_clicked();
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
    void addVideos(const QStringList& files);
    void setupFilesTable();
    void setupPropertyFields();
    void arrangeButtons();
    void alignCaptions();
    void growWithFont();
    void addField(char const* property, QWidget* widget, int value);
    void loadProfileComboBox(QComboBox* comboBox, ProfileManager* manager);
    void setupComboBox(QComboBox* comboBox);
    bool isSensible(const QLineEdit& edit) const;
    void useInterval(QRadioButton& radioButton, QLineEdit& edit, const QString& text);
    void takeBackUnlessSensible(QLineEdit& edit);
    void showJobsAnew();

    const std::unique_ptr<Ui::BatchModeDialog> m_ui;
    BatchModeListModel* const m_model;
    /// Shown in the list as long as it is empty.
    QLabel* m_emptyListHint = nullptr;
    QList<Field*> m_fields;
    /// True while the program fills the form, so that nothing of it is taken for the user's wish.
    bool m_isLoading = false;
};
