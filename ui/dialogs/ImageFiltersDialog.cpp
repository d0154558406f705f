#include "ui/dialogs/ImageFiltersDialog.h"

#include "imaging/ImageRecipe.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "ui/dialogs/PreviewMaker.h"
#include "ui/dialogs/SamplePicture.h"
#include "ui/widgets/PlainText.h"
#include "ui_ImageFiltersDialog.h"

#include <chrono>

namespace {
/// The position of both sliders that leaves an image unchanged.
constexpr int neutralPosition = 100;

/// Faster slider movements are combined.
constexpr std::chrono::milliseconds filterDelay{30};

/// Corrections treat a fourth channel like a colour, so opaque pictures are passed without one, as
/// frames are.
QImage withoutUnusedChannel(const QImage& image)
{
    return image.format() == QImage::Format_RGB32 ? image.convertToFormat(QImage::Format_RGB888)
                                                  : image;
}

} // namespace

ImageFiltersDialog::ImageFiltersDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ImageFiltersDialog>())
    , m_frame(SamplePicture::image())
    , m_comparison(new PreviewMaker(this))
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->filterComboBox->addItem(tr("Area"), ImageProfile::AreaFilter);
    m_ui->filterComboBox->addItem(tr("Lanczos"), ImageProfile::LanczosFilter);
    m_ui->filterComboBox->addItem(tr("Bicubic"), ImageProfile::BicubicFilter);
    m_ui->filterComboBox->addItem(tr("Nearest"), ImageProfile::NearestFilter);
    m_ui->applyButton->setEnabled(false);
    connectControls();
    updateImages();
}

ImageFiltersDialog::~ImageFiltersDialog() = default;

void ImageFiltersDialog::connectControls()
{
    m_updateTimer.setSingleShot(true);
    m_updateTimer.setInterval(filterDelay);
    connect(&m_updateTimer, &QTimer::timeout, this, &ImageFiltersDialog::updateImages);
    const auto showNumber = [this](QLabel& label, int position) {
        label.setText(QString::number(position - neutralPosition));
        m_updateTimer.start();
    };
    connect(m_ui->brightnessSlider, &QSlider::valueChanged, this,
            [this, showNumber](int value) { showNumber(*m_ui->brightnessValueLabel, value); });
    connect(m_ui->contrastSlider, &QSlider::valueChanged, this,
            [this, showNumber](int value) { showNumber(*m_ui->contrastValueLabel, value); });
    connect(m_ui->filterComboBox, QOverload<int>::of(&QComboBox::currentIndexChanged),
            &m_updateTimer, QOverload<>::of(&QTimer::start));
    connect(m_comparison, &PreviewMaker::made, this, [this](const QVector<QImage>& pictures) {
        m_ui->comparisonView->setPictures(pictures.first(), pictures.last());
    });
    connect(m_ui->closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

void ImageFiltersDialog::setFrame(const QImage& frame)
{
    if (!frame.isNull()) {
        m_frame = withoutUnusedChannel(frame);
        updateImages();
    }
}

void ImageFiltersDialog::setProfile(ImageProfile* profile)
{
    m_profile = profile;
    m_ui->applyButton->setEnabled(profile != nullptr);
    if (profile != nullptr) {
        m_ui->applyButton->setToolTip(
            asPlainText(tr("Put these values into the image profile \u201c%1\u201d")
                            .arg(profile->shownName())));
        m_ui->brightnessSlider->setValue(neutralPosition + profile->imageBrightness());
        m_ui->contrastSlider->setValue(neutralPosition + profile->imageContrast());
        m_ui->filterComboBox->setCurrentIndex(
            m_ui->filterComboBox->findData(profile->resizeFilter()));
    }
    updateImages();
}

/// Writes the values of the controls to the profile.
void ImageFiltersDialog::enter(ImageProfile& profile) const
{
    profile.setImageBrightness(m_ui->brightnessSlider->value() - neutralPosition);
    profile.setImageContrast(m_ui->contrastSlider->value() - neutralPosition);
    profile.setResizeFilter(m_ui->filterComboBox->currentData().toInt());
}

void ImageFiltersDialog::updateImages()
{
    ImageProfile profile;
    if (m_profile != nullptr) {
        profile.takeValuesOf(*m_profile);
    } else {
        profile.setSameSizeAsVideo(true);
    }
    profile.setWatermarkProfileId(QString());
    enter(profile);
    const ImageRecipe after = recipes::of(profile);
    profile.setImageBrightness(0);
    profile.setImageContrast(0);
    profile.setResizeFilter(ImageProfile::AreaFilter);
    m_comparison->make(m_frame, {recipes::of(profile), after});
}

void ImageFiltersDialog::on_contrastSlider_sliderMoved(int value)
{
    contrast = value / static_cast<double>(neutralPosition);
}

void ImageFiltersDialog::on_brightnessSlider_sliderMoved(int value)
{
    brightness = static_cast<float>(value - neutralPosition);
}

void ImageFiltersDialog::on_applyButton_clicked()
{
    enter(*m_profile);
    ImageProfile::profileManager()->saveProfiles();
    accept();
}
