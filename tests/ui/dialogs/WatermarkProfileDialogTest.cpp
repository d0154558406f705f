#include "ui/dialogs/WatermarkProfileDialog.h"

#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/FontLabel.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>

using testsupport::child;
using testsupport::showActive;
using testsupport::TestProfiles;
using testsupport::textOf;
using testsupport::typeProfileName;

namespace {

/// Enters values that differ from all defaults.
void fillForm(WatermarkProfileDialog& dialog)
{
    child<QTextEdit>(dialog, "textTextEdit").setPlainText(textOf("two\nlines"));
    child<FontLabel>(dialog, "textFontLabel").setFontValue(QFont(textOf("DejaVu Sans"), 31));
    child<ColorLabel>(dialog, "textColorLabel").setColorValue(QColor(1, 2, 3, 4));
    child<ColorLabel>(dialog, "shadowColorLabel").setColorValue(QColor(5, 6, 7, 8));
    child<QSpinBox>(dialog, "xOffsetSpinBox").setValue(11);
    child<QSpinBox>(dialog, "yOffsetSpinBox").setValue(12);
    child<QSlider>(dialog, "alphaSlider").setValue(13);
    child<QComboBox>(dialog, "alignmentComboBox").setCurrentIndex(3);
    child<QSpinBox>(dialog, "xMarginSpinBox").setValue(14);
    child<QSpinBox>(dialog, "yMarginSpinBox").setValue(15000);
    child<QLineEdit>(dialog, "imageFileNameLineEdit").setText(textOf("some.png"));
    child<QRadioButton>(dialog, "watermarkTypeImageRadioButton").click();
}

void compareWithFilledForm(const WatermarkProfile& profile)
{
    QCOMPARE(profile.text(), textOf("two\nlines"));
    QCOMPARE(profile.textFont().family(), textOf("DejaVu Sans"));
    QCOMPARE(profile.textFont().pointSize(), 31);
    QCOMPARE(profile.textColor(), QColor(1, 2, 3, 4));
    QCOMPARE(profile.textShadowColor(), QColor(5, 6, 7, 8));
    QCOMPARE(profile.textShadowXOffset(), 11);
    QCOMPARE(profile.textShadowYOffset(), 12);
    QCOMPARE(profile.alpha(), 13);
    QCOMPARE(profile.alignmentIndex(), 3);
    QCOMPARE(profile.xMargin(), 14);
    QCOMPARE(profile.yMargin(), 10000);
    QCOMPARE(profile.imageFile(), textOf("some.png"));
    QCOMPARE(profile.watermarkType(), 1);
}

QPushButton& saveButton(const WatermarkProfileDialog& dialog)
{
    return child<QPushButton>(dialog, "saveButton");
}

} // namespace

class WatermarkProfileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void form_hasItsTexts();
    void form_hasItsRanges();
    void alignments_areThoseOfTheProfiles();
    void fields_areTheseInThisOrder();
    void groupBoxes_shareTheirMargins();
    void inputs_haveNames_withoutSeeingThem();
    void inputs_areNoPlainAreas_toScreenReaders();
    void tabulator_leadsThroughTheForm();
    void everyLabel_belongsToItsInput();
    void profile_isShown();
    void firstProfile_isShown_whenNoneIsGiven();
    void defaults_areShown_whenThereIsNoProfile();
    void save_writesEveryField();
    void save_makesProfile_whenNameIsNew();
    void save_makesFirstProfile_fromDefaults();
    void save_isOffered_exactlyWithAName();
    void cancel_changesNothing_data();
    void cancel_changesNothing();
    void returnKey_saves();
    void returnKey_doesNothing_withoutAName();
    void returnKey_breaksLine_inTheText();
    void relativeWidth_isTheDefaultOfNewOnes();
    void opacity_isShownInPercent();
    void uncheckedShadow_isSavedAllTheSame();
};

void WatermarkProfileDialogTest::form_hasItsTexts()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), textOf("Watermark Settings"));
    QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));

    QStringList titles;
    const auto groups = dialog.findChildren<QGroupBox*>();
    for (const QGroupBox* const group : groups) {
        titles += group->title();
    }
    titles.sort();
    QCOMPARE(titles,
             (QStringList{textOf("Opacity"), textOf("Position"), textOf("Position + Preview"),
                          textOf("Select Profile"), textOf("Text Format"), textOf("Text Shadow")}));

    const auto& tabs = child<QTabWidget>(dialog, "tabWidget");
    QCOMPARE(tabs.count(), 2);
    QCOMPARE(tabs.tabText(0), textOf("Type"));
    QCOMPARE(tabs.tabText(1), textOf("Effects"));
    QCOMPARE(tabs.currentIndex(), 0);

    QCOMPARE(child<QRadioButton>(dialog, "watermarkTypeTextRadioButton").text(), textOf("Text"));
    QCOMPARE(child<QRadioButton>(dialog, "watermarkTypeImageRadioButton").text(), textOf("Image"));
    QCOMPARE(child<QPushButton>(dialog, "imageBrowseButton").text(), textOf("Browse"));
    QCOMPARE(child<QPushButton>(dialog, "textFontButton").text(), textOf("Font"));
    QCOMPARE(child<QPushButton>(dialog, "textColorButton").text(), textOf("Color"));
    QCOMPARE(child<QPushButton>(dialog, "shadowColorButton").text(), textOf("Shadow Color"));
    QCOMPARE(saveButton(dialog).text(), textOf("Save"));
    QCOMPARE(child<QPushButton>(dialog, "cancelButton").text(), textOf("Cancel"));
    for (const char* const name :
         {"imageBrowseButton", "textFontButton", "textColorButton", "shadowColorButton"}) {
        QVERIFY2(!child<QPushButton>(dialog, name).autoDefault(), name);
    }
    QVERIFY(saveButton(dialog).isDefault());
    // It has no function, so it is hidden.
    QVERIFY(!child<QPushButton>(dialog, "imageBrowseButton_2").isVisibleTo(&dialog));
}

void WatermarkProfileDialogTest::form_hasItsRanges()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    QCOMPARE(child<QSlider>(dialog, "alphaSlider").minimum(), 0);
    QCOMPARE(child<QSlider>(dialog, "alphaSlider").maximum(), 255);
    for (const char* const name : {"xOffsetSpinBox", "yOffsetSpinBox"}) {
        QCOMPARE(child<QSpinBox>(dialog, name).minimum(), 0);
        QCOMPARE(child<QSpinBox>(dialog, name).maximum(), 99);
    }
    for (const char* const name : {"xMarginSpinBox", "yMarginSpinBox"}) {
        QCOMPARE(child<QSpinBox>(dialog, name).minimum(), 0);
        QCOMPARE(child<QSpinBox>(dialog, name).maximum(), 10000);
    }
    QVERIFY(child<QGroupBox>(dialog, "textShadowGroupBox").isCheckable());
}

void WatermarkProfileDialogTest::alignments_areThoseOfTheProfiles()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    const auto& box = child<QComboBox>(dialog, "alignmentComboBox");
    const QStringList texts{textOf("Top Left"),    textOf("Top"),    textOf("Top Right"),
                            textOf("Left"),        textOf("Center"), textOf("Right"),
                            textOf("Bottom Left"), textOf("Bottom"), textOf("Bottom Right")};
    QCOMPARE(box.count(), texts.size());
    for (int index = 0; index < texts.size(); ++index) {
        QCOMPARE(box.itemText(index), texts.at(index));
        QCOMPARE(box.itemData(index), QVariant(index));
    }
}

void WatermarkProfileDialogTest::fields_areTheseInThisOrder()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    QCOMPARE(
        testsupport::fieldsOf(dialog),
        (QStringList{textOf("text textTextEdit -1"), textOf("textFont textFontLabel -1"),
                     textOf("textColor textColorLabel -1"),
                     textOf("textShadowColor shadowColorLabel -1"),
                     textOf("textShadowXOffset xOffsetSpinBox -1"),
                     textOf("textShadowYOffset yOffsetSpinBox -1"), textOf("alpha alphaSlider -1"),
                     textOf("alignmentIndex alignmentComboBox -1"),
                     textOf("xMargin xMarginSpinBox -1"), textOf("yMargin yMarginSpinBox -1"),
                     textOf("watermarkType watermarkTypeTextRadioButton 0"),
                     textOf("watermarkType watermarkTypeImageRadioButton 1"),
                     textOf("imageFile imageFileNameLineEdit -1"),
                     textOf("textShadow textShadowGroupBox -1"),
                     textOf("relativeSize relativeSizeCheckBox -1"),
                     textOf("relativeWidth relativeWidthSpinBox -1")}));
}

void WatermarkProfileDialogTest::groupBoxes_shareTheirMargins()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    const auto groups = dialog.findChildren<QGroupBox*>();
    for (const QGroupBox* const group : groups) {
        QVERIFY2(group->layout(), qPrintable(group->objectName()));
        QCOMPARE(group->layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    }
}

void WatermarkProfileDialogTest::inputs_haveNames_withoutSeeingThem()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    QCOMPARE(testsupport::inputsWithoutName(dialog), QStringList());
}

void WatermarkProfileDialogTest::inputs_areNoPlainAreas_toScreenReaders()
{
    const TestProfiles profiles;
    const auto switchOff = qScopeGuard([] { QAccessible::setActive(false); });
    QAccessible::setActive(true);
    const WatermarkProfileDialog dialog(nullptr);
    const auto role = [&dialog](const char* name) {
        return QAccessible::queryAccessibleInterface(&child<QWidget>(dialog, name))->role();
    };
    QCOMPARE(role("textTextEdit"), QAccessible::EditableText);
    // While the watermark is a text, these are disabled together with their parent.
    QCOMPARE(role("imageFileNameLineEdit"), QAccessible::EditableText);
    QCOMPARE(role("imageBrowseButton"), QAccessible::Button);
    QVERIFY(!child<QWidget>(dialog, "imageTypeFrame").isEnabled());
    QVERIFY(child<QWidget>(dialog, "textTypeFrame").isEnabled());
}

void WatermarkProfileDialogTest::tabulator_leadsThroughTheForm()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("a"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QVERIFY(showActive(dialog));
    const QStringList before{textOf("profileComboBox"), textOf("profileMenuButton"),
                             textOf("qt_tabwidget_tabbar")};
    const QStringList after{textOf("alignmentComboBox"), textOf("xMarginSpinBox"),
                            textOf("yMarginSpinBox"),    textOf("relativeSizeCheckBox"),
                            textOf("saveButton"),        textOf("cancelButton")};
    const QStringList type{textOf("watermarkTypeTextRadioButton"), textOf("textTextEdit"),
                           textOf("watermarkTypeImageRadioButton")};
    QCOMPARE(testsupport::tabOrder(dialog), before + type + after);
    child<QTabWidget>(dialog, "tabWidget").setCurrentIndex(1);
    const QStringList effects{textOf("alphaSlider"),       textOf("textFontButton"),
                              textOf("textColorButton"),   textOf("textShadowGroupBox"),
                              textOf("shadowColorButton"), textOf("xOffsetSpinBox"),
                              textOf("yOffsetSpinBox")};
    QCOMPARE(testsupport::tabOrder(dialog), before + effects + after);
}

void WatermarkProfileDialogTest::everyLabel_belongsToItsInput()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    const QList<QPair<const char*, const char*>> pairs{{"alignmentLabel", "alignmentComboBox"},
                                                       {"xMarginLabel", "xMarginSpinBox"},
                                                       {"yMarginLabel", "yMarginSpinBox"},
                                                       {"xOffsetLabel", "xOffsetSpinBox"},
                                                       {"yOffsetLabel", "yOffsetSpinBox"}};
    for (const auto& [label, input] : pairs) {
        QCOMPARE(child<QLabel>(dialog, label).buddy(), &child<QWidget>(dialog, input));
    }
}

void WatermarkProfileDialogTest::profile_isShown()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("other"));
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setText(textOf("hello"));
    profile.setTextFont(QFont(textOf("DejaVu Sans"), 20));
    profile.setTextColor(QColor(9, 8, 7, 6));
    profile.setAlignmentIndex(4);
    profile.setXMargin(77);
    profile.setAlpha(99);
    WatermarkProfileDialog dialog(nullptr);
    QCOMPARE(dialog.selectedProfile(), nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(dialog.selectedProfile(), &profile);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), textOf("mine"));
    QCOMPARE(child<QTextEdit>(dialog, "textTextEdit").toPlainText(), textOf("hello"));
    QCOMPARE(child<FontLabel>(dialog, "textFontLabel").text(), textOf("DejaVu Sans, 20pt"));
    QCOMPARE(child<ColorLabel>(dialog, "textColorLabel").colorValue(), QColor(9, 8, 7, 6));
    QCOMPARE(child<QComboBox>(dialog, "alignmentComboBox").currentText(), textOf("Center"));
    QCOMPARE(child<QSpinBox>(dialog, "xMarginSpinBox").value(), 77);
    QCOMPARE(child<QSlider>(dialog, "alphaSlider").value(), 99);
    QVERIFY(saveButton(dialog).isEnabled());
}

void WatermarkProfileDialogTest::firstProfile_isShown_whenNoneIsGiven()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("first")).setText(textOf("its text"));
    profiles.add<WatermarkProfile>(textOf("second"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), textOf("first"));
    QCOMPARE(child<QTextEdit>(dialog, "textTextEdit").toPlainText(), textOf("its text"));
    QCOMPARE(dialog.selectedProfile(), nullptr);
}

void WatermarkProfileDialogTest::defaults_areShown_whenThereIsNoProfile()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QCOMPARE(child<QComboBox>(dialog, "profileComboBox").currentText(), QString());
    QCOMPARE(child<QComboBox>(dialog, "alignmentComboBox").currentIndex(), 8);
    QCOMPARE(child<QSpinBox>(dialog, "xMarginSpinBox").value(), 15);
    QCOMPARE(child<QSlider>(dialog, "alphaSlider").value(), 255);
    QCOMPARE(child<ColorLabel>(dialog, "textColorLabel").colorValue(), QColor(255, 255, 255, 225));
    QVERIFY(child<QRadioButton>(dialog, "watermarkTypeTextRadioButton").isChecked());
    QVERIFY(!saveButton(dialog).isEnabled());
    QVERIFY(WatermarkProfile::profileManager()->profiles().isEmpty());
}

void WatermarkProfileDialogTest::save_writesEveryField()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    fillForm(dialog);
    saveButton(dialog).click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.selectedProfile(), &profile);
    compareWithFilledForm(profile);
    QFile file(ProfileManager::getSettingsPath(textOf("WatermarkProfiles.ini")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("imageFile=some.png"));
}

void WatermarkProfileDialogTest::save_makesProfile_whenNameIsNew()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    fillForm(dialog);
    typeProfileName(dialog, textOf("another"));
    saveButton(dialog).click();
    QCOMPARE(profile.text(), QString());
    const QList<BaseProfile*> all = WatermarkProfile::profileManager()->profiles();
    QCOMPARE(all.size(), 2);
    QCOMPARE(dialog.selectedProfile(), all.last());
    QCOMPARE(all.last()->name(), textOf("another"));
    compareWithFilledForm(*dialog.selectedProfile());
}

void WatermarkProfileDialogTest::save_makesFirstProfile_fromDefaults()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    typeProfileName(dialog, textOf("first"));
    saveButton(dialog).click();
    const QList<BaseProfile*> all = WatermarkProfile::profileManager()->profiles();
    QCOMPARE(all.size(), 1);
    QCOMPARE(dialog.selectedProfile(), all.first());
    QCOMPARE(all.first()->name(), textOf("first"));
    QCOMPARE(dialog.selectedProfile()->textColor(), QColor(255, 255, 255, 225));
}

void WatermarkProfileDialogTest::save_isOffered_exactlyWithAName()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    QVERIFY(!saveButton(dialog).isEnabled());
    dialog.setSelectedProfile(&profile);
    QVERIFY(saveButton(dialog).isEnabled());
    typeProfileName(dialog, QString());
    QVERIFY(!saveButton(dialog).isEnabled());
    typeProfileName(dialog, textOf("x"));
    QVERIFY(saveButton(dialog).isEnabled());
}

void WatermarkProfileDialogTest::cancel_changesNothing_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void WatermarkProfileDialogTest::cancel_changesNothing()
{
    QFETCH(bool, byKey);
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
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
    QCOMPARE(profile.text(), QString());
    QCOMPARE(profile.watermarkType(), 0);
}

void WatermarkProfileDialogTest::returnKey_saves()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    auto& margin = child<QSpinBox>(dialog, "xMarginSpinBox");
    margin.setFocus();
    margin.selectAll();
    QTest::keyClicks(&margin, textOf("42"));
    QTest::keyClick(&margin, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(profile.xMargin(), 42);
}

void WatermarkProfileDialogTest::returnKey_doesNothing_withoutAName()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QVERIFY(showActive(dialog));
    QTest::keyClick(&child<QComboBox>(dialog, "profileComboBox"), Qt::Key_Return);
    QVERIFY(dialog.isVisible());
    QVERIFY(WatermarkProfile::profileManager()->profiles().isEmpty());
}

void WatermarkProfileDialogTest::returnKey_breaksLine_inTheText()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    auto& text = child<QTextEdit>(dialog, "textTextEdit");
    QTest::keyClicks(&text, textOf("a"));
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, textOf("b"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(text.toPlainText(), textOf("a\nb"));
}

void WatermarkProfileDialogTest::relativeWidth_isTheDefaultOfNewOnes()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    auto& isRelative = child<QCheckBox>(dialog, "relativeSizeCheckBox");
    QVERIFY(isRelative.isChecked());
    child<QSpinBox>(dialog, "relativeWidthSpinBox").setValue(35);
    testsupport::typeProfileName(dialog, textOf("new"));
    saveButton(dialog).click();
    QVERIFY(dialog.selectedProfile()->relativeSize());
    QCOMPARE(dialog.selectedProfile()->relativeWidth(), 35);

    auto& old = profiles.add<WatermarkProfile>(textOf("old"));
    WatermarkProfileDialog other(nullptr);
    other.setSelectedProfile(&old);
    QVERIFY(!child<QCheckBox>(other, "relativeSizeCheckBox").isChecked());
    QVERIFY(!child<QSpinBox>(other, "relativeWidthSpinBox").isEnabled());
}

void WatermarkProfileDialogTest::opacity_isShownInPercent()
{
    const TestProfiles profiles;
    const WatermarkProfileDialog dialog(nullptr);
    child<QSlider>(dialog, "alphaSlider").setValue(51);
    QCOMPARE(child<QLabel>(dialog, "opacityValueLabel").text(), textOf("20 %"));
}

void WatermarkProfileDialogTest::uncheckedShadow_isSavedAllTheSame()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    child<QSpinBox>(dialog, "xOffsetSpinBox").setValue(3);
    child<QGroupBox>(dialog, "textShadowGroupBox").setChecked(false);
    QVERIFY(!child<QSpinBox>(dialog, "xOffsetSpinBox").isEnabled());
    saveButton(dialog).click();
    QVERIFY(!profile.textShadow());
    QCOMPARE(profile.textShadowXOffset(), 3);
    QCOMPARE(profile.textShadowColor(), QColor(0, 0, 0, 175));
}

QTEST_MAIN(WatermarkProfileDialogTest)
#include "WatermarkProfileDialogTest.moc"
