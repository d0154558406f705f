#include "profiles/ImageProfile.h"
#include "profiles/WatermarkProfile.h"
#include "tests/support/TestDir.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/DialogFit.h"
#include "tests/ui/dialogs/support/TestProfiles.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"
#include "ui/dialogs/WatermarkProfileDialog.h"
#include "ui/mainwindow/BestFramesDialog.h"
#include "ui/mainwindow/Shortcuts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <vector>

using testsupport::child;
using testsupport::misfits;
using testsupport::ProgramLook;
using testsupport::TestProfiles;

namespace {

void addFontSizes()
{
    QTest::addColumn<double>("factor");
    QTest::newRow("normal font") << 1.0;
    QTest::newRow("large font") << testsupport::largeFont;
}

bool isInsideTheScreen(const QWidget& window)
{
    const QSize room = window.screen()->availableSize();
    return window.width() <= room.width() && window.height() <= room.height();
}

} // namespace

/// Checks the dialogs in the program's style.
class DialogLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDialog_hasOneDefaultButton_andEndsByEscape();
    void smallDialogs_fitASmallScreen_data();
    void smallDialogs_fitASmallScreen();
    void watermarkDialog_showsEverything_atItsLeastSize_data();
    void watermarkDialog_showsEverything_atItsLeastSize();
    void watermarkDialog_keepsItsSize_whateverTheType();
    void imageProfileDialog_showsEverything_atItsLeastSize_data();
    void imageProfileDialog_showsEverything_atItsLeastSize();
    void imageProfileDialog_keepsItsSize_withTheVideosSize();
    void bestFramesDialog_showsEverything_atItsLeastSize_data();
    void bestFramesDialog_showsEverything_atItsLeastSize();
    void pageOfKeys_showsEverything_atItsLeastSize_data();
    void pageOfKeys_showsEverything_atItsLeastSize();
};

void DialogLayoutTest::everyDialog_hasOneDefaultButton_andEndsByEscape()
{
    const TestProfiles profiles;
    std::vector<std::unique_ptr<QDialog>> dialogs;
    dialogs.push_back(std::make_unique<AboutDialog>(nullptr));
    dialogs.push_back(std::make_unique<FileNameProfileDialog>(nullptr));
    dialogs.push_back(std::make_unique<ImageFiltersDialog>(nullptr));
    dialogs.push_back(std::make_unique<ImageProfileDialog>(nullptr));
    dialogs.push_back(std::make_unique<WatermarkProfileDialog>(nullptr));
    for (const auto& dialog : dialogs) {
        const char* const name = dialog->metaObject()->className();
        QVERIFY2(testsupport::showActive(*dialog), name);
        const auto buttons = dialog->findChildren<QPushButton*>();
        const auto defaults =
            std::count_if(buttons.cbegin(), buttons.cend(),
                          [](const QPushButton* button) { return button->isDefault(); });
        QVERIFY2(defaults == 1, name);
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY2(!dialog->isVisible(), name);
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }
}

void DialogLayoutTest::smallDialogs_fitASmallScreen_data()
{
    addFontSizes();
}

void DialogLayoutTest::smallDialogs_fitASmallScreen()
{
    QFETCH(double, factor);
    const ProgramLook look(factor);
    const TestProfiles profiles;
    AboutDialog about(nullptr);
    QCOMPARE(misfits(about), QString());
    FileNameProfileDialog names(nullptr);
    QCOMPARE(misfits(names), QString());
    ImageFiltersDialog filters(nullptr);
    QCOMPARE(misfits(filters), QString());
}

void DialogLayoutTest::watermarkDialog_showsEverything_atItsLeastSize_data()
{
    addFontSizes();
}

void DialogLayoutTest::watermarkDialog_showsEverything_atItsLeastSize()
{
    QFETCH(double, factor);
    const ProgramLook look(factor);
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(QStringLiteral("mine"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    for (const int tab : {0, 1}) {
        child<QTabWidget>(dialog, "tabWidget").setCurrentIndex(tab);
        QCOMPARE(misfits(dialog), QString());
    }
}

void DialogLayoutTest::watermarkDialog_keepsItsSize_whateverTheType()
{
    const ProgramLook look(1.0);
    const TestProfiles profiles;
    auto& profile = profiles.add<WatermarkProfile>(QStringLiteral("mine"));
    profile.setImageFile(QStringLiteral("some.png"));
    WatermarkProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    QCoreApplication::processEvents();
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
    const ProgramLook look(factor);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(QStringLiteral("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setSelectedProfile(&profile);
    QCOMPARE(misfits(dialog), QString());
}

void DialogLayoutTest::imageProfileDialog_keepsItsSize_withTheVideosSize()
{
    const ProgramLook look(1.0);
    const TestProfiles profiles;
    auto& profile = profiles.add<ImageProfile>(QStringLiteral("mine"));
    ImageProfileDialog dialog(nullptr);
    dialog.setVideoDimensions(1920, 1080);
    dialog.setSelectedProfile(&profile);
    QVERIFY(testsupport::showActive(dialog));
    QCoreApplication::processEvents();
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

void DialogLayoutTest::bestFramesDialog_showsEverything_atItsLeastSize_data()
{
    addFontSizes();
}

/// With what it says of a video that cannot be read.
void DialogLayoutTest::bestFramesDialog_showsEverything_atItsLeastSize()
{
    QFETCH(double, factor);
    const ProgramLook look(factor);
    const testsupport::TestDir dir;
    BestFramesDialog dialog;
    const QString video = dir.makeFile(QStringLiteral("Harbour in the Morning.mp4"));
    const auto& label = *dialog.findChild<QLabel*>();
    dialog.propose(video, QtAV::Deinterlacing::Off, {0, 2000});
    QVERIFY(isInsideTheScreen(dialog));
    QVERIFY(label.text().startsWith(QStringLiteral("Looking")));
    QTRY_VERIFY(!label.text().startsWith(QStringLiteral("Looking")));
    QVERIFY(!label.text().isEmpty());
    QCOMPARE(misfits(dialog), QString());
}

void DialogLayoutTest::pageOfKeys_showsEverything_atItsLeastSize_data()
{
    addFontSizes();
}

void DialogLayoutTest::pageOfKeys_showsEverything_atItsLeastSize()
{
    QFETCH(double, factor);
    const ProgramLook look(factor);
    QWidget window;
    QMenuBar bar(&window);
    QAction* const action = bar.addMenu(QStringLiteral("Edit"))->addAction(QStringLiteral("Copy"));
    action->setShortcut(QKeySequence::Copy);
    window.show();
    bool isInside = false;
    QString found = QStringLiteral("never shown");
    QTimer::singleShot(0, &window, [&] {
        auto* const page = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        isInside = isInsideTheScreen(*page);
        found = misfits(*page);
        page->close();
    });
    Shortcuts::showPage(window, bar);
    QVERIFY(isInside);
    QCOMPARE(found, QString());
}

QTEST_MAIN(DialogLayoutTest)
#include "DialogLayoutTest.moc"
