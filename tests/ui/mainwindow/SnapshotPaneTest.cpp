#include "ui/mainwindow/SnapshotPane.h"

#include "profiles/ImageProfile.h"
#include "tests/ui/mainwindow/OpenWindow.h"
#include "ui/theme/ActionButton.h"
#include "ui/theme/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace testsupport;

namespace {

const QString place = QStringLiteral("film.mp4 at 00:00:01.000");

CapturedPicture pictureOf(const QColor& colour)
{
    CapturedPicture picture;
    picture.image = QImage(320, 240, QImage::Format_RGB888);
    picture.image.fill(colour);
    return picture;
}

CapturedPicture earlierPicture(const QString& video)
{
    CapturedPicture picture = pictureOf(Qt::blue);
    picture.source.video = video;
    return picture;
}

/// A pane for a video in a folder of its own, which shows each snapshot that it makes. The profile
/// keeps the video's size.
class Pane
{
public:
    Pane()
    {
        QObject::connect(&pane, &SnapshotPane::made, &pane, [this](const MadeSnapshot& snapshot) {
            pane.showNew(snapshot, place);
            pane.setControlsEnabled(true);
        });
        pane.loadImageProfileComboBox();
        pane.loadFileNameProfileComboBox();
        pane.setupFileDialogs();
        pane.setVideo(path(QStringLiteral("film.mp4")));
        pane.show();
    }

    [[nodiscard]] QString path(const QString& name) const
    {
        return m_settings.dir().filePath(name);
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

    /// The name that the save dialog proposes; the dialog is cancelled.
    [[nodiscard]] QString proposedName()
    {
        QString name;
        QTimer::singleShot(0, &pane, [&name] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) {
                qFatal("no save dialog");
            }
            name = QFileInfo(dialog->selectedFiles().value(0)).fileName();
            dialog->reject();
        });
        pane.showSaveDialog();
        return name;
    }

    void typeFolder(const QString& folder)
    {
        auto& field = find<QLineEdit>("outputFolderLineEdit");
        field.selectAll();
        QTest::keyClicks(&field, folder);
        QTest::keyClick(&field, Qt::Key_Return);
    }

private:
    TestSettings m_settings;

public:
    QSettings settings;
    SnapshotPane pane{settings};
};

} // namespace

class SnapshotPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pane_hasNothingToSave_whenItIsEmpty();
    void snapshot_isUnsaved_untilItWasWritten();
    void snapshot_isKept_onceItWasCopied();
    void written_isToldWithItsId();
    void unwritten_isNotTold_andStaysUnsaved();
    void automaticName_isTheNextFreeOne_inTheFolderOfTheVideo();
    void automaticNames_areKeptForTheNextPane();
    void earlierSnapshot_isMadeWithTheSelectedProfile();
    void earlierSnapshot_isNamedAfterItsOwnVideo();
    void folder_isThatOfTheEarlierSnapshot_onlyWithoutAVideoAndAChoice();
    void profileChosenByTheUser_changesTheSnapshot_andIsTold();
    void controls_needASnapshot();
    void folderField_givesTheKeyboardUp_atReturn();
    void clearedPane_forgetsTheSnapshot_butNotItsVideo();
};

void SnapshotPaneTest::pane_hasNothingToSave_whenItIsEmpty()
{
    Pane pane;
    QVERIFY(pane.pane.isKept());
    QVERIFY(pane.pane.captured().image.isNull());
    QVERIFY(!Theme::isPrimary(pane.pane.saveButton()));
    QVERIFY(!pane.find<QWidget>("snapshotControlsFrame").isEnabled());
}

void SnapshotPaneTest::snapshot_isUnsaved_untilItWasWritten()
{
    Pane pane;
    QSignalSpy unsaved(&pane.pane, &SnapshotPane::unsavedChanged);
    pane.pane.capture(pictureOf(Qt::red));
    QVERIFY(!pane.pane.isKept());
    QVERIFY(unsaved.last().first().toBool());
    QVERIFY(Theme::isPrimary(pane.pane.saveButton()));
    QVERIFY(pane.find<QLabel>("snapshotSummaryLabel").text().contains(QStringLiteral("320")));
    const QString file = pane.path(QStringLiteral("a.png"));
    QVERIFY(pane.pane.saveSnapshot(file));
    QCOMPARE(QImage(file).pixelColor(5, 5), QColor(Qt::red));
    QVERIFY(pane.pane.isKept());
    QVERIFY(!unsaved.last().first().toBool());
}

void SnapshotPaneTest::snapshot_isKept_onceItWasCopied()
{
    Pane pane;
    pane.pane.capture(pictureOf(Qt::blue));
    pane.pane.copySnapshot();
    QVERIFY(pane.pane.isKept());
    QCOMPARE(QApplication::clipboard()->image().pixelColor(5, 5), QColor(Qt::blue));
}

void SnapshotPaneTest::written_isToldWithItsId()
{
    Pane pane;
    QSignalSpy saved(&pane.pane, &SnapshotPane::saved);
    QSignalSpy file(&pane.pane, &SnapshotPane::savedFileChanged);
    pane.pane.capture(pictureOf(Qt::red));
    QVERIFY(pane.pane.id().isEmpty());
    pane.pane.setId(QStringLiteral("seven"));
    QVERIFY(pane.pane.saveSnapshot(pane.path(QStringLiteral("a.png"))));
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first().first().toString(), QStringLiteral("seven"));
    QCOMPARE(file.size(), 1);
}

void SnapshotPaneTest::unwritten_isNotTold_andStaysUnsaved()
{
    Pane pane;
    QSignalSpy saved(&pane.pane, &SnapshotPane::saved);
    QSignalSpy message(&pane.pane, &SnapshotPane::message);
    pane.pane.capture(pictureOf(Qt::red));
    QVERIFY(!pane.pane.saveSnapshot(pane.path(QStringLiteral("none/a.png"))));
    QVERIFY(!pane.pane.isKept());
    QVERIFY(saved.isEmpty());
    QCOMPARE(message.size(), 1);
    QVERIFY(message.first().first().toString().contains(QStringLiteral("a.png")));
}

void SnapshotPaneTest::automaticName_isTheNextFreeOne_inTheFolderOfTheVideo()
{
    Pane pane;
    pane.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    pane.pane.capture(pictureOf(Qt::red));
    const auto& next = pane.find<QLabel>("nextFileNameLabel");
    const QString first = next.text();
    QVERIFY(!QFile::exists(pane.path(first)));
    pane.find<QLineEdit>("outputFolderLineEdit").setText(pane.path({}));
    pane.pane.save();
    QVERIFY(QFile::exists(pane.path(first)));
    QVERIFY(next.text() != first);
    QVERIFY(!QFile::exists(pane.path(next.text())));
}

void SnapshotPaneTest::automaticNames_areKeptForTheNextPane()
{
    Pane pane;
    auto& box = pane.find<QGroupBox>("automaticFileNameGroupBox");
    QVERIFY(!box.isChecked());
    box.setChecked(true);
    pane.pane.storeState();
    SnapshotPane next(pane.settings);
    next.restoreState();
    QVERIFY(next.findChild<QGroupBox*>(QStringLiteral("automaticFileNameGroupBox"))->isChecked());
}

void SnapshotPaneTest::earlierSnapshot_isMadeWithTheSelectedProfile()
{
    Pane pane;
    const ImageProfile* const narrow = addImageProfile(QStringLiteral("narrow"), 32);
    pane.pane.loadImageProfileComboBox();
    auto& box = pane.find<QComboBox>("imageProfileComboBox");
    box.setCurrentIndex(box.findData(narrow->id()));
    pane.pane.chooseImageProfile();
    pane.pane.showEarlier(pictureOf(Qt::green), place, QStringLiteral("two"), false);
    QCOMPARE(pane.pane.id(), QStringLiteral("two"));
    QVERIFY(!pane.pane.isKept());
    pane.pane.copySnapshot();
    QCOMPARE(QApplication::clipboard()->image().width(), 32);
}

void SnapshotPaneTest::earlierSnapshot_isNamedAfterItsOwnVideo()
{
    Pane pane;
    const QDir folder(pane.path({}));
    const QString name = pane.pane.automaticFileName(folder);
    QVERIFY(name.startsWith(QStringLiteral("film-")));
    pane.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    pane.pane.capture(pictureOf(Qt::red));
    pane.pane.save();
    pane.pane.showEarlier(earlierPicture(pane.path(QStringLiteral("gone/old.mp4"))), place,
                          QStringLiteral("two"), false);
    // The numbers start over, too.
    QCOMPARE(pane.pane.automaticFileName(folder),
             QString(name).replace(0, 4, QStringLiteral("old")));
    QCOMPARE(pane.proposedName(), QStringLiteral("old"));
    pane.pane.clear();
    QVERIFY(pane.pane.automaticFileName(folder).startsWith(QStringLiteral("film-")));
    QCOMPARE(pane.proposedName(), QStringLiteral("film"));
}

void SnapshotPaneTest::folder_isThatOfTheEarlierSnapshot_onlyWithoutAVideoAndAChoice()
{
    Pane pane;
    const auto& field = pane.find<QLineEdit>("outputFolderLineEdit");
    const QString others = pane.path(QStringLiteral("others"));
    const QString chosen = pane.path(QStringLiteral("chosen"));
    QVERIFY(QDir().mkpath(others) && QDir().mkpath(chosen));
    const auto show = [&pane](const QString& video) {
        pane.pane.showEarlier(earlierPicture(video), place, QStringLiteral("two"), false);
        pane.pane.setControlsEnabled(true);
    };
    show(others + QStringLiteral("/old.mp4"));
    QCOMPARE(QDir(field.text()), QDir(pane.path({})));
    pane.pane.setVideo({});
    pane.pane.setControlsEnabled(false);
    pane.pane.clear();
    show(others + QStringLiteral("/old.mp4"));
    QCOMPARE(field.text(), others);
    show(pane.path(QStringLiteral("gone/older.mp4")));
    QCOMPARE(field.text(), QString());
    // A choice made without a video lasts.
    pane.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    pane.typeFolder(chosen);
    show(others + QStringLiteral("/old.mp4"));
    QCOMPARE(field.text(), chosen);
    pane.pane.setVideo(pane.path(QStringLiteral("film.mp4")));
    QCOMPARE(field.text(), chosen);
}

void SnapshotPaneTest::profileChosenByTheUser_changesTheSnapshot_andIsTold()
{
    Pane pane;
    const ImageProfile* const narrow = addImageProfile(QStringLiteral("small"), 64);
    pane.pane.loadImageProfileComboBox();
    pane.pane.capture(pictureOf(Qt::green));
    QSignalSpy changed(&pane.pane, &SnapshotPane::imageProfileChanged);
    auto& box = pane.find<QComboBox>("imageProfileComboBox");
    box.setCurrentIndex(box.findData(narrow->id()));
    box.setFocus();
    Q_EMIT box.activated(box.currentIndex());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(pane.pane.imageProfile(), narrow);
    pane.pane.copySnapshot();
    QCOMPARE(QApplication::clipboard()->image().width(), 64);
}

void SnapshotPaneTest::controls_needASnapshot()
{
    Pane pane;
    pane.pane.capture(pictureOf(Qt::red));
    QVERIFY(pane.find<QWidget>("snapshotControlsFrame").isEnabled());
    pane.pane.setControlsEnabled(false);
    QVERIFY(!pane.find<QWidget>("snapshotControlsFrame").isEnabled());
    QVERIFY(pane.find<QLineEdit>("outputFolderLineEdit").text().isEmpty());
}

void SnapshotPaneTest::folderField_givesTheKeyboardUp_atReturn()
{
    Pane pane;
    pane.pane.capture(pictureOf(Qt::red));
    pane.find<QGroupBox>("automaticFileNameGroupBox").setChecked(true);
    QSignalSpy givenUp(&pane.pane, &SnapshotPane::keyboardGivenUp);
    QTest::keyClick(&pane.find<QLineEdit>("outputFolderLineEdit"), Qt::Key_Return);
    QCOMPARE(givenUp.size(), 1);
}

void SnapshotPaneTest::clearedPane_forgetsTheSnapshot_butNotItsVideo()
{
    Pane pane;
    pane.pane.capture(pictureOf(Qt::red));
    pane.pane.setId(QStringLiteral("seven"));
    const QString name = pane.pane.automaticFileName(QDir(pane.path({})));
    pane.pane.clear();
    QVERIFY(pane.pane.captured().image.isNull());
    QVERIFY(pane.pane.id().isEmpty());
    QVERIFY(pane.pane.isKept());
    QVERIFY(pane.find<QLabel>("snapshotSummaryLabel").text().isEmpty());
    QCOMPARE(pane.pane.automaticFileName(QDir(pane.path({}))), name);
}

QTEST_MAIN(SnapshotPaneTest)
#include "SnapshotPaneTest.moc"
