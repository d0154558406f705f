#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ImageFiltersDialog;
}

/// A test bench for image filters: its sliders set two process-wide values, which nothing reads
/// yet. No output changes through it. User-interface thread only.
class ImageFiltersDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImageFiltersDialog(QWidget* parent);
    ~ImageFiltersDialog() override;

    /// Factor; 1 leaves an image as it is.
    static inline double contrast = 1.0;
    /// Added to each channel; 0 leaves an image as it is.
    static inline float brightness = 0.0F;

public Q_SLOTS:
    /// The values shown as images; nothing is shown yet.
    void updateImages();

private Q_SLOTS:
    void on_contrastSlider_sliderMoved(int value);
    void on_brightnessSlider_sliderMoved(int value);
    // No filter stands behind the following yet.
    void on_gammaSlider_sliderMoved(int value);
    void on_sharpenslider_sliderMoved(int value);
    void on_pushButton_clicked();

private:
    std::unique_ptr<Ui::ImageFiltersDialog> m_ui;
};
