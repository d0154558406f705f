#include "profiles/ImageProfile.h"
#include "profiles/WatermarkProfile.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/dialogs/WatermarkProfileDialog.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

using testsupport::child;
using testsupport::TestProfiles;

namespace {

/// A small screen less a title bar.
constexpr QSize SmallScreen{1024, 728};

/// From the top of the highest letter to the bottom of the lowest, in the widget's font: less than
/// a line, which has empty rows above and below.
int glyphHeight(const QWidget& widget)
{
    return widget.fontMetrics().tightBoundingRect(QStringLiteral("Ågq|")).height();
}

/// What cannot show its whole text in the room that it has.
QStringList cutOff(const QDialog& dialog)
{
    QStringList found;
    const auto widgets = dialog.findChildren<QWidget*>();
    for (const QWidget* const widget : widgets) {
        if (!widget->isVisible())
            continue;
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const bool isText = (label && !label->wordWrap() && !label->text().isEmpty()) ||
                            qobject_cast<const QAbstractButton*>(widget);
        const bool isField = qobject_cast<const QAbstractSpinBox*>(widget) ||
                             qobject_cast<const QComboBox*>(widget) ||
                             qobject_cast<const QLineEdit*>(widget);
        const bool tooNarrow = isText && widget->width() < widget->sizeHint().width();
        const bool tooLow = (isText || isField) && widget->height() < glyphHeight(*widget);
        if (tooNarrow || tooLow)
            found += widget->objectName();
    }
    return found;
}

void addFontSizes()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("normal font") << 1.0;
    QTest::newRow("large font") << 1.5;
}

} // namespace

/// How the dialogs look in the program's style.
class DialogLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void watermarkDialog_showsEverything_atItsLeastSize_data();
    void watermarkDialog_showsEverything_atItsLeastSize();
    void watermarkDialog_keepsItsSize_whateverTheType();
    void imageProfileDialog_showsEverything_atItsLeastSize_data();
    void imageProfileDialog_showsEverything_atItsLeastSize();
    void imageProfileDialog_keepsItsSize_withTheVideosSize();

private:
    void enlargeFont(double factor);

    QFont m_font;
};

void DialogLayoutTest::initTestCase()
{
    QFile style(QStringLiteral(":/Styles.qss"));
    QVERIFY(style.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromLatin1(style.readAll()));
    m_font = QApplication::font();
}

void DialogLayoutTest::cleanup()
{
    QApplication::setFont(m_font);
}

void DialogLayoutTest::enlargeFont(double factor)
{
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * factor);
    QApplication::setFont(font);
}

void DialogLayoutTest::watermarkDialog_showsEverything_atItsLeastSize_data()
{
    addFontSizes();
}

void DialogLayoutTest::watermarkDialog_showsEverything_atItsLeastSize()
{
    QFETCH(double, factor);
    enlargeFont(factor);
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(QStringLiteral("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    const QSize least = dialog.minimumSizeHint();
    QVERIFY(least.width() <= SmallScreen.width());
    QVERIFY(least.height() <= SmallScreen.height());
    dialog.resize(least);
    for (const int tab : {0, 1}) {
        child<QTabWidget>(dialog, "tabWidget").setCurrentIndex(tab);
        QCoreApplication::processEvents();
        QCOMPARE(dialog.size(), least);
        QCOMPARE(cutOff(dialog), QStringList());
    }
}

void DialogLayoutTest::watermarkDialog_keepsItsSize_whateverTheType()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(QStringLiteral("mine"));
    profile.setImageFile(QStringLiteral("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    const QSize least = dialog.minimumSizeHint();
    const QRect tabs = child<QTabWidget>(dialog, "tabWidget").geometry();
    child<QAbstractButton>(dialog, "watermarkTypeImageRadioButton").click();
    QCoreApplication::processEvents();
    QCOMPARE(dialog.minimumSizeHint(), least);
    QCOMPARE(child<QTabWidget>(dialog, "tabWidget").geometry(), tabs);
}

void DialogLayoutTest::imageProfileDialog_showsEverything_atItsLeastSize_data()
{
    addFontSizes();
}

void DialogLayoutTest::imageProfileDialog_showsEverything_atItsLeastSize()
{
    QFETCH(double, factor);
    enlargeFont(factor);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(QStringLiteral("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    const QSize least = dialog.minimumSizeHint();
    QVERIFY(least.width() <= SmallScreen.width());
    QVERIFY(least.height() <= SmallScreen.height());
    dialog.resize(least);
    QCoreApplication::processEvents();
    QCOMPARE(cutOff(dialog), QStringList());
}

void DialogLayoutTest::imageProfileDialog_keepsItsSize_withTheVideosSize()
{
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(QStringLiteral("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setVideoDimensions(1920, 1080);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    const QSize least = dialog.minimumSizeHint();
    const QRect editor = child<QLineEdit>(dialog, "imageWidthLineEdit").geometry();
    child<QAbstractButton>(dialog, "sameSizeAsVideoCheckbox").click();
    QCoreApplication::processEvents();
    QCOMPARE(dialog.minimumSizeHint(), least);
    const auto displays = dialog.findChildren<QLineEdit*>();
    QVERIFY(std::any_of(displays.begin(), displays.end(), [editor](const QLineEdit* edit) {
        return edit->isVisible() && !edit->isEnabled() && edit->geometry() == editor;
    }));
}

QTEST_MAIN(DialogLayoutTest)
#include "DialogLayoutTest.moc"
