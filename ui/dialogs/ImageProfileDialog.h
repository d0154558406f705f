#pragma once

#include <QDialog>
#include <QImage>
#include <QTimer>
#include <QVariantList>
#include <QVector>

#include <functional>
#include <memory>
#include <utility>

class Field;
class ImageProfile;
class PreviewMaker;
class QLineEdit;
class QSlider;
class QSpinBox;

namespace Ui {
class ImageProfileDialog;
}

/// Edits image profiles: size, corrections, JPEG quality, metadata and the watermark.
///
/// Shows an example frame before and after, and passes every edit to the preview shortly after the
/// last change. The caller sets up the dialog, runs it and reads selectedProfile(). User-interface
/// thread only.
class ImageProfileDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImageProfileDialog(QWidget* parent);
    ~ImageProfileDialog() override;

    /// Selects the profile in the list and shows it in the form.
    void setSelectedProfile(ImageProfile* profile);

    /// The saved profile, or else the one passed to setSelectedProfile(); initially null. Owned by
    /// its manager. Null after it was deleted.
    ImageProfile* selectedProfile() const { return m_selectedProfile; }

    /// The size of the current video in pixels, shown instead of the entered size if the profile
    /// keeps the video's size; nothing is shown while a side is 0.
    void setVideoDimensions(int width, int height);

    /// The frame for before and after, also used by the watermark dialog; without one, a sample
    /// picture.
    void setExampleImage(const QImage& image);

    /// Shows the picture as made by a profile. The profile is not null, holds the values currently
    /// entered, belongs to no manager and is valid only during the call.
    using Preview = std::function<void(ImageProfile* profile)>;
    void setPreview(Preview preview) { m_preview = std::move(preview); }

    /// Schedules an update of the preview; each call restarts the delay.
    void updateImage();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void profileNameTextChanged(const QString& name);
    void fieldChanged(Field* field);
    void updateImageTimerFired();
    void on_sameSizeAsVideoCheckbox_toggled(bool checked);
    void on_watermarkProfileEditButton_clicked();
    void on_resetToDefaultsButton_clicked();
    void on_saveButton_clicked();
    void on_cancelButton_clicked();

private:
    void setupButtons();
    void alignCaptions();
    void makeComparison(const ImageProfile& entered);
    void showComparison(const QVector<QImage>& pictures);
    void setupWatermarkProfileComboBox();
    void setupResizeFilterComboBox();
    void setupMetadataComboBox();
    void setupDeinterlacingComboBox();
    void setupHdrComboBox();
    void connectSlider(QSlider* slider, QSpinBox* spinBox, int min, int max);
    void setupProfileSelector();
    void addField(const char* propertyName, QWidget* widget);
    QLineEdit* makeVideoDisplay(const QLineEdit& editor);
    void showVideoDimensions();
    void swap(QWidget& shown, QWidget& hidden);

    std::unique_ptr<Ui::ImageProfileDialog> m_ui;
    ImageProfile* m_selectedProfile = nullptr;
    int m_videoWidth = 0;
    int m_videoHeight = 0;
    /// Replace the editors; children of the form, null until needed.
    QLineEdit* m_videoWidthDisplay = nullptr;
    QLineEdit* m_videoHeightDisplay = nullptr;
    QImage m_exampleImage;
    PreviewMaker* const m_comparison;
    /// The example at the size that the profile requests, and the settings that it depends on.
    QImage m_before;
    QVariantList m_beforeSize;
    QVariantList m_askedSize; ///< the same for what is being made
    Preview m_preview;
    QTimer m_updateTimer;
};
