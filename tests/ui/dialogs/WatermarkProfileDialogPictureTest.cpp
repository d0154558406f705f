#include "ui/dialogs/WatermarkProfileDialog.h"

#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "tests/ui/support/Painting.h"
#include "ui/widgets/ImageView.h"
#include "ui/widgets/SmartFileDialog.h"

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>

using testsupport::child;
using testsupport::click;
using testsupport::ModalScript;
using testsupport::showActive;
using testsupport::TestProfiles;
using testsupport::textOf;

namespace {

QString savedPicture(const TestProfiles& profiles, const char* name, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = profiles.dir().filePath(QLatin1String(name));
    return image.save(path) ? path : QString();
}

QString pictureName(const WatermarkProfileDialog& dialog)
{
    return child<QLineEdit>(dialog, "imageFileNameLineEdit").text();
}

/// What the view of the chosen picture shows; empty if it shows nothing.
QRect shownPicture(const WatermarkProfileDialog& dialog)
{
    auto& view = child<ImageView>(dialog, "profileImageView");
    return testsupport::paintedBounds(testsupport::paintedAt(view, {200, 100}));
}

void choose(ModalScript& script, const QString& path)
{
    script.expect<SmartFileDialog>(
        [path](SmartFileDialog& browser) { testsupport::chooseFile(browser, path); });
}

void cancelBrowser(ModalScript& script)
{
    script.expect<SmartFileDialog>(
        [](SmartFileDialog& browser) { static_cast<QDialog&>(browser).reject(); });
}

/// Stores the text of the warning in `said` and closes it.
void readWarning(ModalScript& script, QStringList& said)
{
    script.expect<QMessageBox>([&said](QMessageBox& box) {
        said = QStringList{box.windowTitle(), box.text()};
        if (box.standardButtons() == QMessageBox::Ok && box.icon() == QMessageBox::Warning) {
            box.button(QMessageBox::Ok)->click();
        }
    });
}

QStringList invalidImage()
{
    return {textOf("Invalid Image"), textOf("Could not open image. Please try another.")};
}

} // namespace

class WatermarkProfileDialogPictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void type_offersWhatItHas();
    void type_followsTheSelectedProfile();
    void switchingToImage_asksForAPictureAtOnce();
    void switchingToImage_asksNothing_whenThereIsAPicture();
    void switchingToImage_changesNothingElse_whenBrowserIsCancelled();
    void profileWithoutPicture_asksForIt_onceTheDialogIsThere();
    void pickedProfileWithoutPicture_asksForItAtOnce();
    void saving_asksForNothing();
    void browser_opensItsKindOfFiles();
    void chosenPicture_isCopiedAndShown();
    void chosenPicture_isRememberedByItsFolder();
    void cancelledBrowser_changesNothing();
    void unreadableFile_isRefused_data();
    void unreadableFile_isRefused();
    void goneFile_showsNoPicture();
    void tooLargeFile_showsNoPicture();
};

void WatermarkProfileDialogPictureTest::type_offersWhatItHas()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setImageFile(textOf("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    for (const bool isText : {false, true}) {
        click(dialog, isText ? "watermarkTypeTextRadioButton" : "watermarkTypeImageRadioButton");
        QCOMPARE(child<QWidget>(dialog, "textTypeFrame").isEnabled(), isText);
        QCOMPARE(child<QWidget>(dialog, "imageTypeFrame").isEnabled(), !isText);
        for (const char* const group : {"textFormatGroupBox", "textShadowGroupBox"}) {
            QCOMPARE(child<QWidget>(dialog, group).isHidden(), !isText);
        }
    }
}

void WatermarkProfileDialogPictureTest::type_followsTheSelectedProfile()
{
    const TestProfiles profiles;
    auto& text = profiles.add<WatermarkProfile>(textOf("text"));
    auto& picture = profiles.add<WatermarkProfile>(textOf("picture"));
    picture.setWatermarkType(1);
    picture.setImageFile(textOf("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&picture);
    QVERIFY(!child<QWidget>(dialog, "textTypeFrame").isEnabled());
    QVERIFY(child<QWidget>(dialog, "textFormatGroupBox").isHidden());
    testsupport::pickProfile(dialog, 0);
    QVERIFY(child<QWidget>(dialog, "textTypeFrame").isEnabled());
    QVERIFY(!child<QWidget>(dialog, "textFormatGroupBox").isHidden());
    dialog.setSelectedProfile(&picture);
    QVERIFY(!child<QWidget>(dialog, "textTypeFrame").isEnabled());
    // It is already selected, but has changed.
    testsupport::pickProfile(dialog, 0);
    text.setWatermarkType(1);
    text.setImageFile(textOf("some.png"));
    dialog.setSelectedProfile(&text);
    QVERIFY(!child<QWidget>(dialog, "textTypeFrame").isEnabled());
}

void WatermarkProfileDialogPictureTest::switchingToImage_asksForAPictureAtOnce()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    const QString path = savedPicture(profiles, "logo.png", {40, 20});
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    ModalScript script;
    choose(script, path);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
    QCOMPARE(profiles.watermarkFiles(), QStringList{pictureName(dialog)});
}

void WatermarkProfileDialogPictureTest::switchingToImage_asksNothing_whenThereIsAPicture()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setImageFile(textOf("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(showActive(dialog));
    QTimer::singleShot(0, &dialog, [] { QVERIFY(!QApplication::activeModalWidget()); });
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(!QApplication::activeModalWidget());
    QCoreApplication::processEvents();
}

void WatermarkProfileDialogPictureTest::switchingToImage_changesNothingElse_whenBrowserIsCancelled()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QVERIFY(showActive(dialog));
    ModalScript script;
    cancelBrowser(script);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
    QVERIFY(child<QRadioButton>(dialog, "watermarkTypeImageRadioButton").isChecked());
    QCOMPARE(pictureName(dialog), QString());
    QCOMPARE(profiles.watermarkFiles(), QStringList());
    // The next click asks again.
    cancelBrowser(script);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
}

void WatermarkProfileDialogPictureTest::profileWithoutPicture_asksForIt_onceTheDialogIsThere()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setWatermarkType(1);
    const QString path = savedPicture(profiles, "logo.png", {40, 20});
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    ModalScript script;
    bool wasVisible = false;
    script.expect<SmartFileDialog>([&](SmartFileDialog& browser) {
        wasVisible = dialog.isVisible();
        testsupport::chooseFile(browser, path);
    });
    script.expect<WatermarkProfileDialog>([](WatermarkProfileDialog& self) { self.accept(); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(script.isDone());
    QVERIFY(wasVisible);
    QVERIFY(!pictureName(dialog).isEmpty());
}

void WatermarkProfileDialogPictureTest::pickedProfileWithoutPicture_asksForItAtOnce()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("text"));
    profiles.add<WatermarkProfile>(textOf("picture")).setWatermarkType(1);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QVERIFY(showActive(dialog));
    ModalScript script;
    cancelBrowser(script);
    testsupport::pickProfile(dialog, 1);
    QVERIFY(script.isDone());
    QVERIFY(child<QRadioButton>(dialog, "watermarkTypeImageRadioButton").isChecked());
}

void WatermarkProfileDialogPictureTest::saving_asksForNothing()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QVERIFY(showActive(dialog));
    ModalScript script;
    cancelBrowser(script);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
    testsupport::typeProfileName(dialog, textOf("new"));
    bool asked = false;
    QTimer::singleShot(0, &dialog, [&asked] {
        if (auto* const modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            asked = true;
            modal->reject();
        }
    });
    click(dialog, "saveButton");
    QCoreApplication::processEvents();
    QVERIFY(!asked);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.selectedProfile()->watermarkType(), 1);
}

void WatermarkProfileDialogPictureTest::browser_opensItsKindOfFiles()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    ModalScript script;
    QStringList filters;
    QWidget* parent = nullptr;
    script.expect<SmartFileDialog>([&](SmartFileDialog& browser) {
        filters = browser.nameFilters();
        parent = browser.parentWidget();
        static_cast<QDialog&>(browser).reject();
    });
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
    QCOMPARE(filters, (QStringList{textOf("Image Files (*.jpeg *.jpg *.png *.gif *.tiff *.bmp)"),
                                   textOf("All Files (*.*)")}));
    QCOMPARE(parent, &dialog);
}

void WatermarkProfileDialogPictureTest::chosenPicture_isCopiedAndShown()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QCOMPARE(shownPicture(dialog), QRect());
    const QString path = savedPicture(profiles, "my.logo.png", {40, 20});
    ModalScript script;
    choose(script, path);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(script.isDone());
    const QString first = pictureName(dialog);
    QVERIFY2(first.endsWith(textOf(".logo.png")), qPrintable(first));
    QCOMPARE(first.size(), 36 + 9);
    QVERIFY(QFile::remove(path));
    QCOMPARE(QImage(WatermarkProfile::pathForImage(first)).size(), QSize(40, 20));
    QCOMPARE(shownPicture(dialog), QRect(0, 0, 200, 100));

    choose(script, savedPicture(profiles, "my.logo.png", {40, 20}));
    click(dialog, "imageBrowseButton");
    QVERIFY(script.isDone());
    QVERIFY(pictureName(dialog) != first);
    QCOMPARE(profiles.watermarkFiles().size(), 2);
}

void WatermarkProfileDialogPictureTest::chosenPicture_isRememberedByItsFolder()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    ModalScript script;
    cancelBrowser(script);
    click(dialog, "watermarkTypeImageRadioButton");
    QVERIFY(!QSettings().contains(textOf("watermarkImageDialog_dialogPath")));
    choose(script, savedPicture(profiles, "logo.png", {4, 2}));
    click(dialog, "imageBrowseButton");
    QVERIFY(script.isDone());
    QCOMPARE(QSettings().value(textOf("watermarkImageDialog_dialogPath")).toString(),
             profiles.dir().path());
    QVERIFY(QSettings().contains(textOf("watermarkImageDialog_dialogState")));
}

void WatermarkProfileDialogPictureTest::cancelledBrowser_changesNothing()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setWatermarkType(1);
    profile.setImageFile(textOf("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    ModalScript script;
    cancelBrowser(script);
    click(dialog, "imageBrowseButton");
    QVERIFY(script.isDone());
    QCOMPARE(pictureName(dialog), textOf("some.png"));
    QCOMPARE(profiles.watermarkFiles(), QStringList());
}

void WatermarkProfileDialogPictureTest::unreadableFile_isRefused_data()
{
    QTest::addColumn<bool>("isHuge");
    QTest::newRow("no picture") << false;
    QTest::newRow("20,000 pixels a side") << true;
}

void WatermarkProfileDialogPictureTest::unreadableFile_isRefused()
{
    QFETCH(bool, isHuge);
    const TestProfiles profiles;
    const QString path = profiles.dir().filePath(textOf("bad.png"));
    if (isHuge) {
        QImage image(20000, 20000, QImage::Format_Mono);
        image.fill(0);
        QVERIFY(image.save(path));
    } else {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no picture") > 0);
    }
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setWatermarkType(1);
    profile.setImageFile(textOf("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    ModalScript script;
    QStringList said;
    choose(script, path);
    readWarning(script, said);
    click(dialog, "imageBrowseButton");
    QVERIFY(script.isDone());
    QCOMPARE(said, invalidImage());
    QCOMPARE(pictureName(dialog), textOf("some.png"));
    QCOMPARE(profiles.watermarkFiles(), QStringList());
}

void WatermarkProfileDialogPictureTest::goneFile_showsNoPicture()
{
    const TestProfiles profiles;
    const QString picture = WatermarkProfile::pathForImage(textOf("here.png"));
    QVERIFY(QFile::copy(savedPicture(profiles, "logo.png", {20, 20}), picture));
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setWatermarkType(1);
    profile.setImageFile(textOf("here.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(shownPicture(dialog), QRect(50, 0, 100, 100));
    child<QLineEdit>(dialog, "imageFileNameLineEdit").setText(textOf("gone.png"));
    QCOMPARE(shownPicture(dialog), QRect());
}

void WatermarkProfileDialogPictureTest::tooLargeFile_showsNoPicture()
{
    const TestProfiles profiles;
    QImage image(20000, 20000, QImage::Format_Mono);
    image.fill(0);
    QVERIFY(image.save(WatermarkProfile::pathForImage(textOf("huge.png"))));
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setWatermarkType(1);
    profile.setImageFile(textOf("huge.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(pictureName(dialog), textOf("huge.png"));
    QCOMPARE(shownPicture(dialog), QRect());
}

QTEST_MAIN(WatermarkProfileDialogPictureTest)
#include "WatermarkProfileDialogPictureTest.moc"
