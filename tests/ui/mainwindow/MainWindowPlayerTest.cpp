#include "tests/ui/mainwindow/OpenWindow.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "ui/widgets/VolumePopup.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QStatusBar>
#include <QTest>

using namespace testsupport;

class MainWindowPlayerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void playPause_goesBothWays();
    void click_playsAndPausesTheVideo();
    void playButton_showsWhatItDoes();
    void click_leavesTheKeyboardWithTheVideo();
    void step_showsTheNextAndThePreviousFrame();
    void stepField_goesToTheOtherMoment_ofAnInterlacedPicture();
    void deinterlacing_isThatOfTheSelectedProfile();
    void hdr_isThatOfTheSelectedProfile();
    void whatIsNotShown_isSaidInTheStatusBar();
    void skip_goesASecondAndPauses();
    void skips_addUp_whenTheyComeBeforeAFrame();
    void skip_endsAtTheStart_whenThereIsNoWholeSecond();
    void slider_goesInStepsOf30Milliseconds();
    void slider_seeks_whenPaused();
    void slider_goesBackToTheFrame_whenTheFrameOnScreenIsTheOneSought();
    void slider_seeks_whenPlaying();
    void slider_staysInTheHand_whileTheVideoGoesOn();
    void duration_dropsDays();
    void volumePopup_standsAboveItsButton();
    void volumePopup_takesTheKeys();
    void volume_goesToThePlayer();
};

namespace {

const QString interlacedClip = QStringLiteral("fields_mpeg2_tff.ts"); // 25 pictures a second

/// Reads the profiles again, like another start.
void reloadProfiles(ProfileManager& manager, OpenWindow& window)
{
    const QList<BaseProfile*> old = manager.profiles();
    manager.loadProfilesFromFile();
    window->loadImageProfileComboBox();
    qDeleteAll(old);
}

} // namespace

void MainWindowPlayerTest::playPause_goesBothWays()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window->playPause();
    QTRY_VERIFY(window.player().isPlaying());
    window->playPause();
    QTRY_VERIFY(window.player().isPaused());
    window.find<QAction>("actionPlayPause").trigger();
    QTRY_VERIFY(window.player().isPlaying());
}

void MainWindowPlayerTest::click_playsAndPausesTheVideo()
{
    OpenWindow window;
    auto& area = window.find<QPushButton>("openVideoLabel");
    QVERIFY(window.openPaused(samplePath(clip)));
    QCOMPARE(area.accessibleName(), QStringLiteral("Video"));
    QCOMPARE(area.toolTip(), QString());
    area.click();
    QTRY_VERIFY(window.player().isPlaying());
    area.click();
    QTRY_VERIFY(window.player().isPaused());
    window->closeVideo();
    QCOMPARE(area.accessibleName(), QString());
    QVERIFY(!area.toolTip().isEmpty());
}

void MainWindowPlayerTest::playButton_showsWhatItDoes()
{
    OpenWindow window;
    QPushButton& button = window.find<QPushButton>("playButton");
    const auto looks = [&button] { return button.icon().pixmap(22, 22).toImage(); };
    const QImage play = QIcon(QStringLiteral(":/Icons/Play.icon")).pixmap(22, 22).toImage();
    const QImage pause = QIcon(QStringLiteral(":/Icons/Pause.icon")).pixmap(22, 22).toImage();
    QVERIFY(play != pause);
    QCOMPARE(looks(), play);
    window->openVideo(samplePath(clip));
    QTRY_COMPARE(looks(), pause);
    window->pause();
    QTRY_COMPARE(looks(), play);
}

void MainWindowPlayerTest::click_leavesTheKeyboardWithTheVideo()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QApplication::setActiveWindow(&window.window());
    auto& step = window.find<QPushButton>("stepForwardButton");
    window.find<QWidget>("videoFrame").setFocus();
    QTest::mouseClick(&step, Qt::LeftButton);
    QVERIFY(!step.hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(window.player().isPlaying());
}

void MainWindowPlayerTest::step_showsTheNextAndThePreviousFrame()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(400);
    QVERIFY(waitForPosition(window.player(), 400));
    window->stepForward();
    QVERIFY(waitForPosition(window.player(), 440));
    QTRY_COMPARE(window.find<QLabel>("positionLabel").text(), QStringLiteral("00:00:00.440"));
    window->step(MainWindow::Backward);
    QVERIFY(waitForPosition(window.player(), 400));
    window.find<QPushButton>("stepBackwardButton").click();
    QVERIFY(waitForPosition(window.player(), 360));
    window.find<QAction>("actionStepForward").trigger();
    QVERIFY(waitForPosition(window.player(), 400));
}

void MainWindowPlayerTest::stepField_goesToTheOtherMoment_ofAnInterlacedPicture()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(interlacedClip)));
    window->seekRelative(400);
    QVERIFY(waitForPosition(window.player(), 400));
    window.find<QAction>("actionStepFieldForward").trigger();
    QVERIFY(waitForPosition(window.player(), 420));
    window.find<QAction>("actionStepFieldBackward").trigger();
    QVERIFY(waitForPosition(window.player(), 400));
}

/// The menu shows and changes it, also in the file of the profiles.
void MainWindowPlayerTest::deinterlacing_isThatOfTheSelectedProfile()
{
    ProfileManager& manager = *ImageProfile::profileManager();
    auto* const profile = static_cast<ImageProfile*>(manager.profiles().constFirst());
    OpenWindow window;
    auto& automatic = window.find<QAction>("actionDeinterlaceAutomatic");
    auto& off = window.find<QAction>("actionDeinterlaceOff");
    QVERIFY(automatic.isChecked());
    QVERIFY(window.openPaused(samplePath(interlacedClip)));
    window->seekRelative(400);
    QVERIFY(waitForPosition(window.player(), 400));
    const QImage whole = window.player().displayedFrame().toImage();

    off.trigger();
    QVERIFY(off.isChecked() && !automatic.isChecked());
    QCOMPARE(profile->deinterlacing(), QStringLiteral("off"));
    QTRY_VERIFY(window.player().displayedFrame().toImage() != whole);
    reloadProfiles(manager, window);
    QVERIFY(off.isChecked());

    automatic.trigger();
    QTRY_VERIFY(window.player().displayedFrame().toImage() == whole);
    QVERIFY(automatic.isChecked() && !off.isChecked());
}

void MainWindowPlayerTest::hdr_isThatOfTheSelectedProfile()
{
    ProfileManager& manager = *ImageProfile::profileManager();
    auto* const profile = static_cast<ImageProfile*>(manager.profiles().constFirst());
    OpenWindow window;
    auto& toneMapped = window.find<QAction>("actionHdrToneMapped");
    auto& asStored = window.find<QAction>("actionHdrAsStored");
    QVERIFY(toneMapped.isChecked() && !asStored.isChecked());
    asStored.trigger();
    QVERIFY(asStored.isChecked() && !toneMapped.isChecked());
    QCOMPARE(profile->hdr(), int(ImageProfile::HdrAsStored));
    reloadProfiles(manager, window);
    QVERIFY(asStored.isChecked());
    toneMapped.trigger();
    QVERIFY(toneMapped.isChecked() && !asStored.isChecked());
}

void MainWindowPlayerTest::whatIsNotShown_isSaidInTheStatusBar()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(QStringLiteral("colour_hdr10_plus.mkv"))));
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("HDR10+")));
    QVERIFY(window.openPaused(samplePath(QStringLiteral("colour_dolby_vision_alone.mp4"))));
    QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("not right")));
}

void MainWindowPlayerTest::skip_goesASecondAndPauses()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(400);
    QVERIFY(waitForPosition(window.player(), 400));
    window.find<QPushButton>("skipForwardButton").click();
    QVERIFY(waitForPosition(window.player(), 1400));
    window->seekRelative(200);
    QVERIFY(waitForPosition(window.player(), 1600));
    window.find<QPushButton>("skipBackwardButton").click();
    QVERIFY(waitForPosition(window.player(), 600));
    window->playPause();
    QTRY_VERIFY(window.player().isPlaying());
    window->skipForward();
    QTRY_VERIFY(window.player().isPaused());
}

void MainWindowPlayerTest::skips_addUp_whenTheyComeBeforeAFrame()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(400);
    QVERIFY(waitForPosition(window.player(), 400));
    window->skipForward();
    window->skipForward();
    window->skipForward();
    QVERIFY(waitForPosition(window.player(), 3400));
    window->skipBackward();
    window->skipBackward();
    QVERIFY(waitForPosition(window.player(), 1400));
}

void MainWindowPlayerTest::skip_endsAtTheStart_whenThereIsNoWholeSecond()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(400);
    QVERIFY(waitForPosition(window.player(), 400));
    window->skipBackward();
    QVERIFY(waitForPosition(window.player(), 0));
}

void MainWindowPlayerTest::slider_goesInStepsOf30Milliseconds()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.player().setPosition(1000);
    QVERIFY(waitForPosition(window.player(), 1000));
    QTRY_COMPARE(window.find<QSlider>("videoSlider").value(), 1000 / 30);
}

void MainWindowPlayerTest::slider_seeks_whenPaused()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QSlider& slider = window.find<QSlider>("videoSlider");
    slider.setSliderDown(true);
    slider.setSliderPosition(100); // 3 seconds
    QVERIFY(waitForPosition(window.player(), 3000));
    QVERIFY(window.player().isPaused());
    slider.setSliderPosition(50);
    slider.setSliderDown(false);
    // The position being sought, before its frame is there.
    QCOMPARE(slider.value(), 50);
    QVERIFY(waitForPosition(window.player(), 1520));
    QTRY_COMPARE(slider.value(), 1520 / 30);
}

void MainWindowPlayerTest::slider_goesBackToTheFrame_whenTheFrameOnScreenIsTheOneSought()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(QStringLiteral("h264_1fps.mp4"))));
    window.player().setPosition(5000);
    QVERIFY(waitForPosition(window.player(), 5000));
    QSlider& slider = window.find<QSlider>("videoSlider");
    slider.setSliderDown(true);
    slider.setSliderPosition(4500 / 30);
    slider.setSliderDown(false);
    QTRY_COMPARE(slider.value(), 5000 / 30);
    QCOMPARE(window.player().displayPosition(), 5000);
}

void MainWindowPlayerTest::slider_seeks_whenPlaying()
{
    OpenWindow window;
    window->openVideo(samplePath(QStringLiteral("h264_1fps.mp4"))); // 20 seconds
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayedFrame().isValid(), patienceMs);
    const QSignalSpy found(&window.player(), &QtAV::AVPlayer::seekFinished);
    QSlider& slider = window.find<QSlider>("videoSlider");
    slider.setSliderDown(true);
    slider.setSliderPosition(400); // 12 seconds
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayPosition() >= 12000, patienceMs);
    slider.setSliderDown(false);
    QVERIFY(!found.isEmpty());
}

void MainWindowPlayerTest::slider_staysInTheHand_whileTheVideoGoesOn()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QSlider& slider = window.find<QSlider>("videoSlider");
    slider.setSliderDown(true);
    slider.setSliderPosition(90);
    window->stepForward();
    QTRY_VERIFY(window.player().displayPosition() > 0);
    QCOMPARE(slider.value(), 90);
    slider.setSliderDown(false);
    window->updateSlider();
    QVERIFY(slider.value() != 90);
}

void MainWindowPlayerTest::duration_dropsDays()
{
    OpenWindow window;
    window->durationChanged(90061001);
    QCOMPARE(window.find<QLabel>("durationLabel").text(), QStringLiteral("01:01:01.001"));
    window->durationChanged(qint64(100) * 24 * 3600 * 1000 + 1);
    QCOMPARE(window.find<QLabel>("durationLabel").text(), QStringLiteral("00:00:00.001"));
}

void MainWindowPlayerTest::volumePopup_standsAboveItsButton()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QPushButton& button = window.find<QPushButton>("volumeButton");
    button.click();
    auto* const popup = window.window().findChild<VolumePopup*>();
    QVERIFY(popup->isVisible());
    const QPoint at = button.mapToGlobal(QPoint{0, 0});
    QCOMPARE(popup->x(), at.x() + (button.width() - popup->width()) / 2);
    QCOMPARE(popup->y(), int(at.y() - popup->height() * 1.1));
    popup->close();
}

void MainWindowPlayerTest::volumePopup_takesTheKeys()
{
    OpenWindow window;
    QApplication::setActiveWindow(&window.window());
    window->on_volumeButton_clicked();
    auto& popup = window.find<VolumePopup>("VolumePopup");
    const int volume = popup.volume();
    QVERIFY(popup.focusWidget() != nullptr);
    QTest::keyClick(popup.focusWidget(), Qt::Key_Up);
    QCOMPARE(popup.volume(), volume + 1);
}

void MainWindowPlayerTest::volume_goesToThePlayer()
{
    OpenWindow window;
    auto* const popup = window.window().findChild<VolumePopup*>();
    popup->findChild<QSlider*>()->setValue(70);
    QCOMPARE(window.player().audio()->volume(), 0.7);
    popup->findChild<QCheckBox*>()->click();
    QCOMPARE(window.player().audio()->volume(), 0.0);
}

QTEST_MAIN(MainWindowPlayerTest)
#include "MainWindowPlayerTest.moc"
