#include "ui/dialogs/ImageFiltersDialog.h"

#include "ui_ImageFiltersDialog.h"

namespace {
/// Where the sliders of both values leave an image as it is.
constexpr int NeutralPosition = 100;
} // namespace

ImageFiltersDialog::ImageFiltersDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ImageFiltersDialog>())
{
    m_ui->setupUi(this);
}

ImageFiltersDialog::~ImageFiltersDialog() = default;

void ImageFiltersDialog::updateImages()
{}

void ImageFiltersDialog::on_contrastSlider_sliderMoved(int value)
{
    contrast = value / static_cast<double>(NeutralPosition);
}

void ImageFiltersDialog::on_brightnessSlider_sliderMoved(int value)
{
    brightness = static_cast<float>(value - NeutralPosition);
}

void ImageFiltersDialog::on_gammaSlider_sliderMoved(int /*value*/)
{}

void ImageFiltersDialog::on_sharpenslider_sliderMoved(int /*value*/)
{}

void ImageFiltersDialog::on_pushButton_clicked()
{}
