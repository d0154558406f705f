#include "ui/mainwindow/DroppedVideos.h"

#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QTest>
#include <QUrl>

using testsupport::TestDir;

class DroppedVideosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paths_areTheLocalOnes();
    void videos_areFound_amongOtherFiles();
    void firstFile_isTaken_whenNoneLooksLikeAVideo();
    void nothing_isFound_withoutFiles();
    void folders_giveTheirVideos_inNaturalOrder();
    void folderWithoutVideos_givesNothing();
    void linkedFolder_isNotFollowed();
    void deepFolders_areLeft();
    void cancelled_searchEnds();
};

namespace {

const auto never = [] { return false; };

QStringList among(const QStringList& paths)
{
    return DroppedVideos::among(paths, never);
}

} // namespace

void DroppedVideosTest::paths_areTheLocalOnes()
{
    QMimeData data;
    QVERIFY(DroppedVideos::pathsIn(data).isEmpty());
    data.setText(QStringLiteral("film.mp4"));
    QVERIFY(DroppedVideos::pathsIn(data).isEmpty());
    data.setUrls({QUrl(QStringLiteral("https://morvantile.example/a.mp4")),
                  QUrl::fromLocalFile(QStringLiteral("/b ä.mp4"))});
    QCOMPARE(DroppedVideos::pathsIn(data), QStringList(QStringLiteral("/b ä.mp4")));
}

void DroppedVideosTest::videos_areFound_amongOtherFiles()
{
    const TestDir dir;
    const QString first = dir.addFile(QStringLiteral("b ä.mkv"));
    const QString second = dir.addFile(QStringLiteral("a.mp4"));
    QCOMPARE(among({dir.addFile(QStringLiteral("notes.txt")), first, second, first}),
             (QStringList{first, second}));
}

void DroppedVideosTest::firstFile_isTaken_whenNoneLooksLikeAVideo()
{
    const TestDir dir;
    const QString notes = dir.addFile(QStringLiteral("notes.txt"));
    QDir(dir.path()).mkdir(QStringLiteral("empty"));
    QCOMPARE(among({dir.filePath(QStringLiteral("empty")), notes,
                    dir.addFile(QStringLiteral("more.txt"))}),
             QStringList(notes));
}

void DroppedVideosTest::nothing_isFound_withoutFiles()
{
    const TestDir dir;
    QVERIFY(among({}).isEmpty());
    QVERIFY(among({dir.filePath(QStringLiteral("gone.mp4"))}).isEmpty());
}

void DroppedVideosTest::folders_giveTheirVideos_inNaturalOrder()
{
    const TestDir dir;
    const QString alone = dir.addFile(QStringLiteral("alone.mkv"));
    const QString tenth = dir.addFile(QStringLiteral("day/Take 10.MP4"));
    const QString ninth = dir.addFile(QStringLiteral("day/take 9.mp4"));
    const QString inner = dir.addFile(QStringLiteral("day/a/inner.mov"));
    const QString hidden = dir.addFile(QStringLiteral("day/.trash/old.mp4"));
    dir.addFile(QStringLiteral("day/take 9.jpeg"));
    dir.addFile(QStringLiteral("day/notes.txt"));
    QCOMPARE(among({alone, dir.filePath(QStringLiteral("day"))}),
             (QStringList{alone, ninth, tenth, inner}));
    QVERIFY(QFile::exists(hidden));
}

void DroppedVideosTest::folderWithoutVideos_givesNothing()
{
    const TestDir dir;
    dir.addFile(QStringLiteral("day/notes.txt"));
    QVERIFY(among({dir.filePath(QStringLiteral("day"))}).isEmpty());
}

/// A link back up would never end.
void DroppedVideosTest::linkedFolder_isNotFollowed()
{
    const TestDir dir;
    const QString video = dir.addFile(QStringLiteral("day/a.mp4"));
    QVERIFY(QFile::link(dir.path(), dir.filePath(QStringLiteral("day/up"))));
    QCOMPARE(among({dir.filePath(QStringLiteral("day"))}), QStringList(video));
}

void DroppedVideosTest::deepFolders_areLeft()
{
    const TestDir dir;
    const QString sixteen = QStringLiteral("d/").repeated(16);
    const QString found = dir.addFile(sixteen + QStringLiteral("a.mp4"));
    dir.addFile(sixteen + QStringLiteral("d/b.mp4"));
    QCOMPARE(among({dir.filePath(QStringLiteral("d"))}), QStringList(found));
}

void DroppedVideosTest::cancelled_searchEnds()
{
    const TestDir dir;
    dir.addFile(QStringLiteral("day/a.mp4"));
    dir.addFile(QStringLiteral("day/inner/b.mp4"));
    int asked = 0;
    const auto afterTheFirst = [&asked] { return ++asked > 1; };
    const QStringList found =
        DroppedVideos::among({dir.filePath(QStringLiteral("day"))}, afterTheFirst);
    QCOMPARE(found.size(), 1);
}

QTEST_GUILESS_MAIN(DroppedVideosTest)
#include "DroppedVideosTest.moc"
