#include "tests/ui/mainwindow/OpenWindow.h"

#include "imaging/Metadata.h"
#include "profiles/ImageProfile.h"
#include "profiles/ProfileManager.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/Samples.h"
#include "tests/ui/support/ShownText.h"
#include "ui/mainwindow/SavePath.h"

#include <QtAV/AVPlayer.h>

#include <QApplication>
#include <QColorSpace>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <functional>
#include <optional>

using namespace testsupport;

class MainWindowSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void automaticSaving_countsOn();
    void automaticSaving_takesTheFirstFreeNumber_andReplacesNothing();
    void automaticSaving_savesTheSnapshotItBeganWith_whenAnotherComesMeanwhile();
    void automaticSaving_startsOverWithTheNextVideo();
    void automaticSaving_stepsOverALinkThatLeadsNowhere();
    void automaticSaving_keepsItsNumber_whenItFails();
    void automaticSaving_asksForAFolder_whenThereIsNone();
    void automaticSaving_makesTheFolder_whenWanted();
    void automaticSaving_makesNothing_whenNotWanted();
    void nextName_isShown_whileSavingIsAutomatic();
    void nextName_isTheOneOfTheFolder_onceThatIsTyped();

    void saveDialog_offersTheImageTypes();
    void saveDialog_proposesTheVideosName();
    void saveDialog_remembersWhatWasSaved();
    void saveDialog_remembersNothing_whenCancelled();
    void saveDialog_asksBeforeReplacing_whenItCompletesTheName();
    void saveDialog_asksWithTheNameAsItIs();
    void savedElsewhere_staysThere_whenAnotherVideoIsOpened();
    void saveSnapshot_writesTheFile_orSaysThatItCouldNot();
    void savedFile_tellsWhichFrameItIs_andWhatMadeIt();
    void savedFile_holdsMoreThanTheScreen_whereItsProfileSaysSo();
};

namespace {

/// A window with a paused video "clip.mp4" in its folder and a snapshot taken from it.
class Snapshot : public OpenWindow
{
public:
    Snapshot()
    {
        if (!openPaused(copyOf(clip, QStringLiteral("clip.mp4"))) || !takeSnapshot()) {
            qFatal("no snapshot");
        }
    }

    void setAutomatic() { find<QGroupBox>("automaticFileNameGroupBox").setChecked(true); }
    void setFolder(const QString& path) { find<QLineEdit>("outputFolderLineEdit").setText(path); }
    QString nextName() { return find<QLabel>("nextFileNameLabel").text(); }

    QStringList images() const
    {
        return QDir(dir().path()).entryList({QStringLiteral("*.jp*g"), QStringLiteral("*.png")});
    }
};

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

/// Saves through the dialog, which is passed to `answer` once it is open.
void saveWithDialog(OpenWindow& window, const std::function<void(QFileDialog&)>& answer)
{
    QTimer::singleShot(0, &window.window(), [&answer] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            qFatal("no save dialog");
        }
        answer(*dialog);
    });
    window->saveButtonPressed();
}

void chooseIn(QFileDialog& dialog, const QString& path)
{
    dialog.selectFile(path);
    QMetaObject::invokeMethod(&dialog, "accept");
}

} // namespace

void MainWindowSavingTest::automaticSaving_countsOn()
{
    Snapshot window;
    window.setAutomatic();
    window->saveButtonPressed();
    window->on_actionSaveSnapshot_triggered();
    QCOMPARE(window.images(),
             (QStringList{QStringLiteral("clip-00001.jpeg"), QStringLiteral("clip-00002.jpeg")}));
    QCOMPARE(window.nextName(), QStringLiteral("clip-00003.jpeg"));
    QImageReader image(window.dir().filePath(QStringLiteral("clip-00001.jpeg")));
    QCOMPARE(image.format(), QByteArray("jpeg"));
    QCOMPARE(image.read().width(), 640);
}

void MainWindowSavingTest::automaticSaving_takesTheFirstFreeNumber_andReplacesNothing()
{
    Snapshot window;
    for (int number = 1; number <= 3; ++number) {
        writeFile(window.dir().filePath(QStringLiteral("clip-0000%1.jpeg").arg(number)), "mine");
    }
    window.setAutomatic();
    QCOMPARE(window.nextName(), QStringLiteral("clip-00004.jpeg"));
    window->saveButtonPressed();
    QCOMPARE(window.images().size(), 4);
    QCOMPARE(window.nextName(), QStringLiteral("clip-00005.jpeg"));
    QCOMPARE(QFileInfo(window.dir().filePath(QStringLiteral("clip-00003.jpeg"))).size(), 4);
}

/// The window stays responsive while a file is written: another frame may be captured then.
void MainWindowSavingTest::automaticSaving_savesTheSnapshotItBeganWith_whenAnotherComesMeanwhile()
{
    Snapshot window;
    window.setAutomatic();
    const std::optional<int> first = frameNumber(window.player().displayedFrame().toImage());
    QImage other(320, 240, QImage::Format_RGB888);
    other.fill(Qt::red);
    QTimer::singleShot(0, &window.window(), [&] {
        window->snapshotButtonPressed();
        window->snapshotCaptured(other);
    });
    window->saveButtonPressed();
    QTRY_COMPARE(window.images(), QStringList(QStringLiteral("clip-00001.jpeg")));
    const QImage saved(window.dir().filePath(QStringLiteral("clip-00001.jpeg")));
    QVERIFY(first.has_value());
    QCOMPARE(frameNumber(saved), first);
}

void MainWindowSavingTest::automaticSaving_startsOverWithTheNextVideo()
{
    Snapshot window;
    window.setAutomatic();
    window->saveButtonPressed();
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("next.mp4"))));
    QCOMPARE(window.nextName(), QStringLiteral("next-00001.jpeg"));
}

void MainWindowSavingTest::automaticSaving_stepsOverALinkThatLeadsNowhere()
{
    Snapshot window;
    const QString link = window.dir().filePath(QStringLiteral("clip-00001.jpeg"));
    QVERIFY(QFile::link(window.dir().filePath(QStringLiteral("gone")), link));
    window.setAutomatic();
    window->saveButtonPressed();
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(QFileInfo::exists(window.dir().filePath(QStringLiteral("clip-00002.jpeg"))));
    QVERIFY(!QFileInfo::exists(window.dir().filePath(QStringLiteral("gone"))));
}

void MainWindowSavingTest::automaticSaving_keepsItsNumber_whenItFails()
{
    Snapshot window;
    window.setAutomatic();
    const QString file = window.dir().filePath(QStringLiteral("file"));
    writeFile(file, "no folder");
    window.setFolder(file + QStringLiteral("/below"));
    SeenBox box;
    answerNextBox(QMessageBox::Yes, box);
    window->saveButtonPressed();
    QCOMPARE(window.nextName(), QStringLiteral("clip-00001.jpeg"));
    QVERIFY(window->statusBar()->currentMessage().startsWith(QStringLiteral("Could not save ")));
}

void MainWindowSavingTest::automaticSaving_asksForAFolder_whenThereIsNone()
{
    Snapshot window;
    window.setAutomatic();
    for (const char* const folder : {"", "pictures"}) {
        window.setFolder(QString::fromLatin1(folder));
        SeenBox box;
        answerNextBox(QMessageBox::Ok, box);
        window->saveButtonPressed();
        QCOMPARE(box.title, QStringLiteral("Unknown Folder"));
        QCOMPARE(box.text,
                 QStringLiteral(
                     "Please enter a valid output folder in the Automatic File Name section."));
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.parent, &window.window());
        QLineEdit& edit = window.find<QLineEdit>("outputFolderLineEdit");
        QCOMPARE(window->focusWidget(), &edit);
        edit.clearFocus();
    }
    QVERIFY(window.images().isEmpty());
}

void MainWindowSavingTest::automaticSaving_makesTheFolder_whenWanted()
{
    Snapshot window;
    window.setAutomatic();
    const QString folder = window.dir().filePath(QStringLiteral("a/b"));
    window.setFolder(folder);
    SeenBox box;
    answerNextBox(QMessageBox::Yes, box);
    window->saveButtonPressed();
    QCOMPARE(box.title, QStringLiteral("Folder does not exist"));
    QCOMPARE(box.text, QStringLiteral("Create folder?\r\n") + folder);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QVERIFY(QFileInfo::exists(folder + QStringLiteral("/clip-00001.jpeg")));
}

void MainWindowSavingTest::automaticSaving_makesNothing_whenNotWanted()
{
    Snapshot window;
    window.setAutomatic();
    const QString folder = window.dir().filePath(QStringLiteral("a"));
    window.setFolder(folder);
    SeenBox box;
    answerNextBox(QMessageBox::No, box);
    window->saveButtonPressed();
    QCOMPARE(box.title, QStringLiteral("Folder does not exist"));
    QVERIFY(!QFileInfo::exists(folder));
    QVERIFY(window.images().isEmpty());
}

void MainWindowSavingTest::nextName_isShown_whileSavingIsAutomatic()
{
    Snapshot window;
    const QLabel& next = window.find<QLabel>("nextFileNameLabel");
    const QLabel& description = window.find<QLabel>("nextFileNameDescriptionLabel");
    QVERIFY(!next.isVisible() && !description.isVisible());
    window.setAutomatic();
    QVERIFY(next.isVisible() && description.isVisible());
    QCOMPARE(next.text(), QStringLiteral("clip-00001.jpeg"));
    window->closeVideo();
    QVERIFY(!next.isVisible() && !description.isVisible());
}

void MainWindowSavingTest::nextName_isTheOneOfTheFolder_onceThatIsTyped()
{
    Snapshot window;
    window.setAutomatic();
    const QLabel& next = window.find<QLabel>("nextFileNameLabel");
    QCOMPARE(next.text(), QStringLiteral("clip-00001.jpeg"));
    const QString folder = window.dir().filePath(QStringLiteral("full"));
    QVERIFY(QDir().mkpath(folder));
    writeFile(folder + QStringLiteral("/clip-00001.jpeg"), "old");
    window.setFolder(folder);
    QApplication::setActiveWindow(&window.window());
    auto& field = window.find<QLineEdit>("outputFolderLineEdit");
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(next.text(), QStringLiteral("clip-00002.jpeg"));
    QVERIFY(!field.hasFocus());
}

void MainWindowSavingTest::saveDialog_offersTheImageTypes()
{
    Snapshot window;
    bool isSeen = false;
    saveWithDialog(window, [&isSeen](QFileDialog& dialog) {
        isSeen = true;
        QCOMPARE(dialog.objectName(), QStringLiteral("saveDialog"));
        QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog.nameFilters(), SavePath::nameFilters());
        QCOMPARE(dialog.nameFilters().mid(0, 4).join(QLatin1Char(';')),
                 QStringLiteral("JPEG (*.jpg *.jpeg);PNG (*.png);BMP (*.bmp);TIFF (*.tif *.tiff)"));
        dialog.reject();
    });
    QVERIFY(isSeen);
}

void MainWindowSavingTest::saveDialog_proposesTheVideosName()
{
    Snapshot window;
    saveWithDialog(window, [&window](QFileDialog& dialog) {
        QCOMPARE(dialog.directory(), QDir(window.dir().path()));
        QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(), QStringLiteral("clip"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    // A name without a type gets that of the filter.
    QCOMPARE(window.images(), QStringList{QStringLiteral("clip.jpg")});
}

void MainWindowSavingTest::saveDialog_remembersWhatWasSaved()
{
    Snapshot window;
    const QString png = QStringLiteral("PNG (*.png)");
    saveWithDialog(window, [&png](QFileDialog& dialog) {
        dialog.selectNameFilter(png);
        chooseIn(dialog, QStringLiteral("one.png"));
    });
    QCOMPARE(window.images(), QStringList{QStringLiteral("one.png")});
    saveWithDialog(window, [&png](QFileDialog& dialog) {
        QCOMPARE(dialog.selectedNameFilter(), png);
        // The next free name.
        QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(),
                 QStringLiteral("one-2.png"));
        dialog.reject();
    });
    // The type is also proposed for the next video.
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("a.b.mp4"))));
    QVERIFY(window.takeSnapshot());
    saveWithDialog(window, [](QFileDialog& dialog) {
        QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(), QStringLiteral("a.b.png"));
        dialog.reject();
    });
}

void MainWindowSavingTest::saveDialog_remembersNothing_whenCancelled()
{
    Snapshot window;
    QVERIFY(QDir(window.dir().path()).mkdir(QStringLiteral("sub")));
    saveWithDialog(window, [&window](QFileDialog& dialog) {
        dialog.selectNameFilter(QStringLiteral("BMP (*.bmp)"));
        dialog.setDirectory(window.dir().filePath(QStringLiteral("sub")));
        dialog.selectFile(QStringLiteral("other.bmp"));
        dialog.reject();
    });
    saveWithDialog(window, [&window](QFileDialog& dialog) {
        QCOMPARE(dialog.directory(), QDir(window.dir().path()));
        QCOMPARE(QFileInfo(dialog.selectedFiles().value(0)).fileName(), QStringLiteral("clip"));
        dialog.reject();
    });
}

void MainWindowSavingTest::saveDialog_asksBeforeReplacing_whenItCompletesTheName()
{
    Snapshot window;
    const QString path = window.dir().filePath(QStringLiteral("clip.jpg"));
    writeFile(path, "mine");
    SeenBox box;
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        QCOMPARE(QFileInfo(path).size(), 4);
        saveWithDialog(window, [button, &box](QFileDialog& dialog) {
            answerNextBox(button, box);
            chooseIn(dialog, QStringLiteral("clip"));
        });
        QVERIFY(box.text.startsWith(QStringLiteral("clip.jpg already exists.")));
    }
    QVERIFY(QFileInfo(path).size() > 4);
}

void MainWindowSavingTest::saveDialog_asksWithTheNameAsItIs()
{
    Snapshot window;
    writeFile(window.dir().filePath(QStringLiteral("a<b>.jpg")), "mine");
    SeenBox box;
    saveWithDialog(window, [&box](QFileDialog& dialog) {
        answerNextBox(QMessageBox::No, box);
        chooseIn(dialog, QStringLiteral("a<b>"));
    });
    const QString shown = shownText(box.text);
    QVERIFY2(shown.startsWith(QStringLiteral("a<b>.jpg already exists.\n")), qPrintable(shown));
}

void MainWindowSavingTest::savedElsewhere_staysThere_whenAnotherVideoIsOpened()
{
    Snapshot window;
    const QDir folder(window.dir().path());
    QVERIFY(folder.mkdir(QStringLiteral("stills")));
    QVERIFY(folder.mkdir(QStringLiteral("videos")));
    const QString stills = folder.filePath(QStringLiteral("stills"));
    saveWithDialog(window, [&stills](QFileDialog& dialog) {
        dialog.setDirectory(stills);
        chooseIn(dialog, QStringLiteral("one.jpg"));
    });
    QVERIFY(QFileInfo::exists(stills + QStringLiteral("/one.jpg")));
    QVERIFY(window.openPaused(window.copyOf(clip, QStringLiteral("videos/b.mp4"))));
    QCOMPARE(QSettings().value(QStringLiteral("lastOpenDir")).toString(), folder.path());
    QVERIFY(window.takeSnapshot());
    saveWithDialog(window, [&stills](QFileDialog& dialog) {
        QCOMPARE(dialog.directory(), QDir(stills));
        dialog.reject();
    });
}

void MainWindowSavingTest::saveSnapshot_writesTheFile_orSaysThatItCouldNot()
{
    Snapshot window;
    QVERIFY(window->saveSnapshot(window.dir().filePath(QStringLiteral("a.png"))));
    QVERIFY(window->statusBar()->currentMessage().startsWith(QStringLiteral("Saved ")));
    QVERIFY(!window->saveSnapshot(window.dir().filePath(QStringLiteral("none/a.png"))));
    QCOMPARE(window->statusBar()->currentMessage(),
             QStringLiteral("Could not save a.png: The folder is gone: ") +
                 window.dir().filePath(QStringLiteral("none")));
}

void MainWindowSavingTest::savedFile_tellsWhichFrameItIs_andWhatMadeIt()
{
    OpenWindow window;
    ImageProfile& profile =
        *qobject_cast<ImageProfile*>(ImageProfile::profileManager()->profiles().constFirst());
    profile.setImageContrast(17);
    profile.setMetadata(ImageProfile::MetadataAll);
    const QString video = window.copyOf(clip, QStringLiteral("clip.mp4"));
    QVERIFY(window.openPaused(video));
    window.player().setPosition(1500);
    QTRY_COMPARE(window.player().displayPosition(), 1520);
    QVERIFY(window.takeSnapshot());
    // The snapshot was made with other values than its profile has now.
    profile.setImageContrast(3);
    const QString path = window.dir().filePath(QStringLiteral("a.jpg"));
    QVERIFY(window->saveSnapshot(path));
    QString error;
    const auto origin = imaging::readOrigin(path, error);
    QVERIFY2(origin, qPrintable(error));
    QCOMPARE(origin->positionMs, 1520);
    QCOMPARE(origin->videoPath, video);
    QCOMPARE(origin->recipe.contrast, 17);
    profile.setMetadata(ImageProfile::NoMetadata);
    QVERIFY(window->saveSnapshot(path));
    QVERIFY(!imaging::readOrigin(path, error));
}

void MainWindowSavingTest::savedFile_holdsMoreThanTheScreen_whereItsProfileSaysSo()
{
    OpenWindow window;
    ImageProfile& profile =
        *qobject_cast<ImageProfile*>(ImageProfile::profileManager()->profiles().constFirst());
    profile.setSameSizeAsVideo(true);
    QVERIFY(window.openPaused(samplePath(QStringLiteral("colour_pq_plain.mkv"))));
    QVERIFY(window.takeSnapshot());
    const auto saved = [&](const char* name) {
        const QString path = window.dir().filePath(QString::fromLatin1(name));
        return window->saveSnapshot(path) ? QImage(path) : QImage();
    };
    const QImage usual = saved("usual.png");
    QCOMPARE(usual.depth(), 32);
    profile.setDeepColours(true);
    const QImage deep = saved("deep.png");
    QCOMPARE(deep.depth(), 64);
    // Dithered there, and more exact here.
    const QPoint middle(120, 120);
    QVERIFY(std::abs(deep.pixelColor(middle).red() - usual.pixelColor(middle).red()) <= 1);
    profile.setHdr(ImageProfile::HdrAsStored);
    const QImage stored = saved("stored.png");
    QCOMPARE(stored.depth(), 64);
    QVERIFY(stored.colorSpace() != deep.colorSpace());
    QVERIFY(stored != deep);
    QCOMPARE(saved("usual.jpg").depth(), 32);
}

QTEST_MAIN(MainWindowSavingTest)
#include "MainWindowSavingTest.moc"
