#include "ui/filmstrip/SnapshotFolder.h"

#include "tests/support/ResourceLimits.h"
#include "tests/support/TestDir.h"
#include "tests/ui/filmstrip/Snapshots.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace testsupport;

class SnapshotFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_isTheSameToTheBit_whenReadBack_data();
    void picture_isTheSameToTheBit_whenReadBack();
    void snapshots_comeBack_withTheirSmallPictures();
    void whatIsStale_goesAtOpening();
    void damagedList_isPutAside_withItsFiles();
    void folderInUse_isRefused();
    void folderThatCannotBe_isRefused();
    void fullDisk_leavesNothing();
    void damagedPicture_isNone();
};

namespace {

const QImage smallPicture = patterned({16, 9}, QImage::Format_RGB888);

QStringList filesIn(const QString& path)
{
    return QDir(path).entryList({QStringLiteral("*.png")}, QDir::Files | QDir::Hidden);
}

QString folderIn(const TestDir& dir)
{
    return dir.filePath(QStringLiteral("data/snapshots"));
}

/// Writes a snapshot with a complete note, which the caller may modify.
[[nodiscard]] bool keep(SnapshotFolder& folder, const KeptSnapshot& note)
{
    return folder.write(note.id, pictureAt(1.0), smallPicture);
}

} // namespace

void SnapshotFolderTest::picture_isTheSameToTheBit_whenReadBack_data()
{
    QTest::addColumn<QImage::Format>("plain");
    QTest::addColumn<QImage::Format>("deep");
    QTest::newRow("opaque") << QImage::Format_RGB888 << QImage::Format_RGBX64;
    QTest::newRow("with alpha") << QImage::Format_ARGB32 << QImage::Format_RGBA64;
    QTest::newRow("8 bits alone") << QImage::Format_RGB888 << QImage::Format_Invalid;
}

void SnapshotFolderTest::picture_isTheSameToTheBit_whenReadBack()
{
    QFETCH(QImage::Format, plain);
    QFETCH(QImage::Format, deep);
    const TestDir dir;
    SnapshotFolder folder(folderIn(dir));
    QVERIFY(!folder.open().isRefused);
    CapturedPicture picture = pictureAt(1.0);
    picture.image = patterned({61, 47}, plain);
    if (deep != QImage::Format_Invalid) {
        picture.deep = patterned({61, 47}, deep);
        picture.stored = patterned({61, 47}, deep).mirrored();
    }
    const KeptSnapshot note = fullNote(QStringLiteral("a"));
    QVERIFY(folder.write(note.id, picture, smallPicture));
    const auto read = folder.read(note);
    QVERIFY(read);
    QCOMPARE(read->image, picture.image);
    QCOMPARE(read->image.format(), plain);
    QCOMPARE(read->deep, picture.deep);
    QCOMPARE(read->deep.format(), deep);
    QCOMPARE(read->stored, picture.stored);
    QVERIFY(read->colours == note.colours);
    QCOMPARE(read->source.video, note.source.video);
}

void SnapshotFolderTest::snapshots_comeBack_withTheirSmallPictures()
{
    const TestDir dir;
    {
        SnapshotFolder folder(folderIn(dir));
        QVERIFY(folder.open().snapshots.isEmpty());
        const QVector<KeptSnapshot> notes{fullNote(QStringLiteral("a")),
                                          fullNote(QStringLiteral("b"))};
        QVERIFY(keep(folder, notes.at(0)) && keep(folder, notes.at(1)));
        QVERIFY(folder.writeIndex(notes));
    }
    SnapshotFolder folder(folderIn(dir));
    const SnapshotContents contents = folder.open();
    QVERIFY(!contents.isRefused);
    QVERIFY(contents.putAside.isEmpty());
    QCOMPARE(contents.snapshots.size(), 2);
    QCOMPARE(contents.snapshots.at(1).id, QStringLiteral("b"));
    QCOMPARE(contents.thumbnails.at(0).size(), smallPicture.size());
}

void SnapshotFolderTest::whatIsStale_goesAtOpening()
{
    const TestDir dir;
    {
        SnapshotFolder folder(folderIn(dir));
        QVERIFY(!folder.open().isRefused);
        KeptSnapshot fresh = fullNote(QStringLiteral("fresh"));
        fresh.takenAt = fresh.takenAt.addDays(1 - SnapshotFolder::keptDays);
        KeptSnapshot saved = fullNote(QStringLiteral("saved"));
        saved.isSaved = true;
        KeptSnapshot old = fullNote(QStringLiteral("old"));
        old.takenAt = old.takenAt.addDays(-1 - SnapshotFolder::keptDays);
        const KeptSnapshot stranger = fullNote(QStringLiteral("stranger"));
        const KeptSnapshot without = fullNote(QStringLiteral("without"));
        for (const KeptSnapshot& note : {fresh, saved, old, stranger}) {
            QVERIFY(keep(folder, note));
        }
        QVERIFY(folder.writeIndex({fresh, saved, old, without}));
    }
    SnapshotFolder folder(folderIn(dir));
    const SnapshotContents contents = folder.open();
    QCOMPARE(contents.snapshots.size(), 1);
    QCOMPARE(contents.snapshots.first().id, QStringLiteral("fresh"));
    QCOMPARE(filesIn(folderIn(dir)),
             (QStringList{QStringLiteral("fresh.png"), QStringLiteral("fresh.small.png")}));
}

void SnapshotFolderTest::damagedList_isPutAside_withItsFiles()
{
    const TestDir dir;
    {
        SnapshotFolder folder(folderIn(dir));
        QVERIFY(!folder.open().isRefused);
        QVERIFY(keep(folder, fullNote(QStringLiteral("a"))));
        QFile index(QDir(folderIn(dir)).filePath(QStringLiteral("index.json")));
        QVERIFY(index.open(QIODevice::WriteOnly));
        QVERIFY(index.write("{\"version\": 1, \"snap") > 0);
    }
    QString aside;
    {
        SnapshotFolder folder(folderIn(dir));
        const SnapshotContents contents = folder.open();
        aside = contents.putAside;
        QVERIFY(!contents.isRefused);
        QVERIFY(contents.snapshots.isEmpty());
        QVERIFY(keep(folder, fullNote(QStringLiteral("b"))));
        QVERIFY(folder.writeIndex({fullNote(QStringLiteral("b"))}));
    }
    QCOMPARE(filesIn(aside), (QStringList{QStringLiteral("a.png"), QStringLiteral("a.small.png")}));
    // Reported once.
    SnapshotFolder folder(folderIn(dir));
    const SnapshotContents contents = folder.open();
    QVERIFY(contents.putAside.isEmpty());
    QCOMPARE(contents.snapshots.size(), 1);
    QVERIFY(QDir(aside).exists());
}

void SnapshotFolderTest::folderInUse_isRefused()
{
    const TestDir dir;
    SnapshotFolder folder(folderIn(dir));
    QVERIFY(!folder.open().isRefused);
    QVERIFY(keep(folder, fullNote(QStringLiteral("a"))));
    SnapshotFolder other(folderIn(dir));
    QVERIFY(other.open().isRefused);
    QVERIFY(!keep(other, fullNote(QStringLiteral("b"))));
    QVERIFY(!other.writeIndex({}));
    QCOMPARE(filesIn(folderIn(dir)).size(), 2);
}

void SnapshotFolderTest::folderThatCannotBe_isRefused()
{
    const TestDir dir;
    QFile file(dir.filePath(QStringLiteral("data")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    SnapshotFolder folder(folderIn(dir));
    QVERIFY(folder.open().isRefused);
}

void SnapshotFolderTest::fullDisk_leavesNothing()
{
    const TestDir dir;
    SnapshotFolder folder(folderIn(dir));
    QVERIFY(!folder.open().isRefused);
    {
        const FileSizeLimit limit(1000);
        QVERIFY(!keep(folder, fullNote(QStringLiteral("a"))));
    }
    QVERIFY(filesIn(folderIn(dir)).isEmpty());
    QVERIFY(keep(folder, fullNote(QStringLiteral("a"))));
}

void SnapshotFolderTest::damagedPicture_isNone()
{
    const TestDir dir;
    SnapshotFolder folder(folderIn(dir));
    QVERIFY(!folder.open().isRefused);
    const KeptSnapshot note = fullNote(QStringLiteral("a"));
    CapturedPicture picture = pictureAt(1.0);
    picture.deep = patterned({64, 48}, QImage::Format_RGBX64);
    for (const char* const name : {"a.png", "a.deep.png"}) {
        QVERIFY(folder.write(note.id, picture, smallPicture));
        QVERIFY(folder.read(note));
        QFile file(QDir(folderIn(dir)).filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY2(!folder.read(note), name);
    }
}

QTEST_GUILESS_MAIN(SnapshotFolderTest)
#include "SnapshotFolderTest.moc"
