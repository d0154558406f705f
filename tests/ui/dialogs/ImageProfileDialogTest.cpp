#include "ui/dialogs/ImageProfileDialog.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/TestProfiles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

using testsupport::child;
using testsupport::showActive;
using testsupport::TestProfiles;
using testsupport::textOf;
using testsupport::typeProfileName;

namespace {

/// Enters values that differ from all defaults.
void fillForm(ImageProfileDialog& dialog)
{
    child<QCheckBox>(dialog, "sameSizeAsVideoCheckbox").click();
    child<QLineEdit>(dialog, "imageWidthLineEdit").setText(textOf("1001"));
    child<QLineEdit>(dialog, "imageHeightLineEdit").setText(textOf("1002"));
    child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").setChecked(false);
    child<QSlider>(dialog, "brightnessSlider").setValue(11);
    child<QSlider>(dialog, "contrastSlider").setValue(-12);
    child<QSpinBox>(dialog, "jpegQualitySpinBox").setValue(13);
    child<QComboBox>(dialog, "metadataComboBox").setCurrentIndex(2);
    child<QComboBox>(dialog, "resizeFilterComboBox").setCurrentIndex(1);
    child<QCheckBox>(dialog, "resizeInLinearLightCheckbox").setChecked(true);
    child<QCheckBox>(dialog, "deepColoursCheckbox").setChecked(true);
    auto& watermarks = child<QComboBox>(dialog, "watermarkProfileComboBox");
    watermarks.setCurrentIndex(watermarks.count() - 1);
}

void compareWithFilledForm(const ImageProfile& profile, const QString& watermarkId)
{
    QVERIFY(profile.sameSizeAsVideo());
    QCOMPARE(profile.imageWidth(), 1001);
    QCOMPARE(profile.imageHeight(), 1002);
    QVERIFY(!profile.maintainAspectRatio());
    QCOMPARE(profile.imageBrightness(), 11);
    QCOMPARE(profile.imageContrast(), -12);
    QCOMPARE(profile.imageQuality(), 13);
    QCOMPARE(profile.metadata(), int(ImageProfile::NoMetadata));
    QCOMPARE(profile.resizeFilter(), int(ImageProfile::LanczosFilter));
    QVERIFY(profile.resizeInLinearLight());
    QVERIFY(profile.deepColours());
    QCOMPARE(profile.watermarkProfileId(), watermarkId);
}

QPushButton& saveButton(const ImageProfileDialog& dialog)
{
    return child<QPushButton>(dialog, "saveButton");
}

/// The widget of the size group beside the label.
QLineEdit& sizeField(const ImageProfileDialog& dialog, int row)
{
    auto& layout =
        *qobject_cast<QFormLayout*>(child<QGroupBox>(dialog, "imageSizeGroupBox").layout());
    return *qobject_cast<QLineEdit*>(layout.itemAt(row, QFormLayout::FieldRole)->widget());
}

QStringList sizeTexts(const ImageProfileDialog& dialog)
{
    return {sizeField(dialog, 1).text(), sizeField(dialog, 2).text()};
}

void setSameSize(const ImageProfileDialog& dialog, bool on)
{
    child<QCheckBox>(dialog, "sameSizeAsVideoCheckbox").setChecked(on);
}

} // namespace

class ImageProfileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_hasItsTexts();
    void form_hasItsRanges();
    void fields_areTheseInThisOrder();
    void groupBoxes_shareTheirMargins();
    void inputs_haveNames_withoutSeeingThem();
    void everyLabel_belongsToItsInput();
    void tabulator_leadsThroughTheForm();
    void profile_isShown();
    void sliders_moveTheirSpinBoxes_andBack_data();
    void sliders_moveTheirSpinBoxes_andBack();
    void sameSize_showsTheVideosSize();
    void sameSize_keepsWhatWasTyped();
    void sameSize_showsNothing_whileVideoIsUnknown_data();
    void sameSize_showsNothing_whileVideoIsUnknown();
    void sameSize_followsTheVideo_whenProfileWasThereFirst();
    void save_writesEveryField();
    void save_makesProfile_whenNameIsNew();
    void save_isOffered_exactlyWithAName();
    void cancel_changesNothing_data();
    void cancel_changesNothing();
    void returnKey_saves();
    void reset_showsDefaults_butSavesNothing();
};

void ImageProfileDialogTest::form_hasItsTexts()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), textOf("Image Profile Settings"));
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));

    QStringList titles;
    const auto groups = dialog.findChildren<QGroupBox*>();
    for (const QGroupBox* const group : groups) {
        titles += group->title();
    }
    titles.sort();
    QCOMPARE(titles, (QStringList{textOf("File Settings"), textOf("Image Adjustments"),
                                  textOf("Image Size"), textOf("Select Profile"), textOf("Video"),
                                  textOf("Watermark")}));

    const QList<QPair<const char*, const char*>> buttons{
        {"sameSizeAsVideoCheckbox", "Same Size as Video"},
        {"maintainAspectRatioCheckbox", "Maintain Aspect Ratio"},
        {"resizeInLinearLightCheckbox", "Resize in Linear Light"},
        {"deepColoursCheckbox", "16-Bit PNG and TIFF"},
        {"watermarkProfileEditButton", "Edit"},
        {"resetToDefaultsButton", "Reset to Defaults"},
        {"saveButton", "Save"},
        {"cancelButton", "Cancel"}};
    for (const auto& [name, text] : buttons) {
        QCOMPARE(child<QAbstractButton>(dialog, name).text(), textOf(text));
    }
    QVERIFY(!child<QPushButton>(dialog, "watermarkProfileEditButton").autoDefault());
    QVERIFY(!child<QPushButton>(dialog, "resetToDefaultsButton").autoDefault());
    QVERIFY(saveButton(dialog).isDefault());
}

void ImageProfileDialogTest::form_hasItsRanges()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    for (const char* const name : {"brightnessSlider", "contrastSlider"}) {
        QCOMPARE(child<QSlider>(dialog, name).minimum(), -100);
        QCOMPARE(child<QSlider>(dialog, name).maximum(), 100);
    }
    for (const char* const name : {"brightnessSpinBox", "contrastSpinBox"}) {
        QCOMPARE(child<QSpinBox>(dialog, name).minimum(), -100);
        QCOMPARE(child<QSpinBox>(dialog, name).maximum(), 100);
    }
    const auto& quality = child<QSpinBox>(dialog, "jpegQualitySpinBox");
    QCOMPARE(quality.minimum(), 0);
    QCOMPARE(quality.maximum(), 100);
    QCOMPARE(quality.value(), 90);
    QVERIFY(!child<QLineEdit>(dialog, "imageWidthLineEdit").validator());
    QVERIFY(!child<QLineEdit>(dialog, "imageHeightLineEdit").validator());
}

void ImageProfileDialogTest::fields_areTheseInThisOrder()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    QCOMPARE(
        testsupport::fieldsOf(dialog),
        (QStringList{textOf("sameSizeAsVideo sameSizeAsVideoCheckbox -1"),
                     textOf("imageWidth imageWidthLineEdit -1"),
                     textOf("imageHeight imageHeightLineEdit -1"),
                     textOf("maintainAspectRatio maintainAspectRatioCheckbox -1"),
                     textOf("resizeFilter resizeFilterComboBox -1"),
                     textOf("resizeInLinearLight resizeInLinearLightCheckbox -1"),
                     textOf("watermarkProfileId watermarkProfileComboBox -1"),
                     textOf("imageBrightness brightnessSpinBox -1"),
                     textOf("imageContrast contrastSpinBox -1"),
                     textOf("deinterlacing deinterlacingComboBox -1"), textOf("hdr hdrComboBox -1"),
                     textOf("imageQuality jpegQualitySpinBox -1"),
                     textOf("metadata metadataComboBox -1"),
                     textOf("deepColours deepColoursCheckbox -1")}));
}

void ImageProfileDialogTest::groupBoxes_shareTheirMargins()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    const auto groups = dialog.findChildren<QGroupBox*>();
    for (const QGroupBox* const group : groups) {
        QVERIFY2(group->layout(), qPrintable(group->objectName()));
        QCOMPARE(group->layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    }
}

void ImageProfileDialogTest::inputs_haveNames_withoutSeeingThem()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    setSameSize(dialog, true);
    QCOMPARE(testsupport::inputsWithoutName(dialog), QStringList());
}

void ImageProfileDialogTest::everyLabel_belongsToItsInput()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    const QStringList texts{textOf("Image Width:"), textOf("Image Height:"), textOf("Filter:"),
                            textOf("Brightness:"),  textOf("Contrast:"),     textOf("Deinterlace:"),
                            textOf("HDR:"),         textOf("JPEG Quality:"), textOf("Metadata:")};
    const QStringList inputs{textOf("imageWidthLineEdit"),   textOf("imageHeightLineEdit"),
                             textOf("resizeFilterComboBox"), textOf("brightnessSlider"),
                             textOf("contrastSlider"),       textOf("deinterlacingComboBox"),
                             textOf("hdrComboBox"),          textOf("jpegQualitySpinBox"),
                             textOf("metadataComboBox")};
    QStringList found;
    const auto labels = dialog.findChildren<QLabel*>();
    for (const QLabel* const label : labels) {
        found += label->text();
        QVERIFY2(label->buddy(), qPrintable(label->text()));
        QCOMPARE(label->buddy()->objectName(), inputs.value(texts.indexOf(label->text())));
    }
    QCOMPARE(found, texts);
}

void ImageProfileDialogTest::tabulator_leadsThroughTheForm()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("a"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    const QStringList after{textOf("brightnessSlider"),
                            textOf("brightnessSpinBox"),
                            textOf("contrastSlider"),
                            textOf("contrastSpinBox"),
                            textOf("watermarkProfileComboBox"),
                            textOf("watermarkProfileEditButton"),
                            textOf("deinterlacingComboBox"),
                            textOf("hdrComboBox"),
                            textOf("jpegQualitySpinBox"),
                            textOf("metadataComboBox"),
                            textOf("deepColoursCheckbox"),
                            textOf("comparisonView"),
                            textOf("resetToDefaultsButton"),
                            textOf("saveButton"),
                            textOf("cancelButton")};
    const QStringList before{textOf("profileComboBox"), textOf("profileMenuButton"),
                             textOf("sameSizeAsVideoCheckbox")};
    const QStringList size{textOf("imageWidthLineEdit"), textOf("imageHeightLineEdit"),
                           textOf("maintainAspectRatioCheckbox"), textOf("resizeFilterComboBox"),
                           textOf("resizeInLinearLightCheckbox")};
    QCOMPARE(testsupport::tabOrder(dialog), before + size + after);
    setSameSize(dialog, true);
    QCOMPARE(testsupport::tabOrder(dialog), before + after);
}

void ImageProfileDialogTest::profile_isShown()
{
    const TestProfiles profiles;
    profiles.add<ImageProfile>(textOf("other"));
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setImageWidth(321);
    profile.setImageBrightness(-7);
    profile.setMaintainAspectRatio(false);
    ImageProfileDialog dialog(nullptr);
    QCOMPARE(dialog.selectedProfile(), nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(dialog.selectedProfile(), &profile);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), textOf("mine"));
    QCOMPARE(sizeTexts(dialog), (QStringList{textOf("321"), textOf("480")}));
    QCOMPARE(child<QSpinBox>(dialog, "brightnessSpinBox").value(), -7);
    QCOMPARE(child<QSlider>(dialog, "brightnessSlider").value(), -7);
    QVERIFY(!child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").isChecked());
}

void ImageProfileDialogTest::sliders_moveTheirSpinBoxes_andBack_data()
{
    QTest::addColumn<QByteArray>("slider");
    QTest::addColumn<QByteArray>("spinBox");
    QTest::newRow("brightness") << QByteArray("brightnessSlider")
                                << QByteArray("brightnessSpinBox");
    QTest::newRow("contrast") << QByteArray("contrastSlider") << QByteArray("contrastSpinBox");
}

void ImageProfileDialogTest::sliders_moveTheirSpinBoxes_andBack()
{
    QFETCH(QByteArray, slider);
    QFETCH(QByteArray, spinBox);
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    auto& bar = child<QSlider>(dialog, slider.constData());
    auto& number = child<QSpinBox>(dialog, spinBox.constData());
    bar.setValue(37);
    QCOMPARE(number.value(), 37);
    number.setValue(-100);
    QCOMPARE(bar.value(), -100);
}

void ImageProfileDialogTest::sameSize_showsTheVideosSize()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setVideoDimensions(1920, 1080);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    setSameSize(dialog, true);
    QCOMPARE(sizeTexts(dialog), (QStringList{textOf("1920"), textOf("1080")}));
    for (const int row : {1, 2}) {
        QVERIFY(sizeField(dialog, row).isVisible());
        QVERIFY(!sizeField(dialog, row).isEnabled());
    }
    QVERIFY(!child<QLineEdit>(dialog, "imageWidthLineEdit").isVisible());
    QVERIFY(!child<QLineEdit>(dialog, "imageHeightLineEdit").isVisible());
    QVERIFY(!child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").isEnabled());

    setSameSize(dialog, false);
    QCOMPARE(&sizeField(dialog, 1), &child<QLineEdit>(dialog, "imageWidthLineEdit"));
    QCOMPARE(&sizeField(dialog, 2), &child<QLineEdit>(dialog, "imageHeightLineEdit"));
    QVERIFY(sizeField(dialog, 1).isVisible());
    QVERIFY(sizeField(dialog, 1).isEnabled());
    QVERIFY(child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").isEnabled());
}

void ImageProfileDialogTest::sameSize_keepsWhatWasTyped()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setVideoDimensions(1920, 1080);
    dialog.setSelectedProfile(&profile);
    sizeField(dialog, 1).setText(textOf("77"));
    for (const bool on : {true, false, true}) {
        setSameSize(dialog, on);
    }
    saveButton(dialog).click();
    QVERIFY(profile.sameSizeAsVideo());
    QCOMPARE(profile.imageWidth(), 77);
    QCOMPARE(profile.imageHeight(), 480);
}

void ImageProfileDialogTest::sameSize_showsNothing_whileVideoIsUnknown_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("unset") << QSize();
    QTest::newRow("no width") << QSize(0, 1080);
    QTest::newRow("no height") << QSize(1920, 0);
}

void ImageProfileDialogTest::sameSize_showsNothing_whileVideoIsUnknown()
{
    QFETCH(QSize, size);
    const TestProfiles profiles;
    ImageProfileDialog dialog(nullptr);
    if (size.isValid()) {
        dialog.setVideoDimensions(size.width(), size.height());
    }
    setSameSize(dialog, true);
    QCOMPARE(sizeTexts(dialog), (QStringList{QString(), QString()}));
}

void ImageProfileDialogTest::sameSize_followsTheVideo_whenProfileWasThereFirst()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setSameSizeAsVideo(true);
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(sizeTexts(dialog), (QStringList{QString(), QString()}));
    dialog.setVideoDimensions(1280, 720);
    QCOMPARE(sizeTexts(dialog), (QStringList{textOf("1280"), textOf("720")}));
}

void ImageProfileDialogTest::save_writesEveryField()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    const QString id = profiles.add<WatermarkProfile>(textOf("logo")).id();
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    fillForm(dialog);
    saveButton(dialog).click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selectedProfile(), &profile);
    compareWithFilledForm(profile, id);
    QFile file(ProfileManager::getSettingsPath(textOf("ImageProfiles.ini")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("imageWidth=1001"));
}

void ImageProfileDialogTest::save_makesProfile_whenNameIsNew()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    const QString id = profiles.add<WatermarkProfile>(textOf("logo")).id();
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    fillForm(dialog);
    typeProfileName(dialog, textOf("another"));
    saveButton(dialog).click();
    QCOMPARE(profile.imageWidth(), 640);
    const QList<BaseProfile*> all = ImageProfile::profileManager()->profiles();
    QCOMPARE(all.size(), 2);
    QCOMPARE(dialog.selectedProfile(), all.last());
    QCOMPARE(all.last()->name(), textOf("another"));
    compareWithFilledForm(*dialog.selectedProfile(), id);
}

void ImageProfileDialogTest::save_isOffered_exactlyWithAName()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    QVERIFY(!saveButton(dialog).isEnabled());
    dialog.setSelectedProfile(&profile);
    QVERIFY(saveButton(dialog).isEnabled());
    typeProfileName(dialog, QString());
    QVERIFY(!saveButton(dialog).isEnabled());
    typeProfileName(dialog, textOf("x"));
    QVERIFY(saveButton(dialog).isEnabled());
}

void ImageProfileDialogTest::cancel_changesNothing_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void ImageProfileDialogTest::cancel_changesNothing()
{
    QFETCH(bool, byKey);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    fillForm(dialog);
    if (byKey) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else {
        child<QPushButton>(dialog, "cancelButton").click();
    }
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QCOMPARE(dialog.selectedProfile(), &profile);
    QCOMPARE(profile.imageWidth(), 640);
    QCOMPARE(profile.imageQuality(), 90);
}

void ImageProfileDialogTest::returnKey_saves()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    auto& width = child<QLineEdit>(dialog, "imageWidthLineEdit");
    width.setFocus();
    width.selectAll();
    QTest::keyClicks(&width, textOf("800"));
    QTest::keyClick(&width, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(profile.imageWidth(), 800);
}

void ImageProfileDialogTest::reset_showsDefaults_butSavesNothing()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setImageWidth(1);
    profile.setSameSizeAsVideo(true);
    profile.setImageContrast(50);
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    child<QPushButton>(dialog, "resetToDefaultsButton").click();
    QCOMPARE(sizeTexts(dialog), (QStringList{textOf("640"), textOf("480")}));
    QCOMPARE(child<QSlider>(dialog, "contrastSlider").value(), 0);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), textOf("mine"));
    QCOMPARE(profile.imageWidth(), 1);
    QCOMPARE(ImageProfile::profileManager()->profiles().size(), 1);
    saveButton(dialog).click();
    QCOMPARE(profile.imageWidth(), 640);
    QVERIFY(!profile.sameSizeAsVideo());
}

QTEST_MAIN(ImageProfileDialogTest)
#include "ImageProfileDialogTest.moc"
