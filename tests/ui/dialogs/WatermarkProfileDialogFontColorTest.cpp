#include "ui/dialogs/WatermarkProfileDialog.h"

#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "ui/widgets/ColorLabel.h"
#include "ui/widgets/FontLabel.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QFontDialog>
#include <QTest>

using testsupport::child;
using testsupport::click;
using testsupport::ModalScript;
using testsupport::TestProfiles;
using testsupport::textOf;

class WatermarkProfileDialogFontColorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pickedColor_isOpaque_data();
    void pickedColor_isOpaque();
    void cancelledColor_changesNothing();
    void font_isPicked();
    void cancelledFont_changesNothing();
};

void WatermarkProfileDialogFontColorTest::pickedColor_isOpaque_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QColor>("before");
    QTest::newRow("text") << QByteArray("textColorLabel") << QByteArray("textColorButton")
                          << QColor(255, 255, 255, 225);
    QTest::newRow("shadow") << QByteArray("shadowColorLabel") << QByteArray("shadowColorButton")
                            << QColor(0, 0, 0, 175);
}

void WatermarkProfileDialogFontColorTest::pickedColor_isOpaque()
{
    QFETCH(QByteArray, label);
    QFETCH(QByteArray, button);
    QFETCH(QColor, before);
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    const auto& swatch = child<ColorLabel>(dialog, label.constData());
    QCOMPARE(swatch.colorValue(), before);

    ModalScript script;
    QColor offered;
    QColorDialog::ColorDialogOptions options;
    script.expect<QColorDialog>([&](QColorDialog& picker) {
        offered = picker.currentColor();
        options = picker.options();
        picker.accept();
    });
    click(dialog, button.constData());
    QVERIFY(script.isDone());
    // Even the current colour loses its alpha.
    QCOMPARE(offered.rgb(), before.rgb());
    QVERIFY(!options.testFlag(QColorDialog::ShowAlphaChannel));
    QCOMPARE(swatch.colorValue(), QColor(before.rgb()));

    script.expect<QColorDialog>([](QColorDialog& picker) {
        picker.setCurrentColor(QColor(12, 34, 56));
        picker.accept();
    });
    click(dialog, button.constData());
    QVERIFY(script.isDone());
    QCOMPARE(swatch.colorValue(), QColor(12, 34, 56, 255));
}

void WatermarkProfileDialogFontColorTest::cancelledColor_changesNothing()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    ModalScript script;
    for (const char* const button : {"textColorButton", "shadowColorButton"}) {
        script.expect<QColorDialog>([](QColorDialog& picker) {
            picker.setCurrentColor(Qt::green);
            picker.reject();
        });
        click(dialog, button);
    }
    QVERIFY(script.isDone());
    QCOMPARE(child<ColorLabel>(dialog, "textColorLabel").colorValue(), QColor(255, 255, 255, 225));
    QCOMPARE(child<ColorLabel>(dialog, "shadowColorLabel").colorValue(), QColor(0, 0, 0, 175));
}

void WatermarkProfileDialogFontColorTest::font_isPicked()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(textOf("mine"));
    profile.setTextFont(QFont(textOf("DejaVu Sans"), 20));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    ModalScript script;
    QFont offered;
    script.expect<QFontDialog>([&offered](QFontDialog& picker) {
        offered = picker.currentFont();
        picker.setCurrentFont(QFont(textOf("DejaVu Sans"), 36));
        picker.accept();
    });
    click(dialog, "textFontButton");
    QVERIFY(script.isDone());
    QCOMPARE(offered.pointSize(), 20);
    const auto& label = child<FontLabel>(dialog, "textFontLabel");
    QCOMPARE(label.fontValue().pointSize(), 36);
    QCOMPARE(label.text(), textOf("DejaVu Sans, 36pt"));
}

void WatermarkProfileDialogFontColorTest::cancelledFont_changesNothing()
{
    const TestProfiles profiles;
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(nullptr);
    ModalScript script;
    script.expect<QFontDialog>([](QFontDialog& picker) {
        picker.setCurrentFont(QFont(textOf("DejaVu Sans"), 36));
        picker.reject();
    });
    click(dialog, "textFontButton");
    QVERIFY(script.isDone());
    QCOMPARE(child<FontLabel>(dialog, "textFontLabel").text(), textOf("Times, 12pt"));
}

QTEST_MAIN(WatermarkProfileDialogFontColorTest)
#include "WatermarkProfileDialogFontColorTest.moc"
