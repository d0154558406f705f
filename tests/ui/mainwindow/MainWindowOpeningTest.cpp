#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "ui/widgets/VolumePopup.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QFrame>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QSettings>
#include <QSlider>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QUrl>

using namespace testsupport;

class MainWindowOpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newWindow_hasNoVideoAndDisabledControls();
    void newWindow_hasTheTextsAndShortcuts();
    void newWindow_tellsScreenReadersWhatItsControlsAre();
    void newWindow_laysItsFormOut();
    void newWindow_fitsTheSizeThatStartUpGivesIt();
    void window_comesUpWithoutAPlayer_whenThereIsNoRenderer();
    void openVideo_playsAndNamesIt();
    void openVideo_takesTheVolumeFromThePopup();
    void openVideo_closesTheOneBefore();
    void openVideo_showsDuration_whenItIsKnown();
    void closeVideo_leavesTheWindowAsItWasNew();
    void openVideo_saysSo_whenTheFileIsNoVideo();
    void openVideo_playsTheNext_afterOneThatCannotBePlayed();
    void lastOpenDir_followsTheVideo();
    void lastOpenDir_followsAgain_whenTheFolderIsGone();
    void openDialog_pausesTheVideo_whenCancelled();
    void drop_opensTheFirstVideo();
    void closing_asksNothingAndEndsTheApplication();
};

namespace {

/// Whether the open button is above the video or below it.
bool isOpenButtonOnTop(OpenWindow& window)
{
    QPushButton& button = window.find<QPushButton>("openVideoLabel");
    QWidget* const screen = window.window().findChild<QtAV::VideoOutput*>()->widget();
    const QObjectList upwards = button.parentWidget()->children();
    return upwards.contains(screen) && upwards.indexOf(&button) > upwards.indexOf(screen);
}

QKeySequence shortcut(OpenWindow& window, const char* action)
{
    return window.find<QAction>(action).shortcut();
}

} // namespace

void MainWindowOpeningTest::newWindow_hasNoVideoAndDisabledControls()
{
    OpenWindow window;
    QVERIFY(!window->isVideoLoaded());
    QCOMPARE(window->windowTitle(), QStringLiteral("Morvantile"));
    QVERIFY(!window.find<QSlider>("videoSlider").isEnabled());
    QVERIFY(!window.find<QFrame>("videoControlsFrame").isEnabled());
    QVERIFY(!window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QVERIFY(!window.find<QAction>("actionTake_Snapshot").isEnabled());
    QVERIFY(!window.find<QAction>("actionSaveSnapshot").isEnabled());
    QVERIFY(!window.find<QAction>("actionCopy_Snapshot").isEnabled());
    QVERIFY(!window.find<QAction>("actionCopy_Full_Frame").isEnabled());
    const auto actions = window.find<QMenu>("menuVideoControls").actions();
    QVERIFY(actions.size() >= 5);
    for (const QAction* const action : actions) {
        QVERIFY(!action->isEnabled());
    }
    QCOMPARE(window.find<QLabel>("positionLabel").text(), QStringLiteral("00:00:00.000"));
    QCOMPARE(window.find<QLabel>("durationLabel").text(), QStringLiteral("00:00:00.000"));
    QVERIFY(isOpenButtonOnTop(window));
}

void MainWindowOpeningTest::newWindow_hasTheTextsAndShortcuts()
{
    OpenWindow window;
    QCOMPARE(window.find<QPushButton>("openVideoLabel").text(),
             QStringLiteral("Click to open video"));
    QCOMPARE(window.find<QPushButton>("volumeButton").toolTip(), QStringLiteral("Volume Control"));
    QCOMPARE(window.find<QPushButton>("stepForwardButton").toolTip(),
             QStringLiteral("Step forward one frame"));
    QCOMPARE(window.find<QAction>("actionDocumentation").text(),
             QStringLiteral("Documentation && Support"));
    QCOMPARE(shortcut(window, "actionOpen"), QKeySequence(Qt::CTRL + Qt::Key_O));
    QCOMPARE(shortcut(window, "actionTake_Snapshot"), QKeySequence(Qt::CTRL + Qt::Key_A));
    QCOMPARE(shortcut(window, "actionCopy_Snapshot"), QKeySequence(Qt::CTRL + Qt::Key_C));
    QCOMPARE(shortcut(window, "actionCopy_Full_Frame"), QKeySequence(Qt::CTRL + Qt::Key_X));
    QCOMPARE(shortcut(window, "actionStepForward"), QKeySequence(Qt::Key_Right));
    QCOMPARE(shortcut(window, "actionStepBackward"), QKeySequence(Qt::Key_Left));
    QCOMPARE(shortcut(window, "actionStepFieldForward"), QKeySequence(Qt::ALT + Qt::Key_Right));
    QCOMPARE(shortcut(window, "actionStepFieldBackward"), QKeySequence(Qt::ALT + Qt::Key_Left));
    QCOMPARE(shortcut(window, "actionSkipForward"), QKeySequence(Qt::CTRL + Qt::Key_Up));
    QCOMPARE(shortcut(window, "actionSkipBackward"), QKeySequence(Qt::CTRL + Qt::Key_Down));
    QCOMPARE(shortcut(window, "actionPlayPause"), QKeySequence(Qt::Key_Space));
    QCOMPARE(shortcut(window, "actionSaveSnapshot"), QKeySequence(Qt::CTRL + Qt::Key_S));
    QCOMPARE(shortcut(window, "actionExit"), QKeySequence());
}

void MainWindowOpeningTest::newWindow_tellsScreenReadersWhatItsControlsAre()
{
    const auto switchOff = qScopeGuard([] { QAccessible::setActive(false); });
    QAccessible::setActive(true);
    OpenWindow window;
    const auto told = [&window](const char* name) {
        return QAccessible::queryAccessibleInterface(&window.find<QWidget>(name));
    };
    const auto role = [&told](const char* name) { return told(name)->role(); };
    // These are in an unchecked group box.
    QCOMPARE(role("filenameProfileComboBox"), QAccessible::ComboBox);
    QCOMPARE(role("editFileNameProfileButton"), QAccessible::Button);
    QCOMPARE(role("outputFolderLineEdit"), QAccessible::EditableText);
    QCOMPARE(role("selectOutputFolderButton"), QAccessible::Button);
    QCOMPARE(role("nextFileNameLabel"), QAccessible::StaticText);
    // The role must not be announced instead of the text.
    QCOMPARE(told("openVideoLabel")->text(QAccessible::Name),
             QStringLiteral("Click to open video"));
    QCOMPARE(told("positionLabel")->text(QAccessible::Name), QStringLiteral("00:00:00.000"));
    QCOMPARE(told("positionLabel")->text(QAccessible::Description), QStringLiteral("Position"));
    QCOMPARE(told("durationLabel")->text(QAccessible::Name), QStringLiteral("00:00:00.000"));
    QCOMPARE(told("imageProfileComboBox")->text(QAccessible::Description),
             QStringLiteral("Image profile"));
}

void MainWindowOpeningTest::newWindow_laysItsFormOut()
{
    OpenWindow window;
    QVERIFY(!window.find<QSplitter>("splitter").childrenCollapsible());
    QCOMPARE(window.find<QGroupBox>("groupBox").layout()->contentsMargins(),
             QMargins(10, 10, 10, 10));
    QCOMPARE(window.player().mediaEndAction(), QtAV::MediaEndAction_Pause);
    auto* const output = window.window().findChild<QtAV::VideoOutput*>();
    QVERIFY(output->widget()->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(window.find<QLayout>("videoLayout").indexOf(output->widget()) >= 0);
}

void MainWindowOpeningTest::newWindow_fitsTheSizeThatStartUpGivesIt()
{
    QFile styles(QStringLiteral(":/Styles.qss"));
    QVERIFY(styles.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromLatin1(styles.readAll()));
    {
        OpenWindow window;
        const QSize smallest = window->minimumSizeHint();
        QVERIFY2(smallest.width() <= 800, qPrintable(QString::number(smallest.width())));
        QVERIFY2(smallest.height() <= 600, qPrintable(QString::number(smallest.height())));
    }
    qApp->setStyleSheet(QString());
}

void MainWindowOpeningTest::window_comesUpWithoutAPlayer_whenThereIsNoRenderer()
{
    const TestSettings settings;
    SeenBox box;
    answerNextBox(QMessageBox::Ok, box);
    MainWindow window(nullptr, [](QObject* owner) {
        auto* const output = new QtAV::VideoOutput(owner);
        delete output->widget();
        return output;
    });
    QCOMPARE(box.title, QStringLiteral("Morvantile error"));
    QCOMPARE(box.text, QStringLiteral("Can not create video renderer"));
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY(box.parent == nullptr);
    window.show();
    QVERIFY(!window.findChild<QAction*>(QStringLiteral("actionOpen"))->isEnabled());
    window.openVideo(samplePath(clip));
    QVERIFY(!window.isVideoLoaded());
}

void MainWindowOpeningTest::openVideo_playsAndNamesIt()
{
    OpenWindow window;
    const QString path = window.copyOf(clip, QStringLiteral("a.b.mp4"));
    window->openVideo(path);
    QVERIFY(window->isVideoLoaded());
    QCOMPARE(window->windowTitle(), QStringLiteral("Morvantile - a.b.mp4"));
    QCOMPARE(window->currentVideoFilePath(), path);
    QCOMPARE(window->currentVideoFileName(), QStringLiteral("a.b.mp4"));
    QCOMPARE(window->currentVideoFileBaseName(), QStringLiteral("a"));
    QCOMPARE(window->currentVideoFileDir(), QDir(window.dir().path()));
    QVERIFY(window.find<QSlider>("videoSlider").isEnabled());
    QVERIFY(window.find<QFrame>("videoControlsFrame").isEnabled());
    QVERIFY(window.find<QAction>("actionTake_Snapshot").isEnabled());
    QVERIFY(window.find<QAction>("actionStepForward").isEnabled());
    QVERIFY(!window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QVERIFY(!isOpenButtonOnTop(window));
    QCOMPARE(window.find<QLineEdit>("outputFolderLineEdit").text(), window.dir().path());
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayPosition() > 0, patienceMs);
    QVERIFY(window.player().isPlaying());
}

void MainWindowOpeningTest::openVideo_takesTheVolumeFromThePopup()
{
    OpenWindow window;
    window.window().findChild<VolumePopup*>()->findChild<QSlider*>()->setValue(30);
    window.player().audio()->setVolume(1.0);
    window->openVideo(samplePath(clip));
    QCOMPARE(window.player().audio()->volume(), 0.3);
}

void MainWindowOpeningTest::openVideo_closesTheOneBefore()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    window->openVideo(window.copyOf(clip, QStringLiteral("next.mp4")));
    QVERIFY(!window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QCOMPARE(window->windowTitle(), QStringLiteral("Morvantile - next.mp4"));
}

void MainWindowOpeningTest::openVideo_showsDuration_whenItIsKnown()
{
    OpenWindow window;
    window->openVideo(samplePath(clip));
    QTRY_COMPARE_WITH_TIMEOUT(window.find<QLabel>("durationLabel").text(),
                              QStringLiteral("00:00:04.000"), patienceMs);
    QCOMPARE(window.find<QSlider>("videoSlider").maximum(), 4000 / 30);
}

void MainWindowOpeningTest::closeVideo_leavesTheWindowAsItWasNew()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    window->skipForward();
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayPosition() >= 1000, patienceMs);
    QVERIFY(window.takeSnapshot());
    window->closeVideo();
    QVERIFY(!window->isVideoLoaded());
    QCOMPARE(window->windowTitle(), QStringLiteral("Morvantile"));
    QVERIFY(!window.find<QFrame>("videoControlsFrame").isEnabled());
    QVERIFY(!window.find<QFrame>("snapshotControlsFrame").isEnabled());
    QCOMPARE(window.find<QLabel>("durationLabel").text(), QStringLiteral("00:00:00.000"));
    QTRY_COMPARE(window.find<QLabel>("positionLabel").text(), QStringLiteral("00:00:00.000"));
    QVERIFY(window.find<QLineEdit>("outputFolderLineEdit").text().isEmpty());
    QVERIFY(isOpenButtonOnTop(window));
    QTRY_COMPARE(window.player().state(), QtAV::AVPlayer::StoppedState);
}

void MainWindowOpeningTest::openVideo_saysSo_whenTheFileIsNoVideo()
{
    OpenWindow window;
    window->openVideo(samplePath(QStringLiteral("random_bytes.mp4")));
    QPushButton& button = window.find<QPushButton>("openVideoLabel");
    QTRY_VERIFY_WITH_TIMEOUT(button.text().contains(QStringLiteral("cannot be played")),
                             patienceMs);
    QVERIFY(button.text().startsWith(QStringLiteral("random_bytes.mp4")));
    QVERIFY(isOpenButtonOnTop(window));
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void MainWindowOpeningTest::openVideo_playsTheNext_afterOneThatCannotBePlayed()
{
    OpenWindow window;
    QPushButton& button = window.find<QPushButton>("openVideoLabel");
    window->openVideo(samplePath(QStringLiteral("random_bytes.mp4")));
    QTRY_VERIFY_WITH_TIMEOUT(button.text().contains(QStringLiteral("cannot be played")),
                             patienceMs);
    QVERIFY(window.openPaused(samplePath(clip)));
    QCOMPARE(button.text(), QStringLiteral("Click to open video"));
    QVERIFY(!isOpenButtonOnTop(window));
}

void MainWindowOpeningTest::lastOpenDir_followsTheVideo()
{
    OpenWindow window;
    window->openVideo(window.copyOf(clip, QStringLiteral("a.mp4")));
    const QString key = QStringLiteral("lastOpenDir");
    QCOMPARE(QSettings().value(key).toString(), window.dir().path());
    QVERIFY(QDir(window.dir().path()).mkdir(QStringLiteral("sub")));
    window->openVideo(window.copyOf(clip, QStringLiteral("sub/b.mp4")));
    QCOMPARE(QSettings().value(key).toString(), window.dir().filePath(QStringLiteral("sub")));
}

void MainWindowOpeningTest::lastOpenDir_followsAgain_whenTheFolderIsGone()
{
    OpenWindow window;
    QVERIFY(QDir(window.dir().path()).mkdir(QStringLiteral("sub")));
    window->openVideo(window.copyOf(clip, QStringLiteral("sub/b.mp4")));
    QVERIFY(QDir(window.dir().filePath(QStringLiteral("sub"))).removeRecursively());
    window->openVideo(window.copyOf(clip, QStringLiteral("a.mp4")));
    QCOMPARE(QSettings().value(QStringLiteral("lastOpenDir")).toString(), window.dir().path());
}

void MainWindowOpeningTest::openDialog_pausesTheVideo_whenCancelled()
{
    OpenWindow window;
    const QString path = samplePath(clip);
    window->openVideo(path);
    QTRY_VERIFY_WITH_TIMEOUT(window.player().displayedFrame().isValid(), patienceMs);
    QString filter;
    QTimer::singleShot(0, &window.window(), [&filter] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        filter = dialog->nameFilters().value(0);
        dialog->reject();
    });
    window.find<QAction>("actionOpen").trigger();
    QVERIFY(filter.startsWith(QStringLiteral("Video Files (*.avi")));
    QCOMPARE(window->currentVideoFilePath(), path);
    QTRY_VERIFY(window.player().isPaused());
}

void MainWindowOpeningTest::drop_opensTheFirstVideo()
{
    OpenWindow window;
    const QString video = window.copyOf(clip, QStringLiteral("film.mp4"));
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(QCoreApplication::applicationFilePath()), QUrl::fromLocalFile(video)});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&window.window(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({50, 50}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window.window(), &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), video, patienceMs);
}

void MainWindowOpeningTest::closing_asksNothingAndEndsTheApplication()
{
    OpenWindow window;
    window->openVideo(samplePath(clip));
    const QPointer<QtAV::VideoOutput> output = window.window().findChild<QtAV::VideoOutput*>();
    QTimer::singleShot(0, &window.window(), [&window] { window->close(); });
    QTimer watchdog;
    watchdog.setSingleShot(true);
    connect(&watchdog, &QTimer::timeout, qApp, [] { QCoreApplication::exit(1); });
    watchdog.start(patienceMs);
    QCOMPARE(QCoreApplication::exec(), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(output.isNull());
    QVERIFY(window->isVisible());
}

QTEST_MAIN(MainWindowOpeningTest)
#include "MainWindowOpeningTest.moc"
