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
/// Shows an example frame before and after, and hands every edit to the preview as well, a moment
/// after the last one. The caller sets up the dialog,
/// runs it and asks for selectedProfile(). User-interface thread only.
class ImageProfileDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImageProfileDialog(QWidget* parent);
    ~ImageProfileDialog() override;

    /// Selects the profile in the list and shows it in the form.
    void setSelectedProfile(ImageProfile* profile);

    /// The profile that was saved, else the one given to setSelectedProfile(); null before. Its
    /// manager owns it. Null once that was deleted.
    ImageProfile* selectedProfile() const { return m_selectedProfile; }

    /// The size of the current video in pixels, shown in place of the entered one where the
    /// profile keeps it; nothing is shown while a side is 0.
    void setVideoDimensions(int width, int height);

    /// The frame of which before and after are shown, also in the watermark dialog; a sample
    /// picture where there is none.
    void setExampleImage(const QImage& image);

    /// What shows the picture as a profile makes it. The profile that it is given is not null,
    /// holds what is entered at the moment, belongs to no manager and is gone after the call.
    using Preview = std::function<void(ImageProfile* profile)>;
    void setPreview(Preview preview) { m_preview = std::move(preview); }

    /// Has the preview updated in a moment; every call puts it off again.
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
    /// Take the places of the editors; children of the form, null before they are needed.
    QLineEdit* m_videoWidthDisplay = nullptr;
    QLineEdit* m_videoHeightDisplay = nullptr;
    QImage m_exampleImage;
    PreviewMaker* const m_comparison;
    /// The example in the size that the profile asks for, and what that followed from.
    QImage m_before;
    QVariantList m_beforeSize;
    QVariantList m_askedSize; ///< the same for what is being made
    Preview m_preview;
    QTimer m_updateTimer;
};
