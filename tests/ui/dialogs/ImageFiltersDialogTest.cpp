#include "ui/dialogs/ImageFiltersDialog.h"

#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTest>

namespace {

/// Moves the handle as a drag does: sliders that the program sets do not count as moved.
void drag(const ImageFiltersDialog& dialog, const char* name, int position)
{
    auto* slider = dialog.findChild<QSlider*>(QLatin1String(name));
    slider->setSliderDown(true);
    slider->setSliderPosition(position);
    slider->setSliderDown(false);
}

} // namespace

class ImageFiltersDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void form_hasItsTexts();
    void sliders_haveNames_withoutSeeingThem();
    void values_areNeutral_whereSlidersStart();
    void brightness_followsItsSlider_data();
    void brightness_followsItsSlider();
    void contrast_followsItsSlider_data();
    void contrast_followsItsSlider();
    void values_stay_whenProgramSetsSliders();
    void values_outliveTheDialog();
    void otherControls_changeNothing();
};

void ImageFiltersDialogTest::init()
{
    ImageFiltersDialog::contrast = 1.0;
    ImageFiltersDialog::brightness = 0.0F;
}

void ImageFiltersDialogTest::form_hasItsTexts()
{
    const ImageFiltersDialog dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Dialog"));
    QStringList texts;
    const auto labels = dialog.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        texts += label->text();
    }
    QCOMPARE(texts, (QStringList{QStringLiteral("Brightness"), QStringLiteral("Contrast"),
                                 QStringLiteral("Gamma"), QStringLiteral("Sharpen")}));
    QCOMPARE(dialog.findChild<QPushButton*>(QStringLiteral("pushButton"))->text(),
             QStringLiteral("PushButton"));
}

void ImageFiltersDialogTest::sliders_haveNames_withoutSeeingThem()
{
    const ImageFiltersDialog dialog(nullptr);
    const auto sliders = dialog.findChildren<QSlider*>();
    QCOMPARE(sliders.size(), 4);
    for (const QSlider* slider : sliders) {
        QVERIFY2(!slider->accessibleName().isEmpty(), qPrintable(slider->objectName()));
    }
}

void ImageFiltersDialogTest::values_areNeutral_whereSlidersStart()
{
    const ImageFiltersDialog dialog(nullptr);
    for (const char* name : {"brightnessSlider", "contrastSlider"}) {
        drag(dialog, name, 0);
        drag(dialog, name, 100);
        QCOMPARE(dialog.findChild<QSlider*>(QLatin1String(name))->value(), 100);
    }
    QCOMPARE(ImageFiltersDialog::brightness, 0.0F);
    QCOMPARE(ImageFiltersDialog::contrast, 1.0);
    const ImageFiltersDialog fresh(nullptr);
    QCOMPARE(fresh.findChild<QSlider*>(QStringLiteral("brightnessSlider"))->value(), 100);
    QCOMPARE(fresh.findChild<QSlider*>(QStringLiteral("contrastSlider"))->value(), 100);
}

void ImageFiltersDialogTest::brightness_followsItsSlider_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<float>("brightness");
    QTest::newRow("darkest") << 0 << -100.0F;
    QTest::newRow("darker") << 63 << -37.0F;
    QTest::newRow("brightest") << 200 << 100.0F;
}

void ImageFiltersDialogTest::brightness_followsItsSlider()
{
    QFETCH(int, position);
    QFETCH(float, brightness);
    const ImageFiltersDialog dialog(nullptr);
    drag(dialog, "brightnessSlider", position);
    QCOMPARE(ImageFiltersDialog::brightness, brightness);
    QCOMPARE(ImageFiltersDialog::contrast, 1.0);
}

void ImageFiltersDialogTest::contrast_followsItsSlider_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<double>("contrast");
    QTest::newRow("none") << 0 << 0.0;
    QTest::newRow("more") << 150 << 1.5;
    QTest::newRow("fraction") << 33 << 0.33;
}

void ImageFiltersDialogTest::contrast_followsItsSlider()
{
    QFETCH(int, position);
    QFETCH(double, contrast);
    const ImageFiltersDialog dialog(nullptr);
    drag(dialog, "contrastSlider", position);
    QCOMPARE(ImageFiltersDialog::contrast, contrast);
    QCOMPARE(ImageFiltersDialog::brightness, 0.0F);
}

void ImageFiltersDialogTest::values_stay_whenProgramSetsSliders()
{
    const ImageFiltersDialog dialog(nullptr);
    dialog.findChild<QSlider*>(QStringLiteral("brightnessSlider"))->setValue(0);
    dialog.findChild<QSlider*>(QStringLiteral("contrastSlider"))->setValue(150);
    QCOMPARE(ImageFiltersDialog::brightness, 0.0F);
    QCOMPARE(ImageFiltersDialog::contrast, 1.0);
}

void ImageFiltersDialogTest::values_outliveTheDialog()
{
    {
        const ImageFiltersDialog dialog(nullptr);
        drag(dialog, "brightnessSlider", 120);
    }
    QCOMPARE(ImageFiltersDialog::brightness, 20.0F);
    const ImageFiltersDialog next(nullptr);
    QCOMPARE(ImageFiltersDialog::brightness, 20.0F);
}

void ImageFiltersDialogTest::otherControls_changeNothing()
{
    ImageFiltersDialog dialog(nullptr);
    drag(dialog, "gammaSlider", 7);
    drag(dialog, "sharpenslider", 7);
    dialog.findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    dialog.updateImages();
    QCOMPARE(ImageFiltersDialog::brightness, 0.0F);
    QCOMPARE(ImageFiltersDialog::contrast, 1.0);
    QCOMPARE(dialog.result(), 0);
}

QTEST_MAIN(ImageFiltersDialogTest)
#include "ImageFiltersDialogTest.moc"
