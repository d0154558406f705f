#include "ui/mainwindow/PlayerPane.h"

#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/ui/mainwindow/OpenWindow.h"
#include "tests/ui/support/ShownText.h"
#include "ui/mainwindow/RecentFiles.h"
#include "ui/theme/ActionButton.h"
#include "ui/widgets/VolumePopup.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace testsupport;

namespace {

constexpr qint64 pictureRoom = 1LL << 30;

/// A pane with a player, in no window.
class PlayingPane
{
public:
    PlayingPane()
    {
        const auto output = [](QObject* owner) { return new QtAV::VideoOutput(owner); };
        if (!pane.setupPlayer(output, pictureRoom)) {
            qFatal("no video can be shown");
        }
        pane.setupVolumePopup();
        pane.setControlsEnabled(false);
        pane.show();
    }

    /// Opens a video and waits for its first frame, then pauses. False when that takes too long.
    [[nodiscard]] bool openPaused(const QString& path)
    {
        pane.open(path);
        pane.setControlsEnabled(true);
        pane.showOpened();
        const QtAV::AVPlayer& player = pane.player();
        if (!QTest::qWaitFor([&] { return player.displayedFrame().isValid(); }, patienceMs)) {
            return false;
        }
        pane.pause();
        return QTest::qWaitFor([&] { return player.isPaused(); }, patienceMs);
    }

    template <typename Object>
    Object& find(const char* name)
    {
        auto* const found = pane.findChild<Object*>(QLatin1String(name));
        if (found == nullptr) {
            qFatal("no %s in the pane", name);
        }
        return *found;
    }

private:
    TestSettings m_settings;

public:
    QSettings settings;
    PlayerPane pane{settings};
};

} // namespace

class PlayerPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyPane_requestsAVideo_whenItIsClicked();
    void emptyPane_passesTheRecentFileThatIsChosen();
    void recentFiles_canBeShownAnyNumberOfTimes();
    void recentFileLikeMarkup_isNamedAsItIs();
    void openVideo_isShown_withItsDuration();
    void click_pausesThePlayingVideo();
    void slider_seeks_evenWhilePaused();
    void skips_addUp_beforeTheFirstIsDone();
    void unplayableFile_isTold_andAnotherOneIsOffered();
    void closedVideo_leavesTheButton_andNoTime();
    void snapshotButton_requestsASnapshot_ifThereIsAVideo();
    void volume_isThatOfThePopup();
    void place_isTimeAndFrame_alsoForTheScreenReader();
    void pane_hasNoSteering_ifNoVideoCanBeShown();
};

void PlayerPaneTest::emptyPane_requestsAVideo_whenItIsClicked()
{
    PlayingPane pane;
    QSignalSpy requested(&pane.pane, &PlayerPane::videoRequested);
    QTest::mouseClick(&pane.find<QWidget>("openVideoLabel"), Qt::LeftButton);
    QCOMPARE(requested.size(), 1);
    QVERIFY(!pane.pane.isVideoShown());
}

void PlayerPaneTest::emptyPane_passesTheRecentFileThatIsChosen()
{
    PlayingPane pane;
    pane.pane.resize(800, 600);
    RecentFiles::add(pane.settings, samplePath(clip));
    pane.pane.showRecentFiles();
    QSignalSpy chosen(&pane.pane, &PlayerPane::fileChosen);
    pane.find<QPushButton>("recentFileButton").click();
    QTRY_COMPARE_WITH_TIMEOUT(chosen.size(), 1, patienceMs);
    QCOMPARE(chosen.first().first().toString(), samplePath(clip));
}

void PlayerPaneTest::recentFiles_canBeShownAnyNumberOfTimes()
{
    PlayingPane pane;
    pane.pane.resize(800, 600);
    QApplication::setActiveWindow(&pane.pane);
    RecentFiles::add(pane.settings, samplePath(clip));
    pane.pane.showRecentFiles();
    const int objects = pane.pane.findChildren<QObject*>().size();
    pane.pane.showRecentFiles();
    pane.pane.showRecentFiles();
    QCOMPARE(int(pane.pane.findChildren<QObject*>().size()), objects);
    auto& button = pane.find<QPushButton>("recentFileButton");
    QSignalSpy chosen(&pane.pane, &PlayerPane::fileChosen);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(chosen.size(), 1, patienceMs);
}

void PlayerPaneTest::recentFileLikeMarkup_isNamedAsItIs()
{
    PlayingPane pane;
    const TestDir dir;
    const QString film = dir.makeFile(QStringLiteral("a<b>.mp4"));
    RecentFiles::add(pane.settings, film);
    pane.pane.showRecentFiles();
    const auto& button = pane.find<QPushButton>("recentFileButton");
    QCOMPARE(button.text(), QStringLiteral("a<b>.mp4"));
    QCOMPARE(shownText(button.toolTip()), film);
    QCOMPARE(button.accessibleDescription(), film);
}

void PlayerPaneTest::openVideo_isShown_withItsDuration()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    QVERIFY(pane.pane.isVideoShown());
    QCOMPARE(pane.pane.video(), samplePath(clip));
    QCOMPARE(pane.find<QLabel>("durationLabel").text(), QStringLiteral("00:00:04.000"));
    QVERIFY(pane.find<QWidget>("videoFrame").hasFocus() || !pane.pane.isActiveWindow());
}

void PlayerPaneTest::click_pausesThePlayingVideo()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    pane.pane.clickVideo();
    QVERIFY(pane.pane.player().isPlaying());
    pane.pane.clickVideo();
    QVERIFY(pane.pane.player().isPaused());
}

void PlayerPaneTest::slider_seeks_evenWhilePaused()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    // Steps of 30 ms: the first frame at or after 1980 ms.
    pane.pane.seekBySlider(66);
    QVERIFY(waitForPosition(pane.pane.player(), 2000));
    QCOMPARE(pane.pane.time(), QStringLiteral("00:00:02.000"));
}

void PlayerPaneTest::skips_addUp_beforeTheFirstIsDone()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    const qint64 from = pane.pane.player().displayPosition();
    pane.pane.skipForward();
    pane.pane.skipForward();
    QVERIFY(waitForPosition(pane.pane.player(), from + 2000));
    pane.pane.skipBackward();
    QVERIFY(waitForPosition(pane.pane.player(), from + 1000));
}

void PlayerPaneTest::unplayableFile_isTold_andAnotherOneIsOffered()
{
    PlayingPane pane;
    QSignalSpy unplayable(&pane.pane, &PlayerPane::unplayable);
    pane.pane.open(samplePath(QStringLiteral("random_bytes.mp4")));
    pane.pane.showOpened();
    QTRY_VERIFY_WITH_TIMEOUT(!unplayable.isEmpty(), patienceMs);
    QVERIFY(!unplayable.last().first().toString().isEmpty());
    QVERIFY(!pane.pane.isVideoShown());
    QSignalSpy requested(&pane.pane, &PlayerPane::videoRequested);
    pane.pane.clickVideo();
    QCOMPARE(requested.size(), 1);
}

void PlayerPaneTest::closedVideo_leavesTheButton_andNoTime()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    pane.pane.close();
    pane.pane.setControlsEnabled(false);
    QVERIFY(!pane.pane.isVideoLoaded());
    QCOMPARE(pane.find<QLabel>("durationLabel").text(), QStringLiteral("00:00:00.000"));
    QVERIFY(!pane.find<QWidget>("videoControlsFrame").isEnabled());
    QSignalSpy requested(&pane.pane, &PlayerPane::videoRequested);
    pane.pane.clickVideo();
    QCOMPARE(requested.size(), 1);
}

void PlayerPaneTest::snapshotButton_requestsASnapshot_ifThereIsAVideo()
{
    PlayingPane pane;
    QSignalSpy requested(&pane.pane, &PlayerPane::snapshotRequested);
    pane.pane.snapshotButton().click();
    QVERIFY(requested.isEmpty());
    QVERIFY(pane.openPaused(samplePath(clip)));
    pane.pane.snapshotButton().click();
    QCOMPARE(requested.size(), 1);
}

void PlayerPaneTest::volume_isThatOfThePopup()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    QCOMPARE(pane.pane.player().audio()->volume(), pane.pane.volumePopup()->volume() / 100.0);
    pane.pane.volumePopup()->setMuted(true);
    QCOMPARE(pane.pane.player().audio()->volume(), 0.0);
}

void PlayerPaneTest::place_isTimeAndFrame_alsoForTheScreenReader()
{
    PlayingPane pane;
    QVERIFY(pane.openPaused(samplePath(clip)));
    pane.pane.seekBySlider(0);
    QVERIFY(waitForPosition(pane.pane.player(), 0));
    const auto describes = [&] {
        return pane.pane.describePlace().contains(QStringLiteral("frame"));
    };
    QTRY_VERIFY_WITH_TIMEOUT(describes(), patienceMs);
    const QString place = pane.pane.describePlace();
    QVERIFY(place.startsWith(QStringLiteral("00:00:00.000")));
    const auto widgets = pane.pane.findChildren<QWidget*>();
    QVERIFY(std::any_of(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        return widget->accessibleDescription() == place;
    }));
}

void PlayerPaneTest::pane_hasNoSteering_ifNoVideoCanBeShown()
{
    const TestSettings own;
    QSettings settings;
    PlayerPane pane(settings);
    const auto withoutWidget = [](QObject* owner) {
        auto* const output = new QtAV::VideoOutput(owner);
        delete output->widget();
        return output;
    };
    QVERIFY(!pane.setupPlayer(withoutWidget, pictureRoom));
    QVERIFY(pane.steering() == nullptr);
}

QTEST_MAIN(PlayerPaneTest)
#include "PlayerPaneTest.moc"
