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

/// Compares a frame as it is with what brightness, contrast and the filter for another size make of
/// it, in one divided picture. What was found can go into the image profile that it began with; the
/// dialog is accepted then. User-interface thread only.
class ImageFiltersDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows a picture of its own until there is a frame.
    explicit ImageFiltersDialog(QWidget* parent);
    ~ImageFiltersDialog() override;

    /// What is compared; a null one changes nothing.
    void setFrame(const QImage& frame);
    /// Where the values begin, and where they may go; not owned.
    void setProfile(ImageProfile* profile);

    /// What the sliders were last dragged to, in this dialog or an earlier one. A factor; 1 leaves
    /// an image as it is.
    static inline double contrast = 1.0;
    /// Likewise; is added to each channel, 0 leaves an image as it is.
    static inline float brightness = 0.0F;

public Q_SLOTS:
    /// Shows the values as pictures.
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
