#include "ui/filmstrip/SnapshotShelf.h"

#include "tests/support/ResourceLimits.h"
#include "tests/support/TestDir.h"
#include "tests/ui/filmstrip/Snapshots.h"
#include "tests/ui/support/ShownText.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace testsupport;

class SnapshotShelfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snapshot_comesBack_inTheNextProgram();
    void snapshot_comesBack_whenTheProgramEndsAtOnce();
    void savedSnapshot_doesNotComeBack();
    void profile_isNoted_whenItChanges();
    void deletedSnapshot_isBack_whenPutBack_andGoneForGoodElse();
    void snapshotThatCannotBeWritten_staysInMemory_andIsNotSafe();
    void fullShelf_takesNoMore_untilOneIsSaved();
    void tooMuchInMemory_isTakenNoMore();
    void folderOfAnotherShelf_isLeftAlone();
    void damagedList_isToldOnce();
    void times_areThoseOfOneVideo_inOrder();
    void toolTip_namesVideoAndProfile_alsoLikeMarkup();
    void loading_answersByFailure_whenTheFileIsGone();
};

namespace {

const QString profile = QStringLiteral("{p}");
const QString profileName = QStringLiteral("Default");

/// A shelf that stores its snapshots in a folder.
class Shelf : public SnapshotShelf
{
public:
    explicit Shelf(const TestDir& dir)
        : notices(this, &SnapshotShelf::noticed)
    {
        keepIn(folderIn(dir));
    }

    static QString folderIn(const TestDir& dir) { return dir.filePath(QStringLiteral("kept")); }

    [[nodiscard]] QString take(double seconds)
    {
        return add(pictureAt(seconds), profile, profileName);
    }

    [[nodiscard]] bool settle()
    {
        return QTest::qWaitFor([this] { return isSettled(); }, 20000);
    }

    QSignalSpy notices;
};

int pngsIn(const TestDir& dir)
{
    return QDir(Shelf::folderIn(dir)).entryList({QStringLiteral("*.png")}).size();
}

} // namespace

void SnapshotShelfTest::snapshot_comesBack_inTheNextProgram()
{
    const TestDir dir;
    QString id;
    {
        Shelf shelf(dir);
        id = shelf.take(3.52);
        QVERIFY(!shelf.isSafe(id));
        QCOMPARE(shelf.unsafeCount(), 1);
        QVERIFY(shelf.settle());
        QVERIFY(shelf.isSafe(id));
        QCOMPARE(shelf.unsafeCount(), 0);
    }
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QCOMPARE(shelf.rowCount(), 1);
    QCOMPARE(shelf.unsafeCount(), 0);
    const QModelIndex index = shelf.indexOf(id);
    QCOMPARE(index.data(SnapshotShelf::TimeRole).toString(), QStringLiteral("00:00:03.520"));
    QCOMPARE(index.data(SnapshotShelf::ProfileRole).toString(), profileName);
    QVERIFY(!index.data(SnapshotShelf::ThumbnailRole).value<QImage>().isNull());
    QImage loaded;
    connect(&shelf, &SnapshotShelf::loaded, &shelf,
            [&](const QString&, const CapturedPicture& picture) { loaded = picture.image; });
    shelf.load(id);
    QVERIFY(shelf.settle());
    QCOMPARE(loaded, pictureAt(3.52).image);
    QVERIFY(shelf.notices.isEmpty());
}

void SnapshotShelfTest::snapshot_comesBack_whenTheProgramEndsAtOnce()
{
    const TestDir dir;
    {
        Shelf shelf(dir);
        static_cast<void>(shelf.take(1.0));
        static_cast<void>(shelf.take(2.0));
    }
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QCOMPARE(shelf.rowCount(), 2);
}

void SnapshotShelfTest::savedSnapshot_doesNotComeBack()
{
    const TestDir dir;
    {
        Shelf shelf(dir);
        const QString id = shelf.take(1.0);
        static_cast<void>(shelf.take(2.0));
        shelf.markSaved(id);
        QVERIFY(shelf.isSafe(id));
        QCOMPARE(shelf.unsaved().size(), 1);
        QVERIFY(shelf.indexOf(id).data(SnapshotShelf::IsSavedRole).toBool());
    }
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QCOMPARE(shelf.rowCount(), 1);
    QCOMPARE(pngsIn(dir), 2);
}

void SnapshotShelfTest::profile_isNoted_whenItChanges()
{
    const TestDir dir;
    {
        Shelf shelf(dir);
        shelf.setProfile(shelf.take(1.0), QStringLiteral("{q}"), QStringLiteral("Other"));
    }
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QCOMPARE(shelf.index(0).data(SnapshotShelf::ProfileRole).toString(), QStringLiteral("Other"));
}

void SnapshotShelfTest::deletedSnapshot_isBack_whenPutBack_andGoneForGoodElse()
{
    const TestDir dir;
    SnapshotShelf shelf;
    shelf.keepIn(Shelf::folderIn(dir));
    const auto settled = [&shelf] { return shelf.isSettled(); };
    QStringList ids;
    for (const double seconds : {1.0, 2.0, 3.0}) {
        ids.append(shelf.add(pictureAt(seconds), profile, profileName));
    }
    QVERIFY(QTest::qWaitFor(settled));
    auto taken = shelf.take({shelf.index(2), shelf.index(0)});
    QCOMPARE(shelf.unsaved(), QStringList(ids.at(1)));
    QVERIFY(QTest::qWaitFor(settled));
    shelf.putBack(taken);
    QCOMPARE(shelf.unsaved(), ids);
    QVERIFY(QTest::qWaitFor(settled));
    QCOMPARE(pngsIn(dir), 6);
    taken = shelf.take({shelf.index(0)});
    shelf.discard(taken);
    QVERIFY(QTest::qWaitFor(settled));
    QCOMPARE(pngsIn(dir), 4);
    // It is removed while still being written.
    static_cast<void>(shelf.add(pictureAt(4.0), profile, profileName));
    shelf.putBack(shelf.take({shelf.index(2)}));
    QVERIFY(QTest::qWaitFor(settled));
    QCOMPARE(shelf.unsafeCount(), 0);
}

void SnapshotShelfTest::snapshotThatCannotBeWritten_staysInMemory_andIsNotSafe()
{
    const TestDir dir;
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QString id;
    {
        const FileSizeLimit limit(1000);
        id = shelf.take(1.0);
        QVERIFY(shelf.settle());
        QCOMPARE(shelf.unsafeCount(), 1);
        QCOMPARE(shelf.notices.size(), 1);
        int loaded = 0;
        connect(&shelf, &SnapshotShelf::loaded, &shelf, [&loaded] { ++loaded; });
        shelf.load(id);
        QVERIFY(shelf.settle());
        QCOMPARE(loaded, 1);
    }
    // The next one includes it.
    static_cast<void>(shelf.take(2.0));
    QVERIFY(shelf.settle());
    QCOMPARE(shelf.unsafeCount(), 0);
    QCOMPARE(shelf.notices.size(), 1);
}

void SnapshotShelfTest::fullShelf_takesNoMore_untilOneIsSaved()
{
    const TestDir dir;
    Shelf shelf(dir);
    SnapshotShelf::Limits limits;
    limits.count = 2;
    shelf.setLimits(limits);
    const QString first = shelf.take(1.0);
    const QString second = shelf.take(2.0);
    QVERIFY(shelf.take(3.0).isEmpty());
    shelf.markSaved(second);
    QVERIFY(!shelf.take(3.0).isEmpty());
    QCOMPARE(shelf.rowCount(), 2);
    QVERIFY(shelf.indexOf(first).isValid());
    QVERIFY(!shelf.indexOf(second).isValid());
    QVERIFY(shelf.settle());
    QCOMPARE(pngsIn(dir), 4);
    limits.diskBytes = 1;
    shelf.setLimits(limits);
    QVERIFY(shelf.take(4.0).isEmpty());
}

void SnapshotShelfTest::tooMuchInMemory_isTakenNoMore()
{
    SnapshotShelf shelf;
    SnapshotShelf::Limits limits;
    limits.memoryBytes = pictureAt(1.0).byteCount();
    shelf.setLimits(limits);
    QVERIFY(!shelf.add(pictureAt(1.0), profile, profileName).isEmpty());
    QVERIFY(shelf.add(pictureAt(2.0), profile, profileName).isEmpty());
    QCOMPARE(shelf.unsafeCount(), 1);
    shelf.discard(shelf.take({shelf.index(0)}));
    QVERIFY(!shelf.add(pictureAt(2.0), profile, profileName).isEmpty());
}

void SnapshotShelfTest::folderOfAnotherShelf_isLeftAlone()
{
    const TestDir dir;
    Shelf shelf(dir);
    static_cast<void>(shelf.take(1.0));
    QVERIFY(shelf.settle());
    Shelf other(dir);
    static_cast<void>(other.take(2.0));
    QVERIFY(QTest::qWaitFor([&] { return !other.notices.isEmpty(); }));
    QCOMPARE(other.rowCount(), 1);
    QCOMPARE(other.unsafeCount(), 1);
    QCOMPARE(pngsIn(dir), 2);
}

void SnapshotShelfTest::damagedList_isToldOnce()
{
    const TestDir dir;
    QVERIFY(QDir().mkpath(Shelf::folderIn(dir)));
    QFile index(QDir(Shelf::folderIn(dir)).filePath(QStringLiteral("index.json")));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.close();
    {
        Shelf shelf(dir);
        QVERIFY(shelf.settle());
        QCOMPARE(shelf.notices.size(), 1);
        QVERIFY(shelf.notices.first().first().toString().contains(QStringLiteral("damaged")));
        static_cast<void>(shelf.take(1.0));
    }
    Shelf shelf(dir);
    QVERIFY(shelf.settle());
    QVERIFY(shelf.notices.isEmpty());
    QCOMPARE(shelf.rowCount(), 1);
}

void SnapshotShelfTest::times_areThoseOfOneVideo_inOrder()
{
    SnapshotShelf shelf;
    const QString video = pictureAt(0.0).source.video;
    for (const double seconds : {2.0, 0.5, 2.0}) {
        static_cast<void>(shelf.add(pictureAt(seconds), profile, profileName));
    }
    QCOMPARE(shelf.timesIn(video), (QVector<qint64>{500, 2000}));
    QVERIFY(shelf.timesIn(QStringLiteral("/videos/other.mp4")).isEmpty());
}

void SnapshotShelfTest::toolTip_namesVideoAndProfile_alsoLikeMarkup()
{
    SnapshotShelf shelf;
    CapturedPicture picture = pictureAt(1.5);
    picture.source.video = QStringLiteral("/videos/a<b>.mp4");
    const QString id = shelf.add(picture, {}, QStringLiteral("<i>mine"));
    QCOMPARE(shownText(shelf.indexOf(id).data(Qt::ToolTipRole).toString()),
             QStringLiteral("a<b>.mp4 at 00:00:01.500\n<i>mine, not saved"));
}

void SnapshotShelfTest::loading_answersByFailure_whenTheFileIsGone()
{
    const TestDir dir;
    Shelf shelf(dir);
    const QString id = shelf.take(1.0);
    QVERIFY(shelf.settle());
    QVERIFY(QFile::remove(QDir(Shelf::folderIn(dir)).filePath(id + QStringLiteral(".png"))));
    QSignalSpy failed(&shelf, &SnapshotShelf::loadFailed);
    shelf.load(id);
    QVERIFY(shelf.settle());
    QCOMPARE(failed.size(), 1);
}

QTEST_GUILESS_MAIN(SnapshotShelfTest)
#include "SnapshotShelfTest.moc"
