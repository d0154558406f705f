#include "ui/dialogs/WatermarkProfileDialog.h"

#include "imaging/ImageRecipe.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "ui/dialogs/PreviewMaker.h"
#include "ui/dialogs/SamplePicture.h"
#include "ui/dialogs/WatermarkPicture.h"
#include "ui/widgets/DialogSize.h"
#include "ui/widgets/EqualWidths.h"
#include "ui/widgets/Field.h"
#include "ui/widgets/GroupBoxMargins.h"
#include "ui/widgets/SmartFileDialog.h"
#include "ui_WatermarkProfileDialog.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QMessageBox>
#include <QShowEvent>
#include <QSignalBlocker>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto previewDelay = 200ms;

/// Minimum size of a useful preview.
constexpr QSize watermarkProfileLetters{140, 38};

constexpr int textType = 0;
constexpr int imageType = 1;

/// Otherwise the whole dialog would change its proportions with the type of the watermark.
void keepPlaceWhenHidden(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

/// Lets the user change the colour. A picked colour is opaque, since the dialog offers no alpha.
void pickColor(ColorLabel& label, QWidget* parent)
{
    const QColor picked = QColorDialog::getColor(label.colorValue(), parent, QString());
    if (!picked.isValid()) {
        return;
    }
    label.setColorValue(QColor(picked.rgb()));
    label.update();
}

} // namespace

WatermarkProfileDialog::WatermarkProfileDialog(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::WatermarkProfileDialog>())
    , m_exampleImage(SamplePicture::image())
    , m_preview(new PreviewMaker(this))
{
    m_ui->setupUi(this);
    GroupBoxMargins::apply(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // It has no function yet.
    m_ui->imageBrowseButton_2->hide();
    keepPlaceWhenHidden(*m_ui->textFormatGroupBox);
    keepPlaceWhenHidden(*m_ui->textShadowGroupBox);
    setupButtons();
    setupEffects();
    // Not set in the form: an unchecked group box disables its children while they are still being
    // created, and screen readers would keep treating them as plain areas.
    showType();

    setupAlignmentComboBox();
    connect(m_ui->profileSelector, &ProfileSelector::profileNameTextChanged, this,
            &WatermarkProfileDialog::profileNameTextChanged);
    setupProfileSelector();

    DialogSize::open(*this, watermarkProfileLetters);
    m_previewTimer.setSingleShot(true);
    connect(&m_previewTimer, &QTimer::timeout, this,
            &WatermarkProfileDialog::updateWatermarkTimerFired);
    connect(m_preview, &PreviewMaker::made, this, [this](const QVector<QImage>& pictures) {
        m_ui->watermarkPositioner->setImage(pictures.first());
    });
    updateWatermark();
}

WatermarkProfileDialog::~WatermarkProfileDialog() = default;

void WatermarkProfileDialog::setSelectedProfile(WatermarkProfile* profile)
{
    m_selectedProfile = profile;

    const QList<BaseProfile*> profiles = WatermarkProfile::profileManager()->profiles();
    BaseProfile* shown = profile;
    if (!shown && !profiles.isEmpty()) {
        shown = profiles.first();
    }
    m_ui->profileSelector->loadProfile(shown);
    if (!shown) {
        m_ui->profileSelector->loadDefaultValues();
    }

    // Nothing is emitted for a profile that is selected already or not listed.
    showType();
    updateWatermark();
}

void WatermarkProfileDialog::setExampleImage(const QImage& image, ImageProfile* imageProfile)
{
    if (!image.isNull()) {
        m_exampleImage = image;
    }
    m_imageProfile = imageProfile;
    updateWatermark();
}

void WatermarkProfileDialog::updateWatermark()
{
    m_previewTimer.start(previewDelay);
}

void WatermarkProfileDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // A profile may lack its picture when the dialog opens. The question about it belongs in front
    // of the dialog, not in front of the window that is about to open it.
    if (event->spontaneous()) {
        return;
    }
    QTimer::singleShot(0, this, [this] {
        if (isVisible()) {
            askForMissingPicture();
        }
    });
}

void WatermarkProfileDialog::profileNameTextChanged(const QString& name)
{
    m_ui->saveButton->setEnabled(!name.isEmpty());
}

void WatermarkProfileDialog::fieldChanged(Field* /*field*/)
{
    updateWatermark();
}

void WatermarkProfileDialog::profileSelected(BaseProfile* /*profile*/)
{
    updateWatermark();
    if (isVisible()) {
        updateType();
    } else {
        showType();
    }
}

void WatermarkProfileDialog::updateType()
{
    showType();
    askForMissingPicture();
}

void WatermarkProfileDialog::updateWatermarkTimerFired()
{
    WatermarkProfile profile(nullptr);
    m_ui->profileSelector->loadFormIntoProfile(&profile);
    if (WatermarkPicture::isTooLarge(WatermarkProfile::pathForImage(profile.imageFile()))) {
        profile.setImageFile(QString());
    }
    m_preview->make(m_exampleImage, {recipes::of(*m_imageProfile, &profile)});
}

void WatermarkProfileDialog::on_watermarkTypeTextRadioButton_clicked(bool /*checked*/)
{
    updateType();
}

void WatermarkProfileDialog::on_watermarkTypeImageRadioButton_clicked(bool /*checked*/)
{
    updateType();
}

void WatermarkProfileDialog::on_imageBrowseButton_clicked()
{
    SmartFileDialog browser(this, QStringLiteral("watermarkImageDialog"));
    browser.setFiltersToImage();
    browser.setFileMode(QFileDialog::ExistingFile);
    if (browser.exec() != Accepted) {
        return;
    }

    const QString chosen = browser.selectedFiles().constFirst();
    if (WatermarkPicture::readForDisplay(chosen).isNull()) {
        QMessageBox::warning(this, tr("Invalid Image"),
                             tr("Could not open image. Please try another."));
        return;
    }
    m_ui->imageFileNameLineEdit->setText(WatermarkPicture::addCopyOf(chosen));
}

void WatermarkProfileDialog::on_imageFileNameLineEdit_textChanged(const QString& name)
{
    m_ui->profileImageView->setImage(
        WatermarkPicture::readForDisplay(WatermarkProfile::pathForImage(name)));
}

void WatermarkProfileDialog::on_textFontButton_clicked()
{
    bool accepted = false;
    const QFont picked =
        QFontDialog::getFont(&accepted, m_ui->textFontLabel->fontValue(), this, QString());
    if (accepted) {
        m_ui->textFontLabel->setFontValue(picked);
    }
}

void WatermarkProfileDialog::on_textColorButton_clicked()
{
    pickColor(*m_ui->textColorLabel, this);
}

void WatermarkProfileDialog::on_shadowColorButton_clicked()
{
    pickColor(*m_ui->shadowColorLabel, this);
}

void WatermarkProfileDialog::on_saveButton_clicked()
{
    if (!m_ui->profileSelector->maySave()) {
        return;
    }
    {
        // Otherwise selecting the new profile would ask for its picture in between.
        const QSignalBlocker blocker(m_ui->profileSelector);
        m_selectedProfile = qobject_cast<WatermarkProfile*>(m_ui->profileSelector->saveProfile());
    }
    accept();
}

void WatermarkProfileDialog::on_cancelButton_clicked()
{
    reject();
}

/// Adds the buttons to the button box, which knows the platform's order.
void WatermarkProfileDialog::setupButtons()
{
    m_ui->buttonBox->addButton(m_ui->saveButton, QDialogButtonBox::AcceptRole);
    m_ui->buttonBox->addButton(m_ui->cancelButton, QDialogButtonBox::RejectRole);
}

void WatermarkProfileDialog::setupEffects()
{
    QSlider& slider = *m_ui->alphaSlider;
    QLabel& value = *m_ui->opacityValueLabel;
    const auto show = [&slider, &value] {
        const int percent = qRound(100.0 * slider.value() / slider.maximum());
        value.setText(tr("%1 %").arg(percent));
    };
    slider.setValue(slider.maximum());
    show();
    // A fixed width, so that the layout does not move with the digits.
    value.setMinimumWidth(value.sizeHint().width());
    connect(&slider, &QSlider::valueChanged, &value, show);
    EqualWidths::apply({m_ui->textFontButton, m_ui->textColorButton});
    connect(m_ui->relativeSizeCheckBox, &QCheckBox::toggled, m_ui->relativeWidthSpinBox,
            &QWidget::setEnabled);
    m_ui->relativeWidthSpinBox->setEnabled(m_ui->relativeSizeCheckBox->isChecked());
}

void WatermarkProfileDialog::setupProfileSelector()
{
    addField("text", m_ui->textTextEdit);
    addField("textFont", m_ui->textFontLabel);
    addField("textColor", m_ui->textColorLabel);
    addField("textShadowColor", m_ui->shadowColorLabel);
    addField("textShadowXOffset", m_ui->xOffsetSpinBox);
    addField("textShadowYOffset", m_ui->yOffsetSpinBox);
    addField("alpha", m_ui->alphaSlider);
    addField("alignmentIndex", m_ui->alignmentComboBox);
    addField("xMargin", m_ui->xMarginSpinBox);
    addField("yMargin", m_ui->yMarginSpinBox);
    addChoice("watermarkType", m_ui->watermarkTypeTextRadioButton, textType);
    addChoice("watermarkType", m_ui->watermarkTypeImageRadioButton, imageType);
    addField("imageFile", m_ui->imageFileNameLineEdit);
    addField("textShadow", m_ui->textShadowGroupBox);
    addField("relativeSize", m_ui->relativeSizeCheckBox);
    addField("relativeWidth", m_ui->relativeWidthSpinBox);

    const ProfileSelector* const selector = m_ui->profileSelector;
    connect(selector, &ProfileSelector::fieldChanged, this, &WatermarkProfileDialog::fieldChanged);
    connect(selector, &ProfileSelector::profileSelected, this,
            &WatermarkProfileDialog::profileSelected);
    connect(selector, &ProfileSelector::profileDeleted, this, [this](BaseProfile* profile) {
        if (profile == m_selectedProfile) {
            m_selectedProfile = nullptr;
        }
    });
    m_ui->profileSelector->loadProfiles(WatermarkProfile::profileManager());
}

void WatermarkProfileDialog::addField(const char* propertyName, QWidget* widget)
{
    addChoice(propertyName, widget, Field::noChoice);
}

void WatermarkProfileDialog::addChoice(const char* propertyName, QWidget* widget, int choiceValue)
{
    m_ui->profileSelector->addField(new Field(propertyName, widget, choiceValue, this));
}

/// The nine places row by row, with the indexes used by profiles.
void WatermarkProfileDialog::setupAlignmentComboBox()
{
    const QStringList places{tr("Top Left"),    tr("Top"),    tr("Top Right"),
                             tr("Left"),        tr("Center"), tr("Right"),
                             tr("Bottom Left"), tr("Bottom"), tr("Bottom Right")};
    for (int index = 0; index < places.size(); ++index) {
        m_ui->alignmentComboBox->addItem(places.at(index), index);
    }
}

/// Shows only the controls of the watermark's type.
void WatermarkProfileDialog::showType()
{
    const bool isText = m_ui->watermarkTypeTextRadioButton->isChecked();
    m_ui->textTypeFrame->setEnabled(isText);
    m_ui->imageTypeFrame->setEnabled(!isText);
    m_ui->textFormatGroupBox->setVisible(isText);
    m_ui->textShadowGroupBox->setVisible(isText);
}

void WatermarkProfileDialog::askForMissingPicture()
{
    if (!m_ui->watermarkTypeTextRadioButton->isChecked() &&
        m_ui->imageFileNameLineEdit->text().isEmpty()) {
        on_imageBrowseButton_clicked();
    }
}
