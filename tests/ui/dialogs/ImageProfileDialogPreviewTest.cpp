#include "ui/dialogs/ImageProfileDialog.h"

#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/Patience.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/dialogs/support/PreviewWindow.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "tests/ui/support/Painting.h"
#include "ui/dialogs/WatermarkProfileDialog.h"
#include "ui/widgets/ComparisonView.h"
#include "ui/widgets/ImageView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include <functional>

using testsupport::child;
using testsupport::ModalScript;
using testsupport::patienceMs;
using testsupport::PreviewWindow;
using testsupport::TestProfiles;
using testsupport::textOf;

namespace {

/// A multiple of the dialog's delay before it reports.
constexpr int aWhileMs = 200;

QComboBox& watermarks(const ImageProfileDialog& dialog)
{
    return child<QComboBox>(dialog, "watermarkProfileComboBox");
}

QStringList watermarkTexts(const ImageProfileDialog& dialog)
{
    QStringList texts;
    for (int index = 0; index < watermarks(dialog).count(); ++index) {
        texts += watermarks(dialog).itemText(index);
    }
    return texts;
}

void clickEdit(const ImageProfileDialog& dialog)
{
    child<QPushButton>(dialog, "watermarkProfileEditButton").click();
}

/// Saves the watermark dialog under this name once it is open.
void saveWatermarkAs(ModalScript& script, const QString& name)
{
    script.expect<WatermarkProfileDialog>([name](WatermarkProfileDialog& dialog) {
        testsupport::typeProfileName(dialog, name);
        child<QPushButton>(dialog, "saveButton").click();
    });
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(ImageProfileDialog&)>)

class ImageProfileDialogPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edits_arePreviewedOnce_afterTheLast();
    void everyField_isPreviewed_data();
    void everyField_isPreviewed();
    void preview_showsWhatIsEntered_andSavesNothing();
    void preview_followsTheProfile();
    void preview_followsTheReset();
    void preview_isLeftOut_whereThereIsNone();
    void comparison_showsTheFrame_beforeAndAfter();
    void comparison_showsALargeFrame_andFollowsTheNextOne();
    void watermarks_areNoneAndTheProfiles();
    void watermarks_areNone_whenThereIsNoProfile();
    void watermark_isThatOfTheProfile_data();
    void watermark_isThatOfTheProfile();
    void watermarkDialog_opensOnTheChosenOne();
    void watermarkDialog_showsTheFrame_asItIsEntered();
    void newWatermark_isChosen();
    void renamedAndOtherWatermarks_areListed();
    void cancelledWatermarkDialog_keepsTheChoice_data();
    void cancelledWatermarkDialog_keepsTheChoice();
};

void ImageProfileDialogPreviewTest::edits_arePreviewedOnce_afterTheLast()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    PreviewWindow window;
    ImageProfileDialog dialog(&window);
    dialog.setPreview(window.preview());
    dialog.setSelectedProfile(&profile);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 1, patienceMs);

    auto& slider = child<QSlider>(dialog, "brightnessSlider");
    for (int value = 1; value <= 60; ++value) {
        slider.setValue(value);
    }
    QCOMPARE(child<QSpinBox>(dialog, "brightnessSpinBox").value(), 60);
    dialog.updateImage();
    QCOMPARE(window.updates, 1);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 2, patienceMs);
    QCOMPARE(window.brightness, 60);
    QTest::qWait(aWhileMs);
    QCOMPARE(window.updates, 2);
}

void ImageProfileDialogPreviewTest::everyField_isPreviewed_data()
{
    using Edit = std::function<void(ImageProfileDialog&)>;
    QTest::addColumn<Edit>("edit");
    QTest::newRow("same size") << Edit([](ImageProfileDialog& dialog) {
        child<QCheckBox>(dialog, "sameSizeAsVideoCheckbox").click();
    });
    QTest::newRow("width") << Edit([](ImageProfileDialog& dialog) {
        child<QLineEdit>(dialog, "imageWidthLineEdit").setText(textOf("1"));
    });
    QTest::newRow("height") << Edit([](ImageProfileDialog& dialog) {
        child<QLineEdit>(dialog, "imageHeightLineEdit").setText(textOf("1"));
    });
    QTest::newRow("aspect ratio") << Edit([](ImageProfileDialog& dialog) {
        child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").click();
    });
    QTest::newRow("contrast") << Edit(
        [](ImageProfileDialog& dialog) { child<QSpinBox>(dialog, "contrastSpinBox").setValue(5); });
    QTest::newRow("quality") << Edit([](ImageProfileDialog& dialog) {
        child<QSpinBox>(dialog, "jpegQualitySpinBox").setValue(5);
    });
    QTest::newRow("watermark") << Edit(
        [](ImageProfileDialog& dialog) { watermarks(dialog).setCurrentIndex(1); });
}

void ImageProfileDialogPreviewTest::everyField_isPreviewed()
{
    QFETCH(std::function<void(ImageProfileDialog&)>, edit);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profiles.add<WatermarkProfile>(textOf("logo"));
    PreviewWindow window;
    ImageProfileDialog dialog(&window);
    dialog.setPreview(window.preview());
    dialog.setSelectedProfile(&profile);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 1, patienceMs);
    edit(dialog);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 2, patienceMs);
}

void ImageProfileDialogPreviewTest::preview_showsWhatIsEntered_andSavesNothing()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    PreviewWindow window;
    ImageProfileDialog dialog(&window);
    dialog.setPreview(window.preview());
    dialog.setSelectedProfile(&profile);
    child<QLineEdit>(dialog, "imageWidthLineEdit").setText(textOf("320"));
    child<QSlider>(dialog, "contrastSlider").setValue(-30);
    child<QSpinBox>(dialog, "jpegQualitySpinBox").setValue(7);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 1, patienceMs);
    QCOMPARE(window.size, QSize(320, 480));
    QCOMPARE(window.contrast, -30);
    QCOMPARE(window.quality, 7);
    // It belonged to the dialog, for this one call.
    QVERIFY(window.last.isNull());
    QCOMPARE(ImageProfile::profileManager()->profiles(), QList<BaseProfile*>{&profile});
    QCOMPARE(profile.imageWidth(), 640);
}

void ImageProfileDialogPreviewTest::preview_followsTheProfile()
{
    const TestProfiles profiles;
    auto& first = profiles.add<ImageProfile>(textOf("first"));
    profiles.add<ImageProfile>(textOf("second")).setImageContrast(44);
    PreviewWindow window;
    ImageProfileDialog dialog(&window);
    dialog.setPreview(window.preview());
    dialog.setSelectedProfile(&first);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 1, patienceMs);
    testsupport::pickProfile(dialog, 1);
    QTRY_COMPARE_WITH_TIMEOUT(window.updates, 2, patienceMs);
    QCOMPARE(window.contrast, 44);
}

void ImageProfileDialogPreviewTest::preview_followsTheReset()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setImageContrast(44);
    PreviewWindow window;
    ImageProfileDialog dialog(&window);
    dialog.setPreview(window.preview());
    dialog.setSelectedProfile(&profile);
    QTRY_COMPARE_WITH_TIMEOUT(window.contrast, 44, patienceMs);
    child<QPushButton>(dialog, "resetToDefaultsButton").click();
    QTRY_COMPARE_WITH_TIMEOUT(window.contrast, 0, patienceMs);
}

void ImageProfileDialogPreviewTest::preview_isLeftOut_whereThereIsNone()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    child<QSlider>(dialog, "brightnessSlider").setValue(9);
    dialog.updateImage();
    QTest::qWait(aWhileMs);
    QCOMPARE(child<QSlider>(dialog, "brightnessSlider").value(), 9);
}

void ImageProfileDialogPreviewTest::comparison_showsTheFrame_beforeAndAfter()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setImageBrightness(40);
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QImage frame(320, 240, QImage::Format_RGB888);
    frame.fill(QColor(100, 100, 100));
    dialog.setExampleImage(frame);
    QVERIFY(testsupport::showActive(dialog));
    auto& view = child<ComparisonView>(dialog, "comparisonView");
    const auto greyAt = [&view](double part) {
        const QImage shown = view.grab().toImage();
        return qRed(shown.pixel(int(part * shown.width()), shown.height() / 2));
    };
    QCOMPARE(greyAt(0.2), 100);
    QCOMPARE(greyAt(0.8), 140);
    child<QSpinBox>(dialog, "brightnessSpinBox").setValue(-50);
    QTRY_COMPARE(greyAt(0.8), 50);
    QCOMPARE(greyAt(0.2), 100);
}

/// It is made in the background.
void ImageProfileDialogPreviewTest::comparison_showsALargeFrame_andFollowsTheNextOne()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setSameSizeAsVideo(true);
    profile.setImageBrightness(40);
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QImage frame(3840, 2160, QImage::Format_RGB888);
    frame.fill(QColor(100, 100, 100));
    dialog.setExampleImage(frame);
    QVERIFY(testsupport::showActive(dialog));
    auto& view = child<ComparisonView>(dialog, "comparisonView");
    const auto greyAt = [&view](double part) {
        const QImage shown = view.grab().toImage();
        return qRed(shown.pixel(int(part * shown.width()), shown.height() / 2));
    };
    QTRY_COMPARE_WITH_TIMEOUT(greyAt(0.8), 140, patienceMs);
    QCOMPARE(greyAt(0.2), 100);
    frame.fill(QColor(50, 50, 50));
    dialog.updateImage();
    dialog.setExampleImage(frame);
    QTRY_COMPARE_WITH_TIMEOUT(greyAt(0.8), 90, patienceMs);
    QCOMPARE(greyAt(0.2), 50);
}

void ImageProfileDialogPreviewTest::watermarks_areNoneAndTheProfiles()
{
    const TestProfiles profiles;
    const QString first = profiles.add<WatermarkProfile>(textOf("b")).id();
    const QString second = profiles.add<WatermarkProfile>(textOf("a")).id();
    const ImageProfileDialog dialog(nullptr);
    QCOMPARE(watermarkTexts(dialog),
             (QStringList{textOf("[No Watermark]"), textOf("b"), textOf("a")}));
    QCOMPARE(watermarks(dialog).itemData(0), QVariant(QString()));
    QCOMPARE(watermarks(dialog).itemData(1), QVariant(first));
    QCOMPARE(watermarks(dialog).itemData(2), QVariant(second));
}

void ImageProfileDialogPreviewTest::watermarks_areNone_whenThereIsNoProfile()
{
    const TestProfiles profiles;
    const ImageProfileDialog dialog(nullptr);
    QCOMPARE(watermarkTexts(dialog), QStringList{textOf("[No Watermark]")});
}

void ImageProfileDialogPreviewTest::watermark_isThatOfTheProfile_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("index");
    QTest::newRow("none") << QString() << 0;
    QTest::newRow("listed") << textOf("LOGO-ID") << 1;
    QTest::newRow("other letter case") << textOf("logo-id") << -1;
    QTest::newRow("not listed") << textOf("gone") << -1;
}

void ImageProfileDialogPreviewTest::watermark_isThatOfTheProfile()
{
    QFETCH(QString, id);
    QFETCH(int, index);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    profile.setWatermarkProfileId(id);
    profiles.add<WatermarkProfile>(textOf("logo")).setId(textOf("LOGO-ID"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(watermarks(dialog).currentIndex(), index);
}

void ImageProfileDialogPreviewTest::watermarkDialog_opensOnTheChosenOne()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("first"));
    auto& second = profiles.add<WatermarkProfile>(textOf("second"));
    ImageProfileDialog dialog(nullptr);
    watermarks(dialog).setCurrentIndex(2);
    ModalScript script;
    const WatermarkProfile* selected = nullptr;
    const QWidget* parent = nullptr;
    script.expect<WatermarkProfileDialog>([&](WatermarkProfileDialog& watermarkDialog) {
        selected = watermarkDialog.selectedProfile();
        parent = watermarkDialog.parentWidget();
        watermarkDialog.reject();
    });
    clickEdit(dialog);
    QVERIFY(script.isDone());
    QCOMPARE(selected, &second);
    QCOMPARE(parent, &dialog);
}

void ImageProfileDialogPreviewTest::watermarkDialog_showsTheFrame_asItIsEntered()
{
    const TestProfiles profiles;
    ImageProfileDialog dialog(nullptr);
    QImage frame(320, 240, QImage::Format_RGB888);
    frame.fill(QColor(10, 20, 30));
    dialog.setExampleImage(frame);
    child<QSlider>(dialog, "brightnessSlider").setValue(100);
    child<QLineEdit>(dialog, "imageWidthLineEdit").setText(textOf("100"));
    child<QLineEdit>(dialog, "imageHeightLineEdit").setText(textOf("50"));
    child<QCheckBox>(dialog, "maintainAspectRatioCheckbox").setChecked(false);
    ModalScript script;
    QImage shown;
    script.expect<WatermarkProfileDialog>([&shown](WatermarkProfileDialog& watermarkDialog) {
        auto& view = child<ImageView>(watermarkDialog, "watermarkPositioner");
        const auto isRendered = [&] {
            shown = testsupport::paintedAt(view, {400, 300});
            return shown.pixelColor(200, 150) == QColor(110, 120, 130);
        };
        if (!QTest::qWaitFor(isRendered, patienceMs)) {
            qWarning("The frame is not shown");
        }
        watermarkDialog.reject();
    });
    clickEdit(dialog);
    QVERIFY(script.isDone());
    QCOMPARE(shown.pixelColor(200, 150), QColor(110, 120, 130));
    // Twice as wide as high, as entered.
    QCOMPARE(testsupport::paintedBounds(shown), QRect(0, 50, 400, 200));
}

void ImageProfileDialogPreviewTest::newWatermark_isChosen()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(textOf("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    ModalScript script;
    saveWatermarkAs(script, textOf("new"));
    clickEdit(dialog);
    QVERIFY(script.isDone());
    QCOMPARE(watermarkTexts(dialog), (QStringList{textOf("[No Watermark]"), textOf("new")}));
    QCOMPARE(watermarks(dialog).currentText(), textOf("new"));
    child<QPushButton>(dialog, "saveButton").click();
    QCOMPARE(profile.watermarkProfileId(),
             WatermarkProfile::profileManager()->profiles().first()->id());
}

void ImageProfileDialogPreviewTest::renamedAndOtherWatermarks_areListed()
{
    const TestProfiles profiles;
    auto& first = profiles.add<WatermarkProfile>(textOf("first"));
    profiles.add<WatermarkProfile>(textOf("second"));
    ImageProfileDialog dialog(nullptr);
    watermarks(dialog).setCurrentIndex(1);
    ModalScript script;
    saveWatermarkAs(script, textOf("SECOND"));
    script.expect<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    first.setName(textOf("renamed"));
    clickEdit(dialog);
    QVERIFY(script.isDone());
    QCOMPARE(watermarkTexts(dialog),
             (QStringList{textOf("[No Watermark]"), textOf("renamed"), textOf("second")}));
    QCOMPARE(watermarks(dialog).currentText(), textOf("second"));
}

void ImageProfileDialogPreviewTest::cancelledWatermarkDialog_keepsTheChoice_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("none") << 0;
    QTest::newRow("second") << 2;
}

void ImageProfileDialogPreviewTest::cancelledWatermarkDialog_keepsTheChoice()
{
    QFETCH(int, index);
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("first"));
    profiles.add<WatermarkProfile>(textOf("second"));
    ImageProfileDialog dialog(nullptr);
    watermarks(dialog).setCurrentIndex(index);
    ModalScript script;
    script.expect<WatermarkProfileDialog>(
        [](WatermarkProfileDialog& watermarkDialog) { watermarkDialog.reject(); });
    clickEdit(dialog);
    QVERIFY(script.isDone());
    QCOMPARE(watermarks(dialog).currentIndex(), index);
}

QTEST_MAIN(ImageProfileDialogPreviewTest)
#include "ImageProfileDialogPreviewTest.moc"
