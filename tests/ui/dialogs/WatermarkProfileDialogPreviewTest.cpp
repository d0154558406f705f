#include "ui/dialogs/WatermarkProfileDialog.h"

#include "imaging/ImageProcessingManager.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/Patience.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "tests/ui/support/Painting.h"
#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/ImageView.h"

#include <QColorDialog>
#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTextEdit>

using testsupport::child;
using testsupport::patienceMs;
using testsupport::ProcessingCounter;
using testsupport::TestProfiles;
using testsupport::textOf;

namespace {

constexpr QSize viewSize{400, 300};
/// Twice the dialog's delay before it renders.
constexpr int longWhileMs = 400;
QImage plain(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB888);
    image.fill(color);
    return image;
}

QImage shown(const WatermarkProfileDialog& dialog)
{
    return testsupport::paintedAt(child<ImageView>(dialog, "watermarkPositioner"), viewSize);
}

/// The appearance of the preview for this image.
QImage asShown(const QImage& image)
{
    ImageView view;
    view.setImage(image);
    view.resize(viewSize);
    return testsupport::paintedBy(view);
}

/// A profile with a red picture of 40 by 30 pixels.
WatermarkProfile& addPictureProfile(const TestProfiles& profiles, const char* name)
{
    auto& profile = profiles.add<WatermarkProfile>(QLatin1String(name));
    const QString file = QLatin1String(name) + textOf(".png");
    if (!plain({40, 30}, Qt::red).save(WatermarkProfile::pathForImage(file))) {
        qFatal("The picture cannot be written");
    }
    profile.setWatermarkType(1);
    profile.setImageFile(file);
    profile.setXMargin(10);
    profile.setYMargin(20);
    return profile;
}

QImage withRedAt(QPoint position)
{
    QImage image = plain(viewSize, Qt::blue);
    QPainter(&image).fillRect(QRect(position, QSize(40, 30)), Qt::red);
    return image;
}

} // namespace

class WatermarkProfileDialogPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_isWhereItWillBe();
    void everyAlignment_isShown_data();
    void everyAlignment_isShown();
    void text_isWhatThePipelineDraws();
    void imageProfile_isApplied();
    void samplePicture_isShown_untilThereIsAFrame();
    void selectedProfile_isShown();
    void changes_areRenderedOnce_afterTheLast();
    void pickedColor_isShownWithTheNextChange();
    void goneAndTooLargePictures_leaveTheImage_data();
    void goneAndTooLargePictures_leaveTheImage();
    void temporaryProfiles_areNotListed();
};

void WatermarkProfileDialogPreviewTest::picture_isWhereItWillBe()
{
    const TestProfiles profiles;
    auto& profile = addPictureProfile(profiles, "where");
    ImageProfile imageProfile(nullptr);
    imageProfile.setSameSizeAsVideo(true);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(plain(viewSize, Qt::blue), &imageProfile);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(withRedAt({350, 250})), patienceMs);
    QCOMPARE(shown(dialog).pixelColor(350, 250), QColor(Qt::red));
    QCOMPARE(shown(dialog).pixelColor(349, 250), QColor(Qt::blue));
}

void WatermarkProfileDialogPreviewTest::everyAlignment_isShown_data()
{
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<QPoint>("position");
    QTest::newRow("Top Left") << textOf("Top Left") << QPoint(10, 20);
    QTest::newRow("Top") << textOf("Top") << QPoint(180, 20);
    QTest::newRow("Top Right") << textOf("Top Right") << QPoint(350, 20);
    QTest::newRow("Left") << textOf("Left") << QPoint(10, 135);
    QTest::newRow("Center") << textOf("Center") << QPoint(180, 135);
    QTest::newRow("Right") << textOf("Right") << QPoint(350, 135);
    QTest::newRow("Bottom Left") << textOf("Bottom Left") << QPoint(10, 250);
    QTest::newRow("Bottom") << textOf("Bottom") << QPoint(180, 250);
}

void WatermarkProfileDialogPreviewTest::everyAlignment_isShown()
{
    QFETCH(QString, alignment);
    QFETCH(QPoint, position);
    const TestProfiles profiles;
    auto& profile = addPictureProfile(profiles, "aligned");
    ImageProfile imageProfile(nullptr);
    imageProfile.setSameSizeAsVideo(true);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(plain(viewSize, Qt::blue), &imageProfile);
    child<QComboBox>(dialog, "alignmentComboBox").setCurrentText(alignment);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(withRedAt(position)), patienceMs);
}

void WatermarkProfileDialogPreviewTest::text_isWhatThePipelineDraws()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setText(textOf("Hello"));
    profile.setTextFont(QFont(textOf("DejaVu Sans"), 40));
    profile.setTextShadowXOffset(3);
    ImageProfile imageProfile(nullptr);
    QImage example = plain({800, 600}, Qt::darkGreen);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(example, &imageProfile);
    auto* const pipeline = ImageProcessingManager::instance();
    const QImage expected = asShown(pipeline->processImage(example, &imageProfile, &profile));
    QVERIFY(expected != asShown(plain({640, 480}, Qt::darkGreen)));
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), expected, patienceMs);
    // As entered, not as saved.
    child<QTextEdit>(dialog, "textTextEdit").setPlainText(QString());
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(plain({640, 480}, Qt::darkGreen)), patienceMs);
    QCOMPARE(profile.text(), textOf("Hello"));
}

void WatermarkProfileDialogPreviewTest::imageProfile_isApplied()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    ImageProfile imageProfile(nullptr);
    imageProfile.setImageBrightness(60);
    imageProfile.setImageWidth(300);
    imageProfile.setImageHeight(300);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(plain({200, 200}, QColor(10, 20, 30)), &imageProfile);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(plain({300, 300}, QColor(70, 80, 90))),
                              patienceMs);
}

void WatermarkProfileDialogPreviewTest::samplePicture_isShown_untilThereIsAFrame()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    // Opaque, even if it is darkened.
    const QImage sample =
        QImage(textOf(":/Images/watermarkBackground.jpg")).convertToFormat(QImage::Format_RGB888);
    QVERIFY(!sample.isNull());
    ImageProfile defaults(nullptr);
    auto* const pipeline = ImageProcessingManager::instance();
    QTRY_COMPARE_WITH_TIMEOUT(
        shown(dialog), asShown(pipeline->processImage(sample, &defaults, nullptr)), patienceMs);
    ImageProfile dark(nullptr);
    dark.setImageBrightness(-80);
    dialog.setExampleImage(QImage(), &dark);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog),
                              asShown(pipeline->processImage(sample, &dark, nullptr)), patienceMs);
}

void WatermarkProfileDialogPreviewTest::selectedProfile_isShown()
{
    const TestProfiles profiles;
    profiles.add<WatermarkProfile>(textOf("no text"));
    addPictureProfile(profiles, "picked");
    ImageProfile imageProfile(nullptr);
    imageProfile.setSameSizeAsVideo(true);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    dialog.setExampleImage(plain(viewSize, Qt::blue), &imageProfile);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(plain(viewSize, Qt::blue)), patienceMs);
    testsupport::pickProfile(dialog, 1);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(withRedAt({350, 250})), patienceMs);
}

void WatermarkProfileDialogPreviewTest::changes_areRenderedOnce_afterTheLast()
{
    const TestProfiles profiles;
    auto& profile = addPictureProfile(profiles, "often");
    ImageProfile imageProfile(nullptr);
    imageProfile.setSameSizeAsVideo(true);
    const ProcessingCounter processed;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(plain(viewSize, Qt::blue), &imageProfile);
    QCOMPARE(processed.count(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(processed.count(), 1, patienceMs);

    auto& margin = child<QSpinBox>(dialog, "xMarginSpinBox");
    for (int value = 11; value <= 50; ++value) {
        margin.setValue(value);
        child<QSlider>(dialog, "alphaSlider").setValue(305 - value);
    }
    dialog.updateWatermark();
    QCOMPARE(processed.count(), 1);
    QTRY_COMPARE_WITH_TIMEOUT(processed.count(), 2, patienceMs);
    QTest::qWait(longWhileMs);
    QCOMPARE(processed.count(), 2);
    QCOMPARE(shown(dialog), asShown(withRedAt({310, 250})));
}

void WatermarkProfileDialogPreviewTest::pickedColor_isShownWithTheNextChange()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    const ProcessingCounter processed;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QTRY_COMPARE_WITH_TIMEOUT(processed.count(), 1, patienceMs);
    testsupport::ModalScript script;
    script.expect<QColorDialog>([](QColorDialog& picker) {
        picker.setCurrentColor(Qt::green);
        picker.accept();
    });
    child<QPushButton>(dialog, "textColorButton").click();
    QVERIFY(script.isDone());
    QTest::qWait(longWhileMs);
    QCOMPARE(processed.count(), 1);
    child<QTextEdit>(dialog, "textTextEdit").setPlainText(textOf("x"));
    QTRY_COMPARE_WITH_TIMEOUT(processed.count(), 2, patienceMs);
}

void WatermarkProfileDialogPreviewTest::goneAndTooLargePictures_leaveTheImage_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("gone") << textOf("gone.png");
    QTest::newRow("20,000 pixels a side") << textOf("huge.png");
}

void WatermarkProfileDialogPreviewTest::goneAndTooLargePictures_leaveTheImage()
{
    QFETCH(QString, file);
    const TestProfiles profiles;
    auto& profile = addPictureProfile(profiles, "base");
    QImage huge(20000, 20000, QImage::Format_Mono);
    huge.fill(0);
    QVERIFY(huge.save(WatermarkProfile::pathForImage(textOf("huge.png"))));
    profile.setImageFile(file);
    ImageProfile imageProfile(nullptr);
    imageProfile.setSameSizeAsVideo(true);
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    dialog.setExampleImage(plain(viewSize, Qt::blue), &imageProfile);
    QTRY_COMPARE_WITH_TIMEOUT(shown(dialog), asShown(plain(viewSize, Qt::blue)), patienceMs);
    // The profile keeps the name of its picture.
    child<QPushButton>(dialog, "saveButton").click();
    QCOMPARE(profile.imageFile(), file);
}

void WatermarkProfileDialogPreviewTest::temporaryProfiles_areNotListed()
{
    const TestProfiles profiles;
    const ProcessingCounter processed;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    QTRY_COMPARE_WITH_TIMEOUT(processed.count(), 1, patienceMs);
    QVERIFY(WatermarkProfile::profileManager()->profiles().isEmpty());
}

QTEST_MAIN(WatermarkProfileDialogPreviewTest)
#include "WatermarkProfileDialogPreviewTest.moc"
