#include "stills/VideoList.h"

#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

using stills::Options;
using stills::VideoList;
using testsupport::TestDir;

namespace {

void putFile(const QString& path, const QByteArray& content = {})
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
}

/// The videos found, by their paths within the folder.
QStringList found(const Options& options, const TestDir& dir)
{
    QStringList names;
    for (const std::string& video : stills::findVideos(options).videos) {
        names += QDir(dir.path()).relativeFilePath(QFile::decodeName(video.c_str()));
    }
    return names;
}

QStringList lines(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

} // namespace

class VideoListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void files_areTakenAsTheyAreNamed();
    void sameFile_isTakenOnce();
    void folder_isAnError_withoutTheOption();
    void folder_givesItsVideos_byName();
    void folder_isPassedOver_whereItIsHiddenOrALink();
    void suffixes_ofVideosAreKnown();
    void list_isReadByLines_data();
    void list_isReadByLines();
    void list_isAnError_whenItCannotBeRead();
    void shards_dealTheVideos_eachOnce();
};

void VideoListTest::files_areTakenAsTheyAreNamed()
{
    Options options;
    options.videos = {"b.txt", "a.mp4", "missing"};
    const VideoList list = stills::findVideos(options);
    QCOMPARE(list.videos, options.videos);
    QVERIFY(list.problems.empty());
}

void VideoListTest::sameFile_isTakenOnce()
{
    Options options;
    options.videos = {"a", "b", "a"};
    QCOMPARE(stills::findVideos(options).videos, (std::vector<std::string>{"a", "b"}));
}

void VideoListTest::folder_isAnError_withoutTheOption()
{
    const TestDir dir;
    Options options;
    options.videos = {dir.path().toStdString()};
    const VideoList list = stills::findVideos(options);
    QVERIFY(list.videos.empty());
    QCOMPARE(list.problems.size(), std::size_t(1));
    QVERIFY(list.problems.front().text.find("--recursive") != std::string::npos);
    QVERIFY(!list.problems.front().hidesVideos);
}

void VideoListTest::folder_givesItsVideos_byName()
{
    const TestDir dir;
    for (const QString& name :
         lines("b.mp4 a.MKV c.txt d z/y.webm z/a.mov z/readme.mp4.txt m/n/o.ts e.jpg")) {
        putFile(dir.filePath(name));
    }
    Options options;
    options.isRecursive = true;
    options.videos = {dir.path().toStdString()};
    QCOMPARE(found(options, dir), lines("a.MKV b.mp4 m/n/o.ts z/a.mov z/y.webm"));
}

void VideoListTest::folder_isPassedOver_whereItIsHiddenOrALink()
{
    const TestDir dir;
    putFile(dir.filePath(QStringLiteral("a.mp4")));
    putFile(dir.filePath(QStringLiteral(".trash/b.mp4")));
    putFile(dir.filePath(QStringLiteral(".c.mp4")));
    QVERIFY(QFile::link(dir.path(), dir.filePath(QStringLiteral("circle"))));
    QVERIFY(QFile::link(dir.filePath(QStringLiteral("a.mp4")),
                        dir.filePath(QStringLiteral("link.mp4"))));
    Options options;
    options.isRecursive = true;
    options.videos = {dir.path().toStdString()};
    QCOMPARE(found(options, dir), lines("a.mp4 link.mp4"));
}

void VideoListTest::suffixes_ofVideosAreKnown()
{
    for (const char* const name : {"a.mp4", "a.MP4", "a.b.mkv", "x/y.ts", "a.m2ts", "a.264",
                                   "a.y4m", "a.wmv", "a.mts", "a.vob", "a.3gp"}) {
        QVERIFY2(stills::hasVideoSuffix(name), name);
    }
    for (const char* const name : {"a", "mp4", "a.jpg", "a.mp4.txt", "x.mp4/a", "", "a."}) {
        QVERIFY2(!stills::hasVideoSuffix(name), name);
    }
}

void VideoListTest::list_isReadByLines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* what, const QByteArray& content, const QStringList& names) {
        QTest::newRow(what) << content << names;
    };
    row("lines", "a.mp4\nb c.mp4\n", {QStringLiteral("a.mp4"), QStringLiteral("b c.mp4")});
    row("no last break", "a\nb", lines("a b"));
    row("empty lines", "\na\n\n\nb\n", lines("a b"));
    row("Windows", "a\r\nb\r\n", lines("a b"));
    row("NULs", QByteArray("a\0b\nc\0", 6), {QStringLiteral("a"), QStringLiteral("b\nc")});
    row("empty", "", {});
    row("hyphens", "--every\n-\n", lines("--every -"));
}

void VideoListTest::list_isReadByLines()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QStringList, names);
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("list.txt"));
    putFile(path, content);
    Options options;
    options.listFile = path.toStdString();
    const VideoList list = stills::findVideos(options);
    QStringList got;
    for (const std::string& video : list.videos) {
        got += QString::fromStdString(video);
    }
    QCOMPARE(got, names);
    QVERIFY(list.problems.empty());
}

void VideoListTest::list_isAnError_whenItCannotBeRead()
{
    const TestDir dir;
    for (const QString& name : {QStringLiteral("missing"), QStringLiteral(".")}) {
        Options options;
        options.listFile = dir.filePath(name).toStdString();
        const VideoList list = stills::findVideos(options);
        QCOMPARE(list.problems.size(), std::size_t(1));
        QVERIFY(list.problems.front().hidesVideos);
    }
}

void VideoListTest::shards_dealTheVideos_eachOnce()
{
    for (const int count : {1, 2, 3, 16}) {
        for (std::size_t place = 0; place < 40; ++place) {
            int takers = 0;
            for (int number = 1; number <= count; ++number) {
                takers += stills::isInShard(place, {number, count}) ? 1 : 0;
            }
            QCOMPARE(takers, 1);
        }
    }
    QVERIFY(stills::isInShard(2, {3, 16}));
    QVERIFY(stills::isInShard(18, {3, 16}));
}

QTEST_GUILESS_MAIN(VideoListTest)

#include "VideoListTest.moc"
