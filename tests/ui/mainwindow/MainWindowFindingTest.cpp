#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/support/SharpFrames.h"
#include "tests/support/TestDir.h"
#include "tests/ui/support/ShownText.h"
#include "ui/batch/BatchModeDialog.h"
#include "ui/filmstrip/Filmstrip.h"
#include "ui/mainwindow/BestFramesDialog.h"

#include <QtAV/AVPlayer.h>
#include <QtAV/VideoOutput.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QUrl>

using namespace testsupport;

/// Finding a video and a frame, and zooming, in the whole window.
class MainWindowFindingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void zoom_isByKeys();
    void arrowKeys_stepThroughTheVideo_whileTheFilmstripHasTheKeyboard();
    void nextAndPreviousVideo_areOpenedByKeys();
    void nextVideo_isAskedAbout_whenASnapshotWouldBeLost();
    void recentVideo_isOpenedFromTheMenu();
    void severalVideos_areAskedAbout_withTheNameOfTheFirst();
    void severalVideos_areOpenedOrGoToBatchMode_data();
    void severalVideos_areOpenedOrGoToBatchMode();
    void bestFrame_isTaken();

private:
    TestDir m_config;
};

namespace {

/// Presses a button of the next message box, identified by its text.
void pressInNextBox(QObject& owner, const QString& text)
{
    auto* const timer = new QTimer(&owner);
    QObject::connect(timer, &QTimer::timeout, &owner, [timer, text] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        timer->stop();
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* const button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                button->click();
                return;
            }
        }
        box->reject();
    });
    timer->start(10);
}

} // namespace

/// Without the list of videos that batch mode kept in an earlier run.
void MainWindowFindingTest::initTestCase()
{
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_config.path()));
}

void MainWindowFindingTest::zoom_isByKeys()
{
    OpenWindow window;
    const auto shown = [&window] { return window->statusBar()->currentMessage(); };
    QVERIFY(!window.find<QAction>("actionFourfold").isEnabled());
    QVERIFY(!window.find<QAction>("actionFitVideo").isEnabled());
    QVERIFY(window.openPaused(samplePath(clip)));
    QApplication::setActiveWindow(&window.window());
    press(Qt::Key_4);
    QCOMPARE(shown(), QStringLiteral("400 %"));
    press(Qt::Key_1);
    press(Qt::Key_1);
    QCOMPARE(shown(), QStringLiteral("100 %"));
    press(Qt::Key_4);
    press(Qt::Key_0);
    window->statusBar()->clearMessage();
    // It is fitted now, and stays so even if requested twice.
    press(Qt::Key_0);
    QCOMPARE(shown(), QString());
    press(Qt::Key_1);
    QCOMPARE(shown(), QStringLiteral("100 %"));
}

void MainWindowFindingTest::arrowKeys_stepThroughTheVideo_whileTheFilmstripHasTheKeyboard()
{
    OpenWindow window;
    QVERIFY(window.openPaused(samplePath(clip)));
    auto& strip = *window->findChild<Filmstrip*>();
    for (const qint64 ms : {400, 800}) {
        window.player().setPosition(ms);
        QVERIFY(waitForPosition(window.player(), ms));
        const int count = strip.shelf().rowCount();
        window->snapshotButtonPressed();
        QTRY_COMPARE_WITH_TIMEOUT(strip.shelf().rowCount(), count + 1, patienceMs);
    }
    QApplication::setActiveWindow(&window.window());
    auto& list = window.find<QListView>("filmstrip");
    list.setFocus();
    const QStringList second = strip.selected();
    QCOMPARE(second.size(), 1);
    press(Qt::Key_Right);
    QVERIFY(waitForPosition(window.player(), 840));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    QVERIFY(waitForPosition(window.player(), 760));
    QCOMPARE(strip.selected(), second);
    // The list's own keys.
    press(Qt::Key_Up);
    QVERIFY(strip.selected() != second);
    press(Qt::Key_Return);
    QVERIFY(waitForPosition(window.player(), 400));
    press(Qt::Key_Down);
    QCOMPARE(strip.selected(), second);
    QVERIFY(list.hasFocus());
}

void MainWindowFindingTest::nextAndPreviousVideo_areOpenedByKeys()
{
    OpenWindow window;
    const QString ninth = window.copyOf(clip, QStringLiteral("take 9.mp4"));
    const QString tenth = window.copyOf(clip, QStringLiteral("take 10.mp4"));
    const QAction& next = window.find<QAction>("actionNextVideo");
    const QAction& previous = window.find<QAction>("actionPreviousVideo");
    QVERIFY(!next.isEnabled() && !previous.isEnabled());
    QVERIFY(window.openPaused(ninth));
    QTRY_VERIFY_WITH_TIMEOUT(next.isEnabled(), patienceMs);
    QVERIFY(!previous.isEnabled());
    QApplication::setActiveWindow(&window.window());
    press(Qt::Key_PageDown, Qt::ControlModifier);
    QCOMPARE(window->currentVideoFilePath(), tenth);
    QTRY_VERIFY_WITH_TIMEOUT(previous.isEnabled(), patienceMs);
    QVERIFY(!next.isEnabled());
    press(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(window->currentVideoFilePath(), ninth);
    window->closeVideo();
    QVERIFY(!next.isEnabled() && !previous.isEnabled());
}

void MainWindowFindingTest::nextVideo_isAskedAbout_whenASnapshotWouldBeLost()
{
    OpenWindow window;
    SnapshotShelf::Limits limits;
    limits.count = 0;
    window->findChild<Filmstrip*>()->shelf().setLimits(limits);
    const QString first = window.copyOf(clip, QStringLiteral("a.mp4"));
    window.copyOf(clip, QStringLiteral("b.mp4"));
    QVERIFY(window.openPaused(first));
    QVERIFY(window.takeSnapshot());
    QAction& next = window.find<QAction>("actionNextVideo");
    QTRY_VERIFY_WITH_TIMEOUT(next.isEnabled(), patienceMs);
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    next.trigger();
    QCOMPARE(box.text, QStringLiteral("The snapshot has not been saved."));
    QCOMPARE(window->currentVideoFilePath(), first);
}

void MainWindowFindingTest::recentVideo_isOpenedFromTheMenu()
{
    OpenWindow window;
    auto& menu = window.find<QMenu>("menuOpenRecent");
    QVERIFY(!menu.isEnabled());
    const QString first = window.copyOf(clip, QStringLiteral("a.mp4"));
    QVERIFY(window.openPaused(first));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("b.mp4"))));
    QVERIFY(menu.isEnabled());
    Q_EMIT menu.aboutToShow();
    QCOMPARE(menu.actions().at(1)->text(), QStringLiteral("a.mp4"));
    menu.actions().at(1)->trigger();
    QCOMPARE(window->currentVideoFilePath(), first);
}

void MainWindowFindingTest::severalVideos_areAskedAbout_withTheNameOfTheFirst()
{
    OpenWindow window;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(window.dir().makeFile(QStringLiteral("a<b>.mp4"))),
                  QUrl::fromLocalFile(window.dir().makeFile(QStringLiteral("b.mp4")))});
    SeenBox box;
    answerNextBox(QMessageBox::Cancel, box);
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window.window(), &enter);
    QCoreApplication::sendEvent(&window.window(), &drop);
    QTRY_VERIFY_WITH_TIMEOUT(!box.text.isEmpty(), patienceMs);
    const QString shown = shownText(box.informativeText);
    QVERIFY2(shown.contains(QStringLiteral("a<b>.mp4")), qPrintable(shown));
}

void MainWindowFindingTest::severalVideos_areOpenedOrGoToBatchMode_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("open") << "Open";
    QTest::newRow("batch") << "Batch";
    QTest::newRow("cancel") << "Cancel";
}

void MainWindowFindingTest::severalVideos_areOpenedOrGoToBatchMode()
{
    QFETCH(const QString, button);
    OpenWindow window;
    QVERIFY(QDir(window.dir().path()).mkdir(QStringLiteral("day")));
    const QString ninth = window.copyOf(clip, QStringLiteral("day/take 9.mp4"));
    window.copyOf(clip, QStringLiteral("day/take 10.mp4"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(window.dir().filePath(QStringLiteral("day")))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
    bool isAnswered = false;
    QStringList listed;
    pressInNextBox(window.window(), button);
    QTimer dialogs;
    connect(&dialogs, &QTimer::timeout, this, [&] {
        auto* const dialog = qobject_cast<BatchModeDialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr && !dialog->isLoading() && !isAnswered) {
            isAnswered = true;
            const QAbstractItemModel& model =
                *dialog->findChild<QTableView*>(QStringLiteral("filesTableView"))->model();
            for (int row = 0; row < model.rowCount(); ++row) {
                listed.append(QFileInfo(model.index(row, 0).data().toString()).fileName());
            }
            dialog->reject();
        }
    });
    dialogs.start(10);
    QCoreApplication::sendEvent(&window.window(), &enter);
    QCoreApplication::sendEvent(&window.window(), &drop);
    if (button == QStringLiteral("Open")) {
        QTRY_COMPARE_WITH_TIMEOUT(window->currentVideoFilePath(), ninth, patienceMs);
    } else if (button == QStringLiteral("Batch")) {
        QTRY_VERIFY_WITH_TIMEOUT(isAnswered, patienceMs);
        QCOMPARE(listed.size(), 2);
        QVERIFY2(listed.first().contains(QStringLiteral("take 9")), qPrintable(listed.first()));
        QVERIFY(!window->isVideoLoaded());
    } else {
        QTest::qWait(200);
        QVERIFY(!window->isVideoLoaded());
        QVERIFY(!isAnswered);
    }
}

void MainWindowFindingTest::bestFrame_isTaken()
{
    OpenWindow window;
    QVERIFY(window.openPaused(makeVideoOfSharpFrames(window.dir())));
    window.player().setPosition(800);
    QVERIFY(waitForPosition(window.player(), 800));
    window.find<QAction>("actionBestFrames").trigger();
    auto& list = window.find<QListWidget>("bestFramesList");
    // A second around: frames 0 to 45.
    QTRY_VERIFY_WITH_TIMEOUT(list.count() > 0, patienceMs);
    list.setCurrentRow(list.count() - 1);
    window.find<QPushButton>("takeBestButton").click();
    const SnapshotShelf& shelf = window->findChild<Filmstrip*>()->shelf();
    QTRY_COMPARE_WITH_TIMEOUT(shelf.rowCount(), 1, patienceMs);
    QCOMPARE(window->snapshotTimes().size(), 1);
    QCOMPARE(window->snapshotTimes().first() % 400, 200);
    QVERIFY(window->findChild<BestFramesDialog*>()->isVisible());
    // The search belongs to this video only.
    window->closeVideo();
    QCOMPARE(list.count(), 0);
}

QTEST_MAIN(MainWindowFindingTest)
#include "MainWindowFindingTest.moc"
