#include "ui/dialogs/ImageFiltersDialog.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "tests/ui/support/ShownText.h"
#include "ui/widgets/ComparisonView.h"

#include <QComboBox>
#include <QPushButton>
#include <QSlider>
#include <QTest>

using testsupport::TestProfiles;

namespace {

/// Moves the handle like a drag.
void drag(const ImageFiltersDialog& dialog, const char* name, int position)
{
    auto* slider = dialog.findChild<QSlider*>(QLatin1String(name));
    slider->setSliderDown(true);
    slider->setSliderPosition(position);
    slider->setSliderDown(false);
}

QImage grey()
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(QColor(100, 100, 100));
    return image;
}

/// The brightness of the picture shown, left (0) to right (1) in the middle of its height.
int shownAt(const ImageFiltersDialog& dialog, double place)
{
    auto* const view = dialog.findChild<ComparisonView*>();
    const QImage shown = view->grab().toImage();
    const int width = shown.height() * 64 / 48;
    const int left = (shown.width() - width) / 2;
    return qGray(shown.pixel(left + int(place * width), shown.height() / 2));
}

} // namespace

class ImageFiltersDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void form_hasItsTexts();
    void controls_haveNames_withoutSeeingThem();
    void picture_isDivided_beforeAndAfter();
    void values_beginAsInTheProfile();
    void values_goIntoTheProfile_onlyWhenApplied();
    void nothingCanBeApplied_withoutAProfile();
    void profile_isNamedAsItIs_data();
    void profile_isNamedAsItIs();
    void draggedValues_outliveTheDialog();
};

void ImageFiltersDialogTest::init()
{
    ImageFiltersDialog::contrast = 1.0;
    ImageFiltersDialog::brightness = 0.0F;
}

void ImageFiltersDialogTest::form_hasItsTexts()
{
    const ImageFiltersDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Compare Filters"));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("applyButton"))->text(),
             QStringLiteral("Apply to Profile"));
}

void ImageFiltersDialogTest::controls_haveNames_withoutSeeingThem()
{
    const ImageFiltersDialog dialog(nullptr);
    for (const char* name :
         {"comparisonView", "brightnessSlider", "contrastSlider", "filterComboBox"}) {
        QVERIFY2(!dialog.findChild<QWidget*>(QLatin1String(name))->accessibleName().isEmpty(),
                 name);
    }
}

void ImageFiltersDialogTest::picture_isDivided_beforeAndAfter()
{
    ImageFiltersDialog dialog(nullptr);
    dialog.setFrame(grey());
    dialog.resize(500, 600);
    dialog.show();
    QCOMPARE(shownAt(dialog, 0.25), 100);
    QCOMPARE(shownAt(dialog, 0.75), 100);
    drag(dialog, "brightnessSlider", 140);
    QTRY_COMPARE(shownAt(dialog, 0.75), 140);
    QCOMPARE(shownAt(dialog, 0.25), 100);
    auto* const view = dialog.findChild<ComparisonView*>();
    view->setDivider(0.1);
    QCOMPARE(shownAt(dialog, 0.25), 140);
}

void ImageFiltersDialogTest::values_beginAsInTheProfile()
{
    ImageProfile profile;
    profile.setSameSizeAsVideo(true);
    profile.setImageBrightness(-30);
    profile.setResizeFilter(ImageProfile::LanczosFilter);
    ImageFiltersDialog dialog(nullptr);
    dialog.setFrame(grey());
    dialog.setProfile(&profile);
    QCOMPARE(dialog.findChild<QSlider*>(QStringLiteral("brightnessSlider"))->value(), 70);
    QCOMPARE(dialog.findChild<QComboBox*>()->currentText(), QStringLiteral("Lanczos"));
    dialog.resize(500, 600);
    dialog.show();
    QCOMPARE(shownAt(dialog, 0.75), 70);
    QCOMPARE(shownAt(dialog, 0.25), 100);
}

void ImageFiltersDialogTest::values_goIntoTheProfile_onlyWhenApplied()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(QStringLiteral("mine"));
    {
        ImageFiltersDialog dialog(nullptr);
        dialog.setProfile(&profile);
        drag(dialog, "brightnessSlider", 120);
        dialog.findChild<QPushButton*>(QStringLiteral("closeButton"))->click();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));
        QCOMPARE(profile.imageBrightness(), 0);
    }
    ImageFiltersDialog dialog(nullptr);
    dialog.setProfile(&profile);
    drag(dialog, "brightnessSlider", 120);
    drag(dialog, "contrastSlider", 90);
    dialog.findChild<QComboBox*>()->setCurrentIndex(2);
    dialog.findChild<QPushButton*>(QStringLiteral("applyButton"))->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(profile.imageBrightness(), 20);
    QCOMPARE(profile.imageContrast(), -10);
    QCOMPARE(profile.resizeFilter(), int(ImageProfile::BicubicFilter));
    ProfileManager& manager = *ImageProfile::profileManager();
    const QList<BaseProfile*> old = manager.profiles();
    manager.loadProfilesFromFile();
    const auto* const stored = static_cast<const ImageProfile*>(manager.profileForId(profile.id()));
    const int brightness = stored->imageBrightness();
    qDeleteAll(old);
    QCOMPARE(brightness, 20);
}

void ImageFiltersDialogTest::nothingCanBeApplied_withoutAProfile()
{
    const ImageFiltersDialog dialog(nullptr);
    QVERIFY(!dialog.findChild<QPushButton*>(QStringLiteral("applyButton"))->isEnabled());
}

void ImageFiltersDialogTest::profile_isNamedAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ampersand") << "Tom & Jerry";
    QTest::newRow("markup") << "a<b>";
}

void ImageFiltersDialogTest::profile_isNamedAsItIs()
{
    QFETCH(const QString, name);
    const TestProfiles profiles;
    ImageFiltersDialog dialog(nullptr);
    dialog.setProfile(&profiles.add<ImageProfile>(name));
    const auto& button = *dialog.findChild<QPushButton*>(QStringLiteral("applyButton"));
    const QString shown = testsupport::shownText(button.toolTip());
    QVERIFY2(shown.contains(name), qPrintable(shown));
}

void ImageFiltersDialogTest::draggedValues_outliveTheDialog()
{
    {
        const ImageFiltersDialog dialog(nullptr);
        drag(dialog, "brightnessSlider", 63);
        drag(dialog, "contrastSlider", 150);
        dialog.findChild<QSlider*>(QStringLiteral("contrastSlider"))->setValue(10);
    }
    QCOMPARE(ImageFiltersDialog::brightness, -37.0F);
    QCOMPARE(ImageFiltersDialog::contrast, 1.5);
}

QTEST_MAIN(ImageFiltersDialogTest)
#include "ImageFiltersDialogTest.moc"
