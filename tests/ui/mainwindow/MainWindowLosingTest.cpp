#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/ui/dialogs/support/ModalScript.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/filmstrip/Filmstrip.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace testsupport;

/// What a user could lose by mistake, and the questions or safeguards against it. The part of the
/// filmstrip is tested with the filmstrip.
class MainWindowLosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unsavedSnapshot_staysWithItsVideo_whenTheQuestionIsCancelled();
    void unsavedSnapshot_isSavedFirst_whenWanted();
    void unsavedSnapshot_goes_whenDiscarded();
    void snapshot_isNotAskedAbout_onceSavedOrCopied_data();
    void snapshot_isNotAskedAbout_onceSavedOrCopied();
    void closing_asksAboutAnUnsavedSnapshot();
    void ending_waitsForTheSnapshotThatIsBeingTaken_data();
    void ending_waitsForTheSnapshotThatIsBeingTaken();
    void ending_waitsForTheSnapshotThatIsBeingSaved_data();
    void ending_waitsForTheSnapshotThatIsBeingSaved();
    void closing_asksAboutTheSnapshotThatIsBeingTaken_whenItCannotBeKept();
    void ending_goesOn_whenTheSnapshotFails_data();
    void ending_goesOn_whenTheSnapshotFails();
    void ending_goesOn_whenNoSnapshotComes();
    void closing_stops_whenTheSnapshotCannotBeSaved();
    void anotherVideo_waitsForTheSnapshotThatIsBeingSaved();
    void anotherVideo_asksAboutTheSnapshotThatIsBeingTaken();
    void anotherVideo_isNotOpened_whenTheSnapshotCannotBeSaved();
    void anotherVideo_isOpened_whenNoSnapshotComes();
    void batchMode_keepsVideoAndSnapshot();
    void fileThatIsNoVideo_disablesWhatNeedsOne();
    void fileThatIsNoVideo_isExplainedInWordsForPeople_data();
    void fileThatIsNoVideo_isExplainedInWordsForPeople();
};

namespace {

SnapshotShelf::Limits noRoom()
{
    SnapshotShelf::Limits limits;
    limits.count = 0;
    return limits;
}

/// A window with a snapshot of a paused video, for which the filmstrip has no room.
class Snapshot : public OpenWindow
{
public:
    Snapshot()
    {
        video = copyOf(clip, QStringLiteral("clip.mp4"));
        next = copyOf(clip, QStringLiteral("next.mp4"));
        window().findChild<Filmstrip*>()->shelf().setLimits(noRoom());
        if (!openPaused(video) || !takeSnapshot()) {
            qFatal("no snapshot");
        }
    }

    bool hasSnapshot() { return find<QAction>("actionCopy_Snapshot").isEnabled(); }

    QString video;
    QString next;
};

/// Its snapshots are made in the background.
const QString largeClip = QStringLiteral("h264_2160p.mp4");

/// In the status bar.
const QString waiting = QStringLiteral("Waiting until snapshots are written…");

enum class Ending { ByTheUser, ByTheSystem };

void addEndings()
{
    QTest::addColumn<Ending>("ending");
    QTest::newRow("by the user") << Ending::ByTheUser;
    QTest::newRow("by the system") << Ending::ByTheSystem;
}

/// Does this in the application's own loop and ends the window at once. Returns false if the
/// application does not end.
bool endsAfter(OpenWindow& window, Ending ending, const std::function<void()>& action)
{
    QTimer watchdog;
    QObject::connect(&watchdog, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    watchdog.start(patienceMs);
    QTimer::singleShot(0, &window.window(), [&] {
        action();
        if (ending == Ending::ByTheUser) {
            window->close();
        } else {
            window->quitWhenKept();
        }
    });
    return QApplication::exec() == 0;
}

} // namespace

Q_DECLARE_METATYPE(Ending)
Q_DECLARE_METATYPE(std::function<void(Snapshot&)>)

void MainWindowLosingTest::unsavedSnapshot_staysWithItsVideo_whenTheQuestionIsCancelled()
{
    Snapshot window;
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    window->openFromOutside(window.next);
    QCOMPARE(box.text, QStringLiteral("The snapshot has not been saved."));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Save | QMessageBox::Discard |
                                                       QMessageBox::Cancel));
    QCOMPARE(box.defaultButton, QMessageBox::Save);
    QCOMPARE(window->currentVideoFilePath(), window.video);
    QVERIFY(window.hasSnapshot());
}

void MainWindowLosingTest::unsavedSnapshot_isSavedFirst_whenWanted()
{
    Snapshot window;
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    SeenBox box;
    answerNextBox(QMessageBox::Save, box);
    window->openFromOutside(window.next);
    QVERIFY(QFile::exists(window.dir().filePath(QStringLiteral("clip-00001.jpeg"))));
    QCOMPARE(window->currentVideoFilePath(), window.next);
}

void MainWindowLosingTest::unsavedSnapshot_goes_whenDiscarded()
{
    Snapshot window;
    SeenBox box;
    answerNextBox(QMessageBox::Discard, box);
    window->openFromOutside(window.next);
    QCOMPARE(window->currentVideoFilePath(), window.next);
    QVERIFY(!window.hasSnapshot());
}

void MainWindowLosingTest::snapshot_isNotAskedAbout_onceSavedOrCopied_data()
{
    using Action = std::function<void(Snapshot&)>;
    QTest::addColumn<Action>("keep");
    QTest::newRow("saved") << Action([](Snapshot& window) {
        QVERIFY(window->saveSnapshot(window.dir().filePath(QStringLiteral("a.png"))));
    });
    QTest::newRow("copied") << Action(
        [](Snapshot& window) { window.find<QAction>("actionCopy_Snapshot").trigger(); });
    QTest::newRow("copied in full") << Action(
        [](Snapshot& window) { window.find<QAction>("actionCopy_Full_Frame").trigger(); });
}

void MainWindowLosingTest::snapshot_isNotAskedAbout_onceSavedOrCopied()
{
    QFETCH(std::function<void(Snapshot&)>, keep);
    Snapshot window;
    keep(window);
    window->openFromOutside(window.next);
    QCOMPARE(window->currentVideoFilePath(), window.next);
    // The window asks about the next one again.
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayedFrame().isValid(), patienceMs);
    QVERIFY(window.takeSnapshot());
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    window->openFromOutside(window.video);
    QVERIFY(!box.text.isEmpty());
}

void MainWindowLosingTest::closing_asksAboutAnUnsavedSnapshot()
{
    Snapshot window;
    SeenBox box;
    bool hasEnded = false;
    connect(qApp, &QCoreApplication::aboutToQuit, &window.window(), [&] { hasEnded = true; });
    answerNextBox(QMessageBox::Cancel, box);
    window->close();
    QVERIFY(!box.text.isEmpty());
    box = {};
    answerNextBox(QMessageBox::Cancel, box);
    window.find<QAction>("actionExit").trigger();
    QVERIFY(!box.text.isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(!hasEnded);
    QVERIFY(window.hasSnapshot());
}

void MainWindowLosingTest::ending_waitsForTheSnapshotThatIsBeingTaken_data()
{
    addEndings();
}

void MainWindowLosingTest::ending_waitsForTheSnapshotThatIsBeingTaken()
{
    QFETCH(const Ending, ending);
    OpenWindow window;
    window->keepSnapshots(window.dir().filePath(QStringLiteral("kept")));
    QVERIFY(window.openPaused(samplePath(largeClip)));
    QVERIFY(endsAfter(window, ending, [&] { window->snapshotButtonPressed(); }));
    const SnapshotShelf& shelf = window->findChild<Filmstrip*>()->shelf();
    QCOMPARE(shelf.rowCount(), 1);
    QCOMPARE(shelf.unsafeCount(), 0);
}

void MainWindowLosingTest::ending_waitsForTheSnapshotThatIsBeingSaved_data()
{
    addEndings();
}

void MainWindowLosingTest::ending_waitsForTheSnapshotThatIsBeingSaved()
{
    QFETCH(const Ending, ending);
    OpenWindow window;
    QVERIFY(window.openPaused(window.copyOf(largeClip, QStringLiteral("large.mp4"))));
    QVERIFY(endsAfter(window, ending, [&] { window->takeAndSave(); }));
    QVERIFY(!QImage(window.dir().filePath(QStringLiteral("large-00001.jpeg"))).isNull());
}

void MainWindowLosingTest::closing_asksAboutTheSnapshotThatIsBeingTaken_whenItCannotBeKept()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(largeClip)));
    SeenBox box;
    answerNextBox(QMessageBox::Discard, box);
    QVERIFY(endsAfter(window, Ending::ByTheUser, [&] { window->snapshotButtonPressed(); }));
    QCOMPARE(box.text, QStringLiteral("The snapshot has not been saved."));
}

void MainWindowLosingTest::ending_goesOn_whenTheSnapshotFails_data()
{
    addEndings();
}

/// Without a video, there is no picture. The system gets no question.
void MainWindowLosingTest::ending_goesOn_whenTheSnapshotFails()
{
    QFETCH(const Ending, ending);
    OpenWindow window;
    SeenBox box;
    if (ending == Ending::ByTheUser) {
        answerNextBox(QMessageBox::Ok, box);
    }
    QVERIFY(endsAfter(window, ending, [&] { window->snapshotButtonPressed(); }));
    QCOMPARE(box.text.isEmpty(), ending == Ending::ByTheSystem);
}

/// As when the video's disk does not answer.
void MainWindowLosingTest::ending_goesOn_whenNoSnapshotComes()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window.find<QTimer>("captureLimit").setInterval(100);
    window.player().videoCapture()->setTaker([] {});
    QVERIFY(endsAfter(window, Ending::ByTheUser, [&] { window->snapshotButtonPressed(); }));
}

void MainWindowLosingTest::closing_stops_whenTheSnapshotCannotBeSaved()
{
    constexpr int staysOpen = 3;
    OpenWindow window;
    window->keepSnapshots(window.dir().filePath(QStringLiteral("kept")));
    QVERIFY(window.openPaused(samplePath(largeClip)));
    window.find<QLineEdit>("outputFolderLineEdit").setText(QStringLiteral("/proc/self"));
    const SnapshotShelf& shelf = window->findChild<Filmstrip*>()->shelf();
    QTimer poll;
    connect(&poll, &QTimer::timeout, &window.window(), [&] {
        const QString shown = window->statusBar()->currentMessage();
        if (shown.startsWith(QStringLiteral("Could not save ")) && shelf.isSettled()) {
            QCoreApplication::exit(staysOpen);
        }
    });
    poll.start(50);
    QTimer::singleShot(0, &window.window(), [&] {
        window->takeAndSave();
        window->close();
    });
    QCOMPARE(QApplication::exec(), staysOpen);
}

/// As when someone saves a frame of each video in a folder, without looking.
void MainWindowLosingTest::anotherVideo_waitsForTheSnapshotThatIsBeingSaved()
{
    OpenWindow window;
    const QString large = window.copyOf(largeClip, QStringLiteral("large.mp4"));
    const QString next = window.copyOf(clip, QStringLiteral("next.mp4"));
    QVERIFY(window.openPaused(large));
    window->takeAndSave();
    window->openFromOutside(next);
    QCOMPARE(window->currentVideoFilePath(), large);
    QCOMPARE(window->statusBar()->currentMessage(), waiting);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), next, patienceMs);
    QCOMPARE(frameNumber(QImage(window.dir().filePath(QStringLiteral("large-00001.jpeg")))),
             std::optional<int>(0));
    QVERIFY(window->statusBar()->currentMessage() != waiting);
}

void MainWindowLosingTest::anotherVideo_asksAboutTheSnapshotThatIsBeingTaken()
{
    OpenWindow window;
    window->findChild<Filmstrip*>()->shelf().setLimits(noRoom());
    const QString next = window.copyOf(clip, QStringLiteral("next.mp4"));
    QVERIFY(window.openPaused(samplePath(largeClip)));
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    window->snapshotButtonPressed();
    window->openFromOutside(next);
    QVERIFY(box.text.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(box.text, QStringLiteral("The snapshot has not been saved."),
                              patienceMs);
    QCOMPARE(window->currentVideoFilePath(), samplePath(largeClip));
    QVERIFY(window->statusBar()->currentMessage() != waiting);
}

void MainWindowLosingTest::anotherVideo_isNotOpened_whenTheSnapshotCannotBeSaved()
{
    OpenWindow window;
    const QString next = window.copyOf(clip, QStringLiteral("next.mp4"));
    QVERIFY(window.openPaused(samplePath(largeClip)));
    window.find<QLineEdit>("outputFolderLineEdit").setText(QStringLiteral("/proc/self"));
    window->takeAndSave();
    window->openFromOutside(next);
    const auto tellsOfFailure = [&window] {
        return window->statusBar()->currentMessage().startsWith(QStringLiteral("Could not save "));
    };
    QTRY_VERIFY_WITH_TIMEOUT(tellsOfFailure(), patienceMs);
    QCoreApplication::processEvents();
    QCOMPARE(window->currentVideoFilePath(), samplePath(largeClip));
    QVERIFY(window.find<QAction>("actionCopy_Snapshot").isEnabled());
}

/// As when the video's disk does not answer.
void MainWindowLosingTest::anotherVideo_isOpened_whenNoSnapshotComes()
{
    OpenWindow window;
    const QString next = window.copyOf(clip, QStringLiteral("next.mp4"));
    QVERIFY(window.openPaused(samplePath(clip)));
    window.find<QTimer>("captureLimit").setInterval(100);
    window.player().videoCapture()->setTaker([] {});
    SeenBox box;
    answerNextBox(QMessageBox::Ok, box);
    window->takeAndSave();
    window->openFromOutside(next);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), next, patienceMs);
    QCOMPARE(box.text, QStringLiteral("Failed to capture video frame"));
}

void MainWindowLosingTest::batchMode_keepsVideoAndSnapshot()
{
    Snapshot window;
    const qint64 position = window.player().displayPosition();
    ModalScript script;
    script.expect<BatchModeDialog>([](BatchModeDialog& dialog) { dialog.close(); });
    window.find<QAction>("actionBatch_Mode").trigger();
    QVERIFY(script.isDone());
    QCOMPARE(window->currentVideoFilePath(), window.video);
    QCOMPARE(window.player().displayPosition(), position);
    QVERIFY(window.hasSnapshot());
}

void MainWindowLosingTest::fileThatIsNoVideo_disablesWhatNeedsOne()
{
    OpenWindow window;
    window->openVideo(samplePath(QStringLiteral("random_bytes.mp4")));
    QTRY_COMPARE_WITH_TIMEOUT(window.player().mediaStatus(), QtAV::InvalidMedia, patienceMs);
    QVERIFY(!window.find<QPushButton>("snapshotButton").isEnabled());
    QVERIFY(!window.find<QAction>("actionTake_Snapshot").isEnabled());
    QVERIFY(!window.find<QAction>("actionPlayPause").isEnabled());
    QVERIFY(!window.find<QSlider>("videoSlider").isEnabled());
    QVERIFY(!window.find<QWidget>("videoControlsFrame").isEnabled());
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.find<QPushButton>("snapshotButton").isEnabled());
    QVERIFY(window.find<QAction>("actionPlayPause").isEnabled());
}

void MainWindowLosingTest::fileThatIsNoVideo_isExplainedInWordsForPeople_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    QTest::newRow("random") << samplePath(QStringLiteral("random_bytes.mp4"))
                            << QStringLiteral("The file is damaged, or no video.");
    QTest::newRow("sound") << samplePath(QStringLiteral("sound_only.mp4"))
                           << QStringLiteral("There is no video in the file.");
    QTest::newRow("missing") << QStringLiteral("/nowhere/film.mp4")
                             << QStringLiteral("The file does not exist.");
}

void MainWindowLosingTest::fileThatIsNoVideo_isExplainedInWordsForPeople()
{
    QFETCH(QString, file);
    QFETCH(QString, text);
    OpenWindow window;
    window->openVideo(file);
    QTRY_COMPARE_WITH_TIMEOUT(window->statusBar()->currentMessage(), text, patienceMs);
}

QTEST_MAIN(MainWindowLosingTest)
#include "MainWindowLosingTest.moc"
