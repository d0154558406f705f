#include "tests/ui/mainwindow/OpenWindow.h"

#include "tests/support/Samples.h"
#include "ui/filmstrip/Filmstrip.h"

#include <QtAV/AVPlayer.h>

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QUrl>

using namespace testsupport;

/// The state that the next window, and the next video, find.
class MainWindowMemoryTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void keepUrl(const QUrl& url) { m_url = url; }

private Q_SLOTS:
    void initTestCase();

    void sizeSplitterAndAutomaticNaming_areRemembered();
    void chosenOutputFolder_staysForOtherVideosAndWindows();
    void outputFolder_followsTheVideoAgain_onceItIsGivenUp_data();
    void outputFolder_followsTheVideoAgain_onceItIsGivenUp();
    void folderBeingTyped_isChosen_whenAnotherVideoIsOpened();
    void openedFolder_isWhereTheNextDialogStarts();
    void savedFile_isShownInItsFolder();

private:
    QUrl m_url;
};

namespace {

void typeFolder(OpenWindow& window, const QString& folder)
{
    auto& edit = window.find<QLineEdit>("outputFolderLineEdit");
    edit.setText(folder);
    Q_EMIT edit.editingFinished();
}

QString folderIn(OpenWindow& window)
{
    return window.find<QLineEdit>("outputFolderLineEdit").text();
}

/// Ends a window like the program does.
void end(OpenWindow& window)
{
    window->confirmQuit();
}

QString makeFolder(OpenWindow& window, const QString& name)
{
    if (!QDir(window.dir().path()).mkpath(name)) {
        qFatal("cannot make a folder");
    }
    return window.dir().filePath(name);
}

} // namespace

/// There is no session bus that could have a file manager.
void MainWindowMemoryTest::initTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
}

void MainWindowMemoryTest::sizeSplitterAndAutomaticNaming_areRemembered()
{
    OpenWindow window;
    window->resize(790, 590);
    auto& splitter = window.find<QSplitter>("splitter");
    splitter.setSizes({420, 360});
    const QList<int> sizes = splitter.sizes();
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    end(window);

    MainWindow next;
    next.restoreLayout();
    next.show();
    QCOMPARE(next.size(), QSize(790, 590));
    QCOMPARE(next.findChild<QSplitter*>(QStringLiteral("splitter"))->sizes(), sizes);
    QVERIFY(next.findChild<QGroupBox*>(QStringLiteral("automaticFileNameGroupBox"))->isChecked());
}

void MainWindowMemoryTest::chosenOutputFolder_staysForOtherVideosAndWindows()
{
    OpenWindow window;
    const QString stills = makeFolder(window, QStringLiteral("stills"));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a.mp4"))));
    QCOMPARE(folderIn(window), window.dir().path());
    typeFolder(window, stills);
    makeFolder(window, QStringLiteral("other"));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("other/b.mp4"))));
    QCOMPARE(folderIn(window), stills);
    end(window);

    MainWindow next;
    next.restoreLayout();
    next.openVideo(window.dir().filePath(QStringLiteral("a.mp4")));
    const auto* const edit = next.findChild<QLineEdit*>(QStringLiteral("outputFolderLineEdit"));
    QCOMPARE(edit->text(), stills);
    QVERIFY(QDir(stills).removeRecursively());
    next.openVideo(window.dir().filePath(QStringLiteral("other/b.mp4")));
    QCOMPARE(edit->text(), window.dir().filePath(QStringLiteral("other")));
}

void MainWindowMemoryTest::outputFolder_followsTheVideoAgain_onceItIsGivenUp_data()
{
    QTest::addColumn<bool>("isEmptied");
    QTest::newRow("emptied") << true;
    QTest::newRow("the video's own") << false;
}

void MainWindowMemoryTest::outputFolder_followsTheVideoAgain_onceItIsGivenUp()
{
    QFETCH(const bool, isEmptied);
    OpenWindow window;
    const QString other = makeFolder(window, QStringLiteral("other"));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a.mp4"))));
    typeFolder(window, other);
    typeFolder(window, isEmptied ? QString() : window.dir().path());
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("other/b.mp4"))));
    QCOMPARE(folderIn(window), other);
    QVERIFY(window.openPaused(window.dir().filePath(QStringLiteral("a.mp4"))));
    QCOMPARE(folderIn(window), window.dir().path());
}

/// The buttons do not take the keyboard from the field.
void MainWindowMemoryTest::folderBeingTyped_isChosen_whenAnotherVideoIsOpened()
{
    OpenWindow window;
    const QString stills = makeFolder(window, QStringLiteral("stills"));
    const QString next = window.copyOf(clip, QStringLiteral("b.mp4"));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a.mp4"))));
    window.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    QVERIFY(window.takeSnapshot());
    QApplication::setActiveWindow(&window.window());
    auto& field = window.find<QLineEdit>("outputFolderLineEdit");
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, stills);
    QTest::mouseClick(&window.find<QPushButton>("snapshotButton"), Qt::LeftButton);
    QTRY_COMPARE(window->findChild<Filmstrip*>()->shelf().rowCount(), 2);
    QVERIFY(field.hasFocus());
    QTRY_VERIFY(window.find<QAction>("actionNextVideo").isEnabled());
    press(Qt::Key_PageDown, Qt::ControlModifier);
    QTRY_COMPARE(window->currentVideoFilePath(), next);
    QVERIFY(!field.hasFocus());
    QCOMPARE(folderIn(window), stills);
    QCOMPARE(QSettings().value(QStringLiteral("outputFolder")).toString(), stills);
}

void MainWindowMemoryTest::openedFolder_isWhereTheNextDialogStarts()
{
    OpenWindow window;
    makeFolder(window, QStringLiteral("dropped"));
    window->openFromOutside(window.copyOf(clip, QStringLiteral("dropped/a.mp4")));
    QCOMPARE(QSettings().value(QStringLiteral("openDialog_dialogPath")).toString(),
             window.dir().filePath(QStringLiteral("dropped")));
}

void MainWindowMemoryTest::savedFile_isShownInItsFolder()
{
    OpenWindow window;
    auto& button = window.find<QPushButton>("showInFolderButton");
    QVERIFY(window.openPaused(samplePath(clip)));
    QVERIFY(window.takeSnapshot());
    QVERIFY(!button.isVisible());
    QVERIFY(!window->saveSnapshot(window.dir().filePath(QStringLiteral("none/a.png"))));
    QVERIFY(!button.isVisible());
    QVERIFY(window->saveSnapshot(window.dir().filePath(QStringLiteral("a.png"))));
    QVERIFY(button.isVisible());
    QVERIFY(window.find<QAction>("actionShow_in_Folder").isEnabled());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "keepUrl");
    button.click();
    QTRY_COMPARE(m_url, QUrl::fromLocalFile(window.dir().path()));
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
}

QTEST_MAIN(MainWindowMemoryTest)
#include "MainWindowMemoryTest.moc"
