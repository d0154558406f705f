#pragma once

#include <QDialog>
#include <QImage>
#include <QTimer>

#include <memory>

class ImageProfile;
class PreviewMaker;

namespace Ui {
class ImageFiltersDialog;
}

/// Compares a frame with the result of brightness, contrast and resize filter in one divided
/// picture. The values can be applied to the image profile they started from; the dialog is then
/// accepted. User-interface thread only.
class ImageFiltersDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a sample picture until a frame is set.
    explicit ImageFiltersDialog(QWidget* parent);
    ~ImageFiltersDialog() override;

    /// The frame to compare; a null one has no effect.
    void setFrame(const QImage& frame);
    /// The profile that provides the initial values and receives the result; not owned.
    void setProfile(ImageProfile* profile);

    /// The last dragged slider value, in this dialog or an earlier one. A factor; 1 leaves an image
    /// unchanged.
    static inline double contrast = 1.0;
    /// The same for brightness, which is added to each channel; 0 leaves an image unchanged.
    static inline float brightness = 0.0F;

public Q_SLOTS:
    /// Applies the values to the pictures.
    void updateImages();

private Q_SLOTS:
    void on_contrastSlider_sliderMoved(int value);
    void on_brightnessSlider_sliderMoved(int value);
    void on_applyButton_clicked();

private:
    void connectControls();
    void enter(ImageProfile& profile) const;

    std::unique_ptr<Ui::ImageFiltersDialog> m_ui;
    QImage m_frame;
    PreviewMaker* const m_comparison;
    ImageProfile* m_profile = nullptr;
    QTimer m_updateTimer;
};
