#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/Samples.h"
#include "tests/ui/dialogs/support/DialogDriving.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "tests/ui/mainwindow/OpenWindow.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/dialogs/AboutDialog.h"
#include "ui/dialogs/FileNameProfileDialog.h"
#include "ui/dialogs/ImageFiltersDialog.h"
#include "ui/dialogs/ImageProfileDialog.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QUrl>

using namespace testsupport;

namespace {

int snapshotWidth(OpenWindow& window)
{
    window.find<QAction>("actionCopy_Snapshot").trigger();
    return QApplication::clipboard()->image().width();
}

void click(const QDialog& dialog, const char* button)
{
    child<QPushButton>(dialog, button).click();
}

} // namespace

/// The dialogs that the window opens, and the use of their results. All cases share the profiles,
/// because their managers live as long as the process.
class MainWindowDialogsTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void keepUrl(const QUrl& url) { m_url = url; }

private Q_SLOTS:
    void initTestCase();

    void imageProfile_showsOnTheSnapshot_whileItIsEdited();
    void imageProfile_isTheSelectedOne_onceSaved();
    void imageProfileDialog_knowsTheVideoAndTheFrame();
    void imageProfileDialog_pausesTheVideo();
    void fileNameProfile_namesTheNextFile_onceSaved();
    void fileNameProfile_staysTheSelectedOne_whenItsDialogIsCancelled();

    void batchMode_pausesTheVideo_andKeepsIt();
    void batchMode_listsItsNewProfilesInTheWindow();
    void about_opensAndCloses();
    void filtersTest_pausesTheVideo();
    void documentation_opensTheGuide();

private:
    TestDir m_config;
    QUrl m_url;
};

void MainWindowDialogsTest::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
    const TestSettings settings;
    ImageProfile::profileManager();
    FileNameProfile::profileManager();
}

void MainWindowDialogsTest::imageProfile_showsOnTheSnapshot_whileItIsEdited()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    const int before = snapshotWidth(window);
    bool isShown = false;
    ModalScript script;
    script.expect<ImageProfileDialog>([&](ImageProfileDialog& dialog) {
        child<QLineEdit>(dialog, "imageWidthLineEdit").setText(QStringLiteral("80"));
        isShown = QTest::qWaitFor([&] { return snapshotWidth(window) == 80; }, 20000);
        click(dialog, "cancelButton");
    });
    window.find<QPushButton>("editImageProfileButton").click();
    QVERIFY(script.isDone());
    QVERIFY(isShown);
    QCOMPARE(snapshotWidth(window), before);
    QTRY_VERIFY(window->isActiveWindow());
}

void MainWindowDialogsTest::imageProfile_isTheSelectedOne_onceSaved()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    ModalScript script;
    script.expect<ImageProfileDialog>([](ImageProfileDialog& dialog) {
        typeProfileName(dialog, QStringLiteral("Thumbnails"));
        child<QLineEdit>(dialog, "imageWidthLineEdit").setText(QStringLiteral("96"));
        click(dialog, "saveButton");
    });
    window.find<QPushButton>("editImageProfileButton").click();
    QVERIFY(script.isDone());
    QCOMPARE(window.find<QComboBox>("imageProfileComboBox").currentText(),
             QStringLiteral("Thumbnails"));
    QCOMPARE(snapshotWidth(window), 96);
    QCOMPARE(ImageProfile::profileManager()->lastUsedProfile()->name(),
             QStringLiteral("Thumbnails"));

    window->snapshotButtonPressed();
    QTRY_COMPARE(snapshotWidth(window), 96);
}

void MainWindowDialogsTest::imageProfileDialog_knowsTheVideoAndTheFrame()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    window.find<QAction>("actionCopy_Full_Frame").trigger();
    const QSize size = QApplication::clipboard()->image().size();
    QStringList shown;
    ModalScript script;
    script.expect<ImageProfileDialog>([&](ImageProfileDialog& dialog) {
        child<QAbstractButton>(dialog, "sameSizeAsVideoCheckbox").click();
        for (const QLineEdit* const edit : dialog.findChildren<QLineEdit*>()) {
            if (edit->isVisible() && !edit->isEnabled()) {
                shown.append(edit->text());
            }
        }
        click(dialog, "cancelButton");
    });
    window.find<QPushButton>("editImageProfileButton").click();
    QVERIFY(script.isDone());
    shown.sort();
    QStringList expected{QString::number(size.width()), QString::number(size.height())};
    expected.sort();
    QCOMPARE(shown, expected);
}

void MainWindowDialogsTest::imageProfileDialog_pausesTheVideo()
{
    OpenWindow window;
    window->openVideo(samplePath(clip));
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayedFrame().isValid(), 30000);
    ModalScript script;
    script.expect<ImageProfileDialog>([](ImageProfileDialog& dialog) { dialog.reject(); });
    window->on_editImageProfileButton_clicked();
    QVERIFY(script.isDone());
    QTRY_VERIFY(window.player().isPaused());
}

void MainWindowDialogsTest::fileNameProfile_namesTheNextFile_onceSaved()
{
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("harbour.mp4"))));
    QVERIFY(window.takeSnapshot());
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    QString example;
    ModalScript script;
    script.expect<FileNameProfileDialog>([&](FileNameProfileDialog& dialog) {
        typeProfileName(dialog, QStringLiteral("Numbered"));
        child<QLineEdit>(dialog, "formatPrefixLineEdit").setText(QStringLiteral("my "));
        example = child<QLabel>(dialog, "outputExampleLabel").text();
        click(dialog, "saveButton");
    });
    window.find<QPushButton>("editFileNameProfileButton").click();
    QVERIFY(script.isDone());
    QCOMPARE(example, QStringLiteral("my harbour-00001.jpeg"));
    QCOMPARE(window.find<QComboBox>("filenameProfileComboBox").currentText(),
             QStringLiteral("Numbered"));
    QCOMPARE(window->automaticFileName(window.dir().path()),
             QStringLiteral("my harbour-00001.jpeg"));
    QVERIFY(window.find<QLabel>("nextFileNameLabel").text().startsWith(QLatin1String("my ")));
    QTRY_VERIFY(window->isActiveWindow());
}

void MainWindowDialogsTest::fileNameProfile_staysTheSelectedOne_whenItsDialogIsCancelled()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    const BaseProfile* const before = FileNameProfile::profileManager()->lastUsedProfile();
    const int count = FileNameProfile::profileManager()->profiles().size();
    ModalScript script;
    script.expect<FileNameProfileDialog>([](FileNameProfileDialog& dialog) {
        typeProfileName(dialog, QStringLiteral("Never saved"));
        click(dialog, "cancelButton");
    });
    window->on_editFileNameProfileButton_clicked();
    QVERIFY(script.isDone());
    QCOMPARE(FileNameProfile::profileManager()->lastUsedProfile(), before);
    QCOMPARE(FileNameProfile::profileManager()->profiles().size(), count);
}

void MainWindowDialogsTest::batchMode_pausesTheVideo_andKeepsIt()
{
    OpenWindow window;
    window->openVideo(samplePath(clip));
    QTRY_VERIFY(window.player().displayedFrame().isValid());
    bool isPaused = false;
    ModalScript script;
    script.expect<BatchModeDialog>([&](BatchModeDialog& dialog) {
        isPaused = window.player().isPaused();
        dialog.close();
    });
    window.find<QAction>("actionBatch_Mode").trigger();
    QVERIFY(script.isDone());
    QVERIFY(isPaused);
    QVERIFY(window->isVideoLoaded());
    QTRY_VERIFY(window->isActiveWindow());
}

void MainWindowDialogsTest::batchMode_listsItsNewProfilesInTheWindow()
{
    OpenWindow window;
    ModalScript script;
    script.expect<BatchModeDialog>([](BatchModeDialog& dialog) {
        ProfileManager& manager = *ImageProfile::profileManager();
        BaseProfile* const profile = manager.createProfile();
        profile->setName(QStringLiteral("Made in batch mode"));
        manager.addProfile(profile);
        dialog.close();
    });
    window->on_actionBatch_Mode_triggered();
    QVERIFY(script.isDone());
    const QComboBox& box = window.find<QComboBox>("imageProfileComboBox");
    QVERIFY(box.findText(QStringLiteral("Made in batch mode")) >= 0);
}

void MainWindowDialogsTest::about_opensAndCloses()
{
    OpenWindow window;
    ModalScript script;
    script.expect<AboutDialog>([](AboutDialog& dialog) { dialog.close(); });
    window.find<QAction>("actionAbout").trigger();
    QVERIFY(script.isDone());
    QTRY_VERIFY(window->isActiveWindow());
}

void MainWindowDialogsTest::filtersTest_pausesTheVideo()
{
    OpenWindow window;
    window->openVideo(samplePath(clip));
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayedFrame().isValid(), 30000);
    ModalScript script;
    script.expect<ImageFiltersDialog>([](ImageFiltersDialog& dialog) { dialog.close(); });
    window.find<QAction>("actionImage_Filters_Test").trigger();
    QVERIFY(script.isDone());
    QTRY_VERIFY(window.player().isPaused());
    QTRY_VERIFY(window->isActiveWindow());
}

void MainWindowDialogsTest::documentation_opensTheGuide()
{
    OpenWindow window;
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "keepUrl");
    window.find<QAction>("actionDocumentation").trigger();
    QCOMPARE(m_url, QUrl(QStringLiteral("https://morvantile.example/support")));
    window.find<QAction>("actionCommandLineOptions").trigger();
    QCOMPARE(m_url, QUrl(QStringLiteral("https://morvantile.example/support#command-line")));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
}

QTEST_MAIN(MainWindowDialogsTest)
#include "MainWindowDialogsTest.moc"
