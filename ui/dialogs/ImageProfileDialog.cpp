#include "ui/dialogs/ImageProfileDialog.h"

#include "imaging/ImageRecipe.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "ui/dialogs/PreviewMaker.h"
#include "ui/dialogs/SamplePicture.h"
#include "ui/dialogs/WatermarkProfileDialog.h"
#include "ui/widgets/DialogSize.h"
#include "ui/widgets/EqualWidths.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/GroupBoxMargins.h"
#include "ui_ImageProfileDialog.h"

#include <QShowEvent>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto updateDelay = 50ms;

/// Minimum size of a useful preview.
constexpr QSize imageProfileLetters{140, 38};

constexpr int minAdjustment = -100;
constexpr int maxAdjustment = 100;

} // namespace

ImageProfileDialog::ImageProfileDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ImageProfileDialog>())
    , m_exampleImage(SamplePicture::image())
    , m_comparison(new PreviewMaker(this))
{
    m_ui->setupUi(this);
    m_updateTimer.setSingleShot(true);
    GroupBoxMargins::apply(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setupButtons();
    alignCaptions();

    connect(m_ui->profileSelector, &ProfileSelector::profileNameTextChanged, this,
            &ImageProfileDialog::profileNameTextChanged);
    setupWatermarkProfileComboBox();
    setupResizeFilterComboBox();
    setupMetadataComboBox();
    setupDeinterlacingComboBox();
    setupHdrComboBox();
    connectSlider(m_ui->brightnessSlider, m_ui->brightnessSpinBox, minAdjustment, maxAdjustment);
    connectSlider(m_ui->contrastSlider, m_ui->contrastSpinBox, minAdjustment, maxAdjustment);
    setupProfileSelector();
    connect(&m_updateTimer, &QTimer::timeout, this, &ImageProfileDialog::updateImageTimerFired);
    connect(m_comparison, &PreviewMaker::made, this, &ImageProfileDialog::showComparison);
    DialogSize::open(*this, imageProfileLetters);
}

ImageProfileDialog::~ImageProfileDialog() = default;

void ImageProfileDialog::setSelectedProfile(ImageProfile* profile)
{
    m_selectedProfile = profile;
    m_ui->profileSelector->loadProfile(profile);
}

void ImageProfileDialog::setVideoDimensions(int width, int height)
{
    m_videoWidth = width;
    m_videoHeight = height;
    showVideoDimensions();
}

void ImageProfileDialog::setExampleImage(const QImage& image)
{
    m_exampleImage = image.isNull() ? SamplePicture::image() : image;
    m_comparison->cancel();
    m_beforeSize.clear();
}

void ImageProfileDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        ImageProfile entered(nullptr);
        m_ui->profileSelector->loadFormIntoProfile(&entered);
        makeComparison(entered);
    }
}

void ImageProfileDialog::updateImage()
{
    m_updateTimer.start(updateDelay);
}

void ImageProfileDialog::profileNameTextChanged(const QString& name)
{
    m_ui->saveButton->setEnabled(!name.isEmpty());
}

void ImageProfileDialog::fieldChanged(Field* /*field*/)
{
    updateImage();
}

void ImageProfileDialog::updateImageTimerFired()
{
    ImageProfile profile(nullptr);
    m_ui->profileSelector->loadFormIntoProfile(&profile);
    if (isVisible()) {
        makeComparison(profile);
    }
    if (m_preview) {
        m_preview(&profile);
    }
}

/// Both pictures have the output size, so that the watermark has its true proportion.
void ImageProfileDialog::makeComparison(const ImageProfile& entered)
{
    const QVariantList size{entered.sameSizeAsVideo(), entered.imageWidth(), entered.imageHeight(),
                            entered.maintainAspectRatio()};
    QVector<ImageRecipe> wanted{recipes::of(entered)};
    if (m_beforeSize != size) {
        ImageRecipe plain;
        plain.keepsSize = entered.sameSizeAsVideo();
        plain.bounds = QSize(entered.imageWidth(), entered.imageHeight());
        plain.keepsAspectRatio = entered.maintainAspectRatio();
        wanted.append(plain);
    }
    m_askedSize = size;
    m_comparison->make(m_exampleImage, wanted);
}

void ImageProfileDialog::showComparison(const QVector<QImage>& pictures)
{
    if (pictures.size() > 1) {
        m_before = pictures.last();
        m_beforeSize = m_askedSize;
    }
    m_ui->comparisonView->setPictures(m_before, pictures.first());
}

void ImageProfileDialog::on_sameSizeAsVideoCheckbox_toggled(bool checked)
{
    if (!m_videoWidthDisplay) {
        m_videoWidthDisplay = makeVideoDisplay(*m_ui->imageWidthLineEdit);
        m_videoHeightDisplay = makeVideoDisplay(*m_ui->imageHeightLineEdit);
        showVideoDimensions();
    }
    // The editors keep the user's input, and the form saves it.
    if (checked) {
        swap(*m_ui->imageWidthLineEdit, *m_videoWidthDisplay);
        swap(*m_ui->imageHeightLineEdit, *m_videoHeightDisplay);
    } else {
        swap(*m_videoWidthDisplay, *m_ui->imageWidthLineEdit);
        swap(*m_videoHeightDisplay, *m_ui->imageHeightLineEdit);
    }
    m_ui->maintainAspectRatioCheckbox->setEnabled(!checked);
    m_ui->resizeFilterComboBox->setEnabled(!checked);
    m_ui->resizeInLinearLightCheckbox->setEnabled(!checked);
}

void ImageProfileDialog::on_watermarkProfileEditButton_clicked()
{
    ImageProfile entered(nullptr);
    m_ui->profileSelector->loadFormIntoProfile(&entered);

    const QString id = m_ui->watermarkProfileComboBox->currentData().toString();
    WatermarkProfileDialog dialog(this);
    dialog.setSelectedProfile(
        qobject_cast<WatermarkProfile*>(WatermarkProfile::profileManager()->profileForId(id)));
    dialog.setExampleImage(m_exampleImage, &entered);
    dialog.exec();

    // There may be new or renamed profiles.
    setupWatermarkProfileComboBox();
    if (const WatermarkProfile* const selected = dialog.selectedProfile()) {
        m_ui->watermarkProfileComboBox->setCurrentIndex(m_ui->watermarkProfileComboBox->findData(
            selected->id(), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
}

void ImageProfileDialog::on_resetToDefaultsButton_clicked()
{
    m_ui->profileSelector->loadDefaultValues();
    updateImage();
}

void ImageProfileDialog::on_saveButton_clicked()
{
    if (!m_ui->profileSelector->maySave()) {
        return;
    }
    m_selectedProfile = qobject_cast<ImageProfile*>(m_ui->profileSelector->saveProfile());
    accept();
}

void ImageProfileDialog::on_cancelButton_clicked()
{
    reject();
}

/// Adds the buttons to the button box, which knows the platform's order.
void ImageProfileDialog::setupButtons()
{
    m_ui->buttonBox->addButton(m_ui->resetToDefaultsButton, QDialogButtonBox::ResetRole);
    m_ui->buttonBox->addButton(m_ui->saveButton, QDialogButtonBox::AcceptRole);
    m_ui->buttonBox->addButton(m_ui->cancelButton, QDialogButtonBox::RejectRole);
}

/// The sections are stacked and read as one form.
void ImageProfileDialog::alignCaptions()
{
    EqualWidths::apply({m_ui->imageWidthLabel, m_ui->imageHeightLabel, m_ui->resizeFilterLabel,
                        m_ui->brightnessLabel, m_ui->contrastLabel, m_ui->deinterlacingLabel,
                        m_ui->hdrLabel, m_ui->jpegQualityLabel, m_ui->metadataLabel});
}

void ImageProfileDialog::setupWatermarkProfileComboBox()
{
    m_ui->watermarkProfileComboBox->clear();
    m_ui->watermarkProfileComboBox->addItem(tr("[No Watermark]"), QString());
    const QList<BaseProfile*> profiles = WatermarkProfile::profileManager()->profiles();
    for (const BaseProfile* const profile : profiles) {
        m_ui->watermarkProfileComboBox->addItem(profile->shownName(), profile->id());
    }
}

void ImageProfileDialog::setupResizeFilterComboBox()
{
    m_ui->resizeFilterComboBox->addItem(tr("Area"), ImageProfile::AreaFilter);
    m_ui->resizeFilterComboBox->addItem(tr("Lanczos"), ImageProfile::LanczosFilter);
    m_ui->resizeFilterComboBox->addItem(tr("Bicubic"), ImageProfile::BicubicFilter);
    m_ui->resizeFilterComboBox->addItem(tr("Nearest"), ImageProfile::NearestFilter);
}

void ImageProfileDialog::setupMetadataComboBox()
{
    m_ui->metadataComboBox->addItem(tr("All"), ImageProfile::MetadataAll);
    m_ui->metadataComboBox->addItem(tr("Without Place"), ImageProfile::MetadataWithoutPlace);
    m_ui->metadataComboBox->addItem(tr("None"), ImageProfile::NoMetadata);
}

void ImageProfileDialog::setupDeinterlacingComboBox()
{
    m_ui->deinterlacingComboBox->addItem(tr("Automatic"), QStringLiteral("auto"));
    m_ui->deinterlacingComboBox->addItem(tr("On"), QStringLiteral("on"));
    m_ui->deinterlacingComboBox->addItem(tr("Off"), QStringLiteral("off"));
}

void ImageProfileDialog::setupHdrComboBox()
{
    m_ui->hdrComboBox->addItem(tr("Tone-Mapped"), ImageProfile::ToneMapped);
    m_ui->hdrComboBox->addItem(tr("As Stored"), ImageProfile::HdrAsStored);
}

void ImageProfileDialog::connectSlider(QSlider* slider, QSpinBox* spinBox, int min, int max)
{
    slider->setRange(min, max);
    spinBox->setRange(min, max);
    connect(slider, &QSlider::valueChanged, spinBox, &QSpinBox::setValue);
    connect(spinBox, QOverload<int>::of(&QSpinBox::valueChanged), slider, &QSlider::setValue);
}

void ImageProfileDialog::setupProfileSelector()
{
    addField("sameSizeAsVideo", m_ui->sameSizeAsVideoCheckbox);
    addField("imageWidth", m_ui->imageWidthLineEdit);
    addField("imageHeight", m_ui->imageHeightLineEdit);
    addField("maintainAspectRatio", m_ui->maintainAspectRatioCheckbox);
    addField("resizeFilter", m_ui->resizeFilterComboBox);
    addField("resizeInLinearLight", m_ui->resizeInLinearLightCheckbox);
    addField("watermarkProfileId", m_ui->watermarkProfileComboBox);
    addField("imageBrightness", m_ui->brightnessSpinBox);
    addField("imageContrast", m_ui->contrastSpinBox);
    addField("deinterlacing", m_ui->deinterlacingComboBox);
    addField("hdr", m_ui->hdrComboBox);
    addField("imageQuality", m_ui->jpegQualitySpinBox);
    addField("metadata", m_ui->metadataComboBox);
    addField("deepColours", m_ui->deepColoursCheckbox);

    ProfileSelector* const selector = m_ui->profileSelector;
    selector->loadProfiles(ImageProfile::profileManager());
    connect(selector, &ProfileSelector::fieldChanged, this, &ImageProfileDialog::fieldChanged);
    connect(selector, &ProfileSelector::profileDeleted, this, [this](BaseProfile* profile) {
        if (profile == m_selectedProfile) {
            m_selectedProfile = nullptr;
        }
    });
    // Selecting another profile changes the form without a field signal.
    connect(selector, &ProfileSelector::profileSelected, this, &ImageProfileDialog::updateImage);
}

void ImageProfileDialog::addField(const char* propertyName, QWidget* widget)
{
    m_ui->profileSelector->addField(new Field(propertyName, widget, Field::noChoice, this));
}

/// A disabled line edit of the same size as the editor.
QLineEdit* ImageProfileDialog::makeVideoDisplay(const QLineEdit& editor)
{
    auto* const display = new QLineEdit(editor.parentWidget());
    display->setAccessibleName(editor.accessibleName());
    display->setEnabled(false);
    display->hide();
    return display;
}

void ImageProfileDialog::showVideoDimensions()
{
    if (!m_videoWidthDisplay) {
        return;
    }
    const bool isKnown = m_videoWidth != 0 && m_videoHeight != 0;
    m_videoWidthDisplay->setText(isKnown ? QString::number(m_videoWidth) : QString());
    m_videoHeightDisplay->setText(isKnown ? QString::number(m_videoHeight) : QString());
}

/// Replaces a visible widget of the size group by a hidden one.
void ImageProfileDialog::swap(QWidget& shown, QWidget& hidden)
{
    const std::unique_ptr<QLayoutItem> replaced(
        m_ui->imageSizeLayout->replaceWidget(&shown, &hidden));
    shown.hide();
    hidden.show();
}
