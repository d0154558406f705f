#include "tests/ui/mainwindow/OpenWindow.h"

#include "profiles/FileNameProfile.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Pixels.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/ui/support/ShownText.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

using namespace testsupport;

class MainWindowSnapshotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void snapshot_isTheFrameOnScreen_fullAndProcessed();
    void snapshot_staysAtTheFrame_whenTheVideoGoesOn();
    void snapshot_isNotTaken_whenTheVideoIsClosedBeforeTheAnswer();
    void capture_withoutAPicture_saysSo();
    void captureBeyondTheMemory_saysSo_withFileAndTime();
    void previewBeyondTheMemory_saysSo_andTheNextOneIsShown();
    void copy_doesNothing_withoutASnapshot();
    void imageProfileUpdate_showsAtOnce();
    void darkSnapshot_staysOpaque_whenTheVideoHasNoAlpha();
    void snapshot_keepsAlpha_whenTheVideoHasIt();

    void profiles_areListed_theLastUsedOneIsCurrent();
    void chosenImageProfile_makesTheSnapshotAnew();
    void summary_tellsWhatWillBeSaved();
    void originalSize_isOneClickAway_andKeepsTheOtherSettings();
    void chosenFileNameProfile_isRemembered();

private:
    TestDir m_config;
};

namespace {

/// Enough for the window, but not for an image of 25000 by 25000 pixels.
constexpr rlim_t roomBytes = 512 * 1024 * 1024;

QImage clipboardAfter(OpenWindow& window, const char* action)
{
    QApplication::clipboard()->clear();
    window.find<QAction>(action).trigger();
    return QApplication::clipboard()->image();
}

} // namespace

/// All cases share the profiles of the test program, which live as long as the process.
void MainWindowSnapshotTest::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
    const TestSettings settings;
    addImageProfile(QStringLiteral("Small"), 64);
    auto* const profile = FileNameProfile::profileManager()->createProfile();
    profile->setName(QStringLiteral("Other names"));
    FileNameProfile::profileManager()->addProfile(profile);
}

void MainWindowSnapshotTest::snapshot_isTheFrameOnScreen_fullAndProcessed()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(1000);
    QTRY_COMPARE(window.player().displayPosition(), 1000);
    QVERIFY(window.takeSnapshot());
    QVERIFY(window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QVERIFY(window.find<QAction>("actionSaveSnapshot").isEnabled());
    const QImage full = clipboardAfter(window, "actionCopy_Full_Frame");
    QCOMPARE(full.size(), sampleNamed(clip).displaySize);
    QCOMPARE(frameNumber(full), std::optional<int>(25));
    const QImage processed = clipboardAfter(window, "actionCopy_Snapshot");
    QCOMPARE(processed.width(), 640);
    QCOMPARE(frameNumber(processed), std::optional<int>(25));
}

void MainWindowSnapshotTest::snapshot_staysAtTheFrame_whenTheVideoGoesOn()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(1000);
    QTRY_COMPARE(window.player().displayPosition(), 1000);
    QVERIFY(window.takeSnapshot());
    window->stepForward();
    QTRY_COMPARE(window.player().displayPosition(), 1040);
    QCOMPARE(frameNumber(clipboardAfter(window, "actionCopy_Full_Frame")), std::optional<int>(25));
}

void MainWindowSnapshotTest::snapshot_isNotTaken_whenTheVideoIsClosedBeforeTheAnswer()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window->snapshotButtonPressed();
    QVERIFY(window.openPaused(samplePath(clip)));
    QTest::qWait(200);
    QVERIFY(!window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QVERIFY(window.takeSnapshot());
}

void MainWindowSnapshotTest::capture_withoutAPicture_saysSo()
{
    OpenWindow window;
    SeenBox box;
    answerNextBox(QMessageBox::Ok, box);
    window->snapshotButtonPressed();
    QTRY_COMPARE(box.title, QStringLiteral("Morvantile video capture"));
    QCOMPARE(box.text, QStringLiteral("Failed to capture video frame"));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(box.parent == nullptr);
    QCOMPARE(box.informativeText, QString());
}

void MainWindowSnapshotTest::captureBeyondTheMemory_saysSo_withFileAndTime()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a<b>.mp4"))));
    window.player().setPosition(1000);
    QTRY_COMPARE(window.player().displayPosition(), 1000);
    auto& profile = *static_cast<ImageProfile*>(ImageProfile::profileManager()->lastUsedProfile());
    const QSize size(profile.imageWidth(), profile.imageHeight());
    profile.setImageWidth(25000);
    profile.setImageHeight(25000);
    SeenBox box;
    answerNextBox(QMessageBox::Ok, box);
    {
        const MemoryLimit limit(roomBytes);
        window->snapshotButtonPressed();
        QTRY_VERIFY(!box.title.isEmpty());
    }
    profile.setImageWidth(size.width());
    profile.setImageHeight(size.height());
    QCOMPARE(box.text, QStringLiteral("Failed to capture video frame"));
    QCOMPARE(shownText(box.informativeText),
             QStringLiteral("a<b>.mp4 at 00:00:01.000\nNot enough memory"));
    QVERIFY(clipboardAfter(window, "actionCopy_Snapshot").isNull());
    QCOMPARE(frameNumber(clipboardAfter(window, "actionCopy_Full_Frame")), std::optional<int>(25));
}

void MainWindowSnapshotTest::previewBeyondTheMemory_saysSo_andTheNextOneIsShown()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("Memory cannot be limited here.");
    }
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    ImageProfile edited;
    edited.setImageWidth(25000);
    edited.setImageHeight(25000);
    {
        const MemoryLimit limit(roomBytes);
        window->imageProfileUpdated(&edited);
        // It is made in the background.
        QTRY_VERIFY(window->statusBar()->currentMessage().startsWith(
            QStringLiteral("No image of %1 at 00:00:0").arg(clip)));
    }
    QVERIFY(window->statusBar()->currentMessage().endsWith(QStringLiteral(": Not enough memory")));
    edited.setImageWidth(100);
    window->imageProfileUpdated(&edited);
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 100);
}

void MainWindowSnapshotTest::copy_doesNothing_withoutASnapshot()
{
    OpenWindow window;
    QApplication::clipboard()->setText(QStringLiteral("before"));
    window->on_actionCopy_Snapshot_triggered();
    window->on_actionCopy_Full_Frame_triggered();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("before"));
}

void MainWindowSnapshotTest::imageProfileUpdate_showsAtOnce()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    ImageProfile edited;
    edited.setImageWidth(100);
    window->imageProfileUpdated(&edited);
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 100);
    window->processFullFrameImage(nullptr);
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 640);
}

void MainWindowSnapshotTest::darkSnapshot_staysOpaque_whenTheVideoHasNoAlpha()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QVERIFY(!clipboardAfter(window, "actionCopy_Full_Frame").hasAlphaChannel());
    ImageProfile dark;
    dark.setImageBrightness(-50);
    window->processFullFrameImage(&dark);
    const QString path = window.dir().filePath(QStringLiteral("dark.png"));
    QVERIFY(window->saveSnapshot(path));
    const QImage saved(path);
    QVERIFY(!saved.hasAlphaChannel());
    QVERIFY(frameNumber(saved).has_value());
    const QImage copied = clipboardAfter(window, "actionCopy_Snapshot");
    QCOMPARE(pixelsOf(saved, QImage::Format_RGB32), pixelsOf(copied, QImage::Format_RGB32));
}

void MainWindowSnapshotTest::snapshot_keepsAlpha_whenTheVideoHasIt()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(QStringLiteral("prores_alpha.mov"))));
    QVERIFY(window.takeSnapshot());
    const QImage full = clipboardAfter(window, "actionCopy_Full_Frame");
    QVERIFY(qAlpha(full.pixel(full.width() / 4, full.height() - 10)) < 16);
    const QImage snapshot = clipboardAfter(window, "actionCopy_Snapshot");
    QVERIFY(qAlpha(snapshot.pixel(snapshot.width() / 4, snapshot.height() - 10)) < 16);
}

void MainWindowSnapshotTest::profiles_areListed_theLastUsedOneIsCurrent()
{
    OpenWindow window;
    const QComboBox& box = window.find<QComboBox>("imageProfileComboBox");
    const auto profiles = ImageProfile::profileManager()->profiles();
    QCOMPARE(box.count(), profiles.size());
    for (int i = 0; i < profiles.size(); ++i) {
        QCOMPARE(box.itemText(i), profiles.at(i)->shownName());
        QCOMPARE(box.itemData(i).toString(), profiles.at(i)->id());
    }
    QCOMPARE(box.currentData().toString(), ImageProfile::profileManager()->lastUsedProfile()->id());
}

void MainWindowSnapshotTest::chosenImageProfile_makesTheSnapshotAnew()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    BaseProfile* const before = ImageProfile::profileManager()->lastUsedProfile();
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 640);
    window.chooseImageProfile(QStringLiteral("Small"));
    BaseProfile* const chosen = ImageProfile::profileManager()->lastUsedProfile();
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 64);
    const QString path = window.dir().filePath(QStringLiteral("small.png"));
    QVERIFY(window->saveSnapshot(path));
    QCOMPARE(QImage(path).width(), 64);
    ImageProfile::profileManager()->setLastUsedProfile(before);
    QCOMPARE(chosen->name(), QStringLiteral("Small"));
}

void MainWindowSnapshotTest::summary_tellsWhatWillBeSaved()
{
    OpenWindow window;
    const auto shown = [&window] {
        const QString text = window.find<QLabel>("snapshotSummaryLabel").text();
        return QString(text).replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    };
    QVERIFY(window.openPaused(samplePath(QStringLiteral("h264_1080p.mp4"))));
    QCOMPARE(shown(), QString());
    QVERIFY(window.takeSnapshot());
    QCOMPARE(shown(), QStringLiteral("640 × 360 of 1920 × 1080 · JPEG 90"));
    ImageProfile edited;
    edited.setSameSizeAsVideo(true);
    edited.setImageQuality(75);
    window->imageProfileUpdated(&edited);
    QCOMPARE(shown(), QStringLiteral("1920 × 1080 · JPEG 75"));
    auto& names =
        *static_cast<FileNameProfile*>(FileNameProfile::profileManager()->lastUsedProfile());
    const QString type = names.fileOutputType();
    names.setFileOutputType(QStringLiteral("png"));
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    names.setFileOutputType(type);
    QCOMPARE(shown(), QStringLiteral("1920 × 1080 · PNG"));
    window->closeVideo();
    QCOMPARE(shown(), QString());
}

void MainWindowSnapshotTest::originalSize_isOneClickAway_andKeepsTheOtherSettings()
{
    ProfileManager& manager = *ImageProfile::profileManager();
    BaseProfile* const before = manager.lastUsedProfile();
    ImageProfile& dark = *addImageProfile(QStringLiteral("Dark"), 100);
    dark.setImageBrightness(-50);
    OpenWindow window;
    auto& button = window.find<QPushButton>("originalSizeButton");
    QVERIFY(!button.isEnabled());
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    window.chooseImageProfile(dark.name());
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").width(), 100);
    const int count = manager.profiles().size();
    button.click();
    QCOMPARE(clipboardAfter(window, "actionCopy_Snapshot").size(), sampleNamed(clip).displaySize);
    QVERIFY(!button.isEnabled());
    const auto& chosen = *static_cast<ImageProfile*>(manager.lastUsedProfile());
    QCOMPARE(chosen.name(), QStringLiteral("Dark, original size"));
    QCOMPARE(chosen.imageBrightness(), -50);
    QCOMPARE(window.find<QComboBox>("imageProfileComboBox").currentText(), chosen.name());
    QCOMPARE(dark.sameSizeAsVideo(), false);
    // The next time it succeeds.
    window.chooseImageProfile(dark.name());
    button.click();
    QCOMPARE(manager.lastUsedProfile(), &chosen);
    QCOMPARE(manager.profiles().size(), count + 1);
    manager.setLastUsedProfile(before);
}

void MainWindowSnapshotTest::chosenFileNameProfile_isRemembered()
{
    OpenWindow window;
    QComboBox& box = window.find<QComboBox>("filenameProfileComboBox");
    box.setCurrentIndex(box.findText(QStringLiteral("Other names")));
    window->on_filenameProfileComboBox_activated(box.currentIndex());
    QCOMPARE(FileNameProfile::profileManager()->lastUsedProfile()->name(),
             QStringLiteral("Other names"));
    window->loadFileNameProfileComboBox();
    QCOMPARE(box.currentText(), QStringLiteral("Other names"));
}

QTEST_MAIN(MainWindowSnapshotTest)
#include "MainWindowSnapshotTest.moc"
