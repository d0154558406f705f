#include "tests/ui/mainwindow/OpenWindow.h"

#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"
#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "ui/filmstrip/Filmstrip.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace testsupport;

/// Earlier snapshots: going back to them, and never losing them.
class MainWindowFilmstripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void chosenSnapshot_isShown_atItsFrame();
    void chosenSnapshot_opensItsVideo_atItsFrame();
    void chosenSnapshot_waitsForTheOneThatIsBeingSaved();
    void chosenSnapshot_isShown_whenItsVideoIsGone();
    void chosenSnapshot_isNamedAfterItsVideo_whenThatIsGone_data();
    void chosenSnapshot_isNamedAfterItsVideo_whenThatIsGone();
    void snapshot_outlivesItsWindow_withAllItsBits();
    void saveAll_savesEachWithItsProfile_underFreeNames();
    void deletedSnapshot_comesBack_andIsNotAskedAbout();
    void otherVideo_isOpenedWithoutAQuestion_whileTheStripHoldsTheSnapshot();
    void nextSnapshot_isAskedAbout_whenTheStripIsFull();
    void closing_asksNothing_whenAllIsKept();
    void closing_asksOnce_whatTheDiskDoesNotTake();
    void snapshotTimes_areThoseOfTheOpenVideo();
    void snapshots_areWritten_whenTheSessionEnds();
    void system_endsTheProgram_althoughSnapshotsCannotBeSaved();

private:
    TestDir m_config;
};

namespace {

/// A window that stores its snapshots in the case's folder.
class Window : public OpenWindow
{
public:
    explicit Window(const TestDir& kept)
    {
        window().keepSnapshots(kept.filePath(QStringLiteral("kept")));
    }

    Filmstrip& strip() { return *window().findChild<Filmstrip*>(); }
    SnapshotShelf& shelf() { return strip().shelf(); }

    [[nodiscard]] bool settle()
    {
        return QTest::qWaitFor([this] { return shelf().isSettled(); }, patienceMs);
    }

    /// Goes to the frame and takes it; returns the snapshot's name.
    QString takeAt(qint64 ms)
    {
        player().setPosition(ms);
        const int before = shelf().rowCount();
        const auto isTaken = [this, before] { return shelf().rowCount() > before; };
        if (!waitForPosition(player(), ms)) {
            qFatal("the frame is not shown");
        }
        window().snapshotButtonPressed();
        if (!QTest::qWaitFor(isTaken, patienceMs)) {
            qFatal("no snapshot");
        }
        return shelf().index(before).data(SnapshotShelf::IdRole).toString();
    }

    void choose(const QString& id) { Q_EMIT strip().chosen(id); }

    /// The number in the full frame of the shown snapshot.
    std::optional<int> shownFrame()
    {
        QApplication::clipboard()->clear();
        find<QAction>("actionCopy_Full_Frame").trigger();
        return frameNumber(QApplication::clipboard()->image());
    }

    void saveInto(const QString& folder)
    {
        find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
        find<QLineEdit>("outputFolderLineEdit").setText(folder);
    }
};

} // namespace

/// The profiles of the test program are shared by all cases: they live as long as the process.
void MainWindowFilmstripTest::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
}

void MainWindowFilmstripTest::chosenSnapshot_isShown_atItsFrame()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    const QString first = window.takeAt(1000);
    static_cast<void>(window.takeAt(2000));
    QCOMPARE(window.shownFrame(), std::optional<int>(50));
    window.choose(first);
    QTRY_COMPARE_WITH_TIMEOUT(window.player().displayPosition(), 1000, patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(window.shownFrame(), std::optional<int>(25), patienceMs);
    QCOMPARE(window.strip().selected(), QStringList(first));
    QVERIFY(window.player().isPaused());
}

void MainWindowFilmstripTest::chosenSnapshot_opensItsVideo_atItsFrame()
{
    const TestDir kept;
    Window window(kept);
    const QString video = window.copyOf(clip, QStringLiteral("first.mp4"));
    QVERIFY(window.openPaused(video));
    const QString id = window.takeAt(1000);
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("second.mp4"))));
    window.choose(id);
    QCOMPARE(window->currentVideoFilePath(), video);
    QTRY_COMPARE_WITH_TIMEOUT(window.player().displayPosition(), 1000, patienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(window.shownFrame(), std::optional<int>(25), patienceMs);
    QVERIFY(window.player().isPaused());
    QTest::qWait(100);
    QCOMPARE(window.player().displayPosition(), 1000);
}

/// Pictures of the second video are made in the background.
void MainWindowFilmstripTest::chosenSnapshot_waitsForTheOneThatIsBeingSaved()
{
    const TestDir kept;
    Window window(kept);
    const QString video = window.copyOf(clip, QStringLiteral("first.mp4"));
    QVERIFY(window.openPaused(video));
    const QString id = window.takeAt(1000);
    QVERIFY(window.openPaused(
        window.copyOf(QStringLiteral("h264_2160p.mp4"), QStringLiteral("second.mp4"))));
    window->takeAndSave();
    window.choose(id);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), video, patienceMs);
    QCOMPARE(frameNumber(QImage(window.dir().filePath(QStringLiteral("second-00001.jpeg")))),
             std::optional<int>(0));
    QTRY_COMPARE_WITH_TIMEOUT(window.shownFrame(), std::optional<int>(25), patienceMs);
}

void MainWindowFilmstripTest::chosenSnapshot_isShown_whenItsVideoIsGone()
{
    const TestDir kept;
    Window window(kept);
    const QString video = window.copyOf(clip, QStringLiteral("first.mp4"));
    QVERIFY(window.openPaused(video));
    const QString id = window.takeAt(1000);
    window->closeVideo();
    QVERIFY(QFile::remove(video));
    window.choose(id);
    const QAction& copy = window.find<QAction>("actionCopy_Full_Frame");
    QTRY_VERIFY_WITH_TIMEOUT(copy.isEnabled(), patienceMs);
    QCOMPARE(window.shownFrame(), std::optional<int>(25));
    QVERIFY(!window->isVideoLoaded());
}

void MainWindowFilmstripTest::chosenSnapshot_isNamedAfterItsVideo_whenThatIsGone_data()
{
    QTest::addColumn<bool>("isAnotherOpen");
    QTest::newRow("another one is open") << true;
    QTest::newRow("none is open") << false;
}

void MainWindowFilmstripTest::chosenSnapshot_isNamedAfterItsVideo_whenThatIsGone()
{
    QFETCH(const bool, isAnotherOpen);
    const TestDir kept;
    Window window(kept);
    const auto& field = window.find<QLineEdit>("outputFolderLineEdit");
    const auto& next = window.find<QLabel>("nextFileNameLabel");
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    const QString video = window.copyOf(clip, QStringLiteral("first.mp4"));
    const QString otherFolder = window.dir().filePath(QStringLiteral("other"));
    QVERIFY(QDir().mkpath(otherFolder));
    const QString other = window.copyOf(clip, QStringLiteral("other/second.mp4"));
    QVERIFY(window.openPaused(video));
    const QString id = window.takeAt(1000);
    if (isAnotherOpen) {
        QVERIFY(window.openPaused(other));
    } else {
        window->closeVideo();
    }
    QVERIFY(QFile::remove(video));
    window.choose(id);
    const QAction& copy = window.find<QAction>("actionCopy_Full_Frame");
    QTRY_VERIFY_WITH_TIMEOUT(copy.isEnabled(), patienceMs);
    QCOMPARE(field.text(), isAnotherOpen ? otherFolder : window.dir().path());
    QVERIFY(next.isVisible());
    QCOMPARE(next.text(), QStringLiteral("first-00001.jpeg"));
    window->saveButtonPressed();
    QCOMPARE(QDir(field.text()).entryList({QStringLiteral("*.jpeg")}),
             QStringList(QStringLiteral("first-00001.jpeg")));
    QCOMPARE(next.text(), QStringLiteral("first-00002.jpeg"));
    if (isAnotherOpen) {
        static_cast<void>(window.takeAt(2000));
        QCOMPARE(next.text(), QStringLiteral("second-00001.jpeg"));
    }
}

/// Including deep colours: the file equals one that is saved at once.
void MainWindowFilmstripTest::snapshot_outlivesItsWindow_withAllItsBits()
{
    const TestDir kept;
    const QString direct = kept.filePath(QStringLiteral("direct.png"));
    const QString later = kept.filePath(QStringLiteral("later.png"));
    ImageProfile* const profile = addImageProfile(QStringLiteral("Deep"), 0);
    profile->setSameSizeAsVideo(true);
    profile->setDeepColours(true);
    ImageProfile::profileManager()->setLastUsedProfile(profile);
    QString id;
    {
        Window window(kept);
        QVERIFY(window.openPaused(samplePath(QStringLiteral("hevc_10bit.mkv"))));
        id = window.takeAt(1000);
        QVERIFY(window.settle());
        // Saved separately, so that the strip does not know about it.
        window.shelf().setProfile(id, profile->id(), profile->name());
        QVERIFY(window->saveSnapshot(direct));
    }
    QVERIFY(QImage(direct).depth() == 64);
    {
        // Saved ones are not restored.
        Window window(kept);
        QVERIFY(window.settle());
        QCOMPARE(window.shelf().rowCount(), 0);
        QVERIFY(window.openPaused(samplePath(QStringLiteral("hevc_10bit.mkv"))));
        id = window.takeAt(1000);
    }
    Window window(kept);
    QVERIFY(window.settle());
    QCOMPARE(window.shelf().rowCount(), 1);
    window.choose(id);
    const QAction& copy = window.find<QAction>("actionCopy_Full_Frame");
    QTRY_VERIFY_WITH_TIMEOUT(copy.isEnabled(), patienceMs);
    QVERIFY(window->saveSnapshot(later));
    QCOMPARE(QImage(later), QImage(direct));
    ImageProfile::profileManager()->setLastUsedProfile(
        ImageProfile::profileManager()->profiles().first());
}

void MainWindowFilmstripTest::saveAll_savesEachWithItsProfile_underFreeNames()
{
    const TestDir kept;
    addImageProfile(QStringLiteral("Small"), 64);
    Window window(kept);
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("clip.mp4"))));
    const QString folder = window.dir().filePath(QStringLiteral("out"));
    QVERIFY(QDir().mkpath(folder));
    window.saveInto(folder);
    static_cast<void>(window.takeAt(1000));
    static_cast<void>(window.takeAt(2000));
    // Only that of the shown snapshot changes.
    window.chooseImageProfile(QStringLiteral("Small"));
    window.choose(window.shelf().index(0).data(SnapshotShelf::IdRole).toString());
    QTRY_COMPARE_WITH_TIMEOUT(window.shownFrame(), std::optional<int>(25), patienceMs);
    QVERIFY(QFile::copy(samplePath(clip), folder + QStringLiteral("/clip-00001.jpeg")));
    window.find<QPushButton>("saveAllButton").click();
    QTRY_VERIFY_WITH_TIMEOUT(window.shelf().unsaved().isEmpty(), patienceMs);
    const QImage first(folder + QStringLiteral("/clip-00002.jpeg"));
    const QImage second(folder + QStringLiteral("/clip-00003.jpeg"));
    QCOMPARE(first.width(), 640);
    QCOMPARE(frameNumber(first), std::optional<int>(25));
    QCOMPARE(second.width(), 64);
    QCOMPARE(frameNumber(second), std::optional<int>(50));
    QVERIFY(window.find<QPushButton>("showInFolderButton").isVisible());
}

void MainWindowFilmstripTest::deletedSnapshot_comesBack_andIsNotAskedAbout()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    const QString id = window.takeAt(1000);
    window.strip().deleteSelected();
    QCOMPARE(window.shelf().rowCount(), 0);
    QVERIFY(window.settle());
    window.find<QAction>("actionUndo").trigger();
    window.choose(id);
    QVERIFY(window.settle());
    QCOMPARE(window.shownFrame(), std::optional<int>(25));
    window.strip().deleteSelected();
    window->openFromOutside(window.copyOf(clip, QStringLiteral("next.mp4")));
    QVERIFY(window->currentVideoFilePath().endsWith(QLatin1String("next.mp4")));
}

void MainWindowFilmstripTest::otherVideo_isOpenedWithoutAQuestion_whileTheStripHoldsTheSnapshot()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    const QString next = window.copyOf(clip, QStringLiteral("next.mp4"));
    window->openFromOutside(next);
    QCOMPARE(window->currentVideoFilePath(), next);
    QCOMPARE(window->findChild<Filmstrip*>()->shelf().rowCount(), 1);
}

void MainWindowFilmstripTest::nextSnapshot_isAskedAbout_whenTheStripIsFull()
{
    const TestDir kept;
    Window window(kept);
    SnapshotShelf::Limits limits;
    limits.count = 0;
    window.shelf().setLimits(limits);
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QCOMPARE(window.shelf().rowCount(), 0);
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    window->snapshotButtonPressed();
    QCOMPARE(box.text, QStringLiteral("The snapshot has not been saved."));
}

void MainWindowFilmstripTest::closing_asksNothing_whenAllIsKept()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    static_cast<void>(window.takeAt(1000));
    static_cast<void>(window.takeAt(2000));
    QSignalSpy ended(qApp, &QCoreApplication::aboutToQuit);
    // An application ends in its own loop.
    QTimer::singleShot(0, &window.window(), [&] { window->close(); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(ended.size(), 1);
    QCOMPARE(window.shelf().unsafeCount(), 0);
}

void MainWindowFilmstripTest::closing_asksOnce_whatTheDiskDoesNotTake()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.settle());
    const FileSizeLimit limit(1000);
    static_cast<void>(window.takeAt(1000));
    static_cast<void>(window.takeAt(2000));
    QVERIFY(window.settle());
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    window->close();
    QCOMPARE(box.text, QStringLiteral("2 snapshots have not been saved."));
    // A copied snapshot is in the user's hands.
    window.find<QAction>("actionCopy_Snapshot").trigger();
    box = {};
    answerNextBox(QMessageBox::Cancel, box);
    window->close();
    QCOMPARE(box.text, QStringLiteral("The snapshot has not been saved."));
}

void MainWindowFilmstripTest::snapshotTimes_areThoseOfTheOpenVideo()
{
    const TestDir kept;
    Window window(kept);
    QSignalSpy told(&window.window(), &MainWindow::snapshotTimesChanged);
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("first.mp4"))));
    static_cast<void>(window.takeAt(2000));
    static_cast<void>(window.takeAt(1000));
    QCOMPARE(window->snapshotTimes(), (QVector<qint64>{1000, 2000}));
    QCOMPARE(told.size(), 2);
    QCOMPARE(told.last().first().value<QVector<qint64>>(), window->snapshotTimes());
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("second.mp4"))));
    QVERIFY(window->snapshotTimes().isEmpty());
    QCOMPARE(told.size(), 3);
    QVERIFY(window.openPaused(window.dir().filePath(QStringLiteral("first.mp4"))));
    QCOMPARE(window->snapshotTimes().size(), 2);
}

void MainWindowFilmstripTest::snapshots_areWritten_whenTheSessionEnds()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    static_cast<void>(window.takeAt(1000));
    QVERIFY(window->prepareForSessionEnd(true));
    QCOMPARE(window.shelf().unsafeCount(), 0);
}

/// They are on the disk, and are restored by the next start.
void MainWindowFilmstripTest::system_endsTheProgram_althoughSnapshotsCannotBeSaved()
{
    const TestDir kept;
    Window window(kept);
    QVERIFY(window.openPaused(samplePath(clip)));
    static_cast<void>(window.takeAt(1000));
    static_cast<void>(window.takeAt(2000));
    QVERIFY(window.settle());
    window.saveInto(QStringLiteral("/proc/self"));
    QTimer watchdog;
    connect(&watchdog, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    watchdog.start(patienceMs);
    QTimer::singleShot(0, &window.window(), [&] {
        window.find<QPushButton>("saveAllButton").click();
        window->quitWhenKept();
    });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(window.shelf().unsaved().size(), 2);
}

QTEST_MAIN(MainWindowFilmstripTest)
#include "MainWindowFilmstripTest.moc"
