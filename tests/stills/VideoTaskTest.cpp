#include "stills/VideoTask.h"

#include "tests/support/TestDir.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>

using stills::planTasks;
using stills::VideoTask;

namespace {

std::vector<std::string> namesOf(const std::vector<VideoTask>& tasks)
{
    std::vector<std::string> names;
    for (const VideoTask& task : tasks) {
        names.push_back(task.folder + "/" + task.stem + task.tail);
    }
    return names;
}

using Names = std::vector<std::string>;

} // namespace

class VideoTaskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictures_goBesideTheVideo_orIntoTheFolder();
    void stems_areFull();
    void sameStems_inOneFolder_areNumbered();
    void folder_isOne_howeverItIsSpelled();
    void videosOfOneFolder_areNumbered_forNamesWithoutAStem();
    void numbers_avoidTheStemsOfOthers();
    void stemsThatAreLongAndAlike_areNumbered();
    void manyVideosOfOneStem_areAllDifferent();
};

void VideoTaskTest::pictures_goBesideTheVideo_orIntoTheFolder()
{
    QCOMPARE(namesOf(planTasks({"a.mp4", "x/b.mp4", "/c.mp4"}, {})), (Names{"./a", "x/b", "//c"}));
    QCOMPARE(namesOf(planTasks({"a.mp4", "x/b.mp4"}, std::string("out"))),
             (Names{"out/a", "out/b"}));
}

void VideoTaskTest::stems_areFull()
{
    QCOMPARE(namesOf(planTasks({"my.holiday.mp4", "plain", ".mp4", "end."}, std::string("o"))),
             (Names{"o/my.holiday", "o/plain", "o/.mp4", "o/end"}));
}

void VideoTaskTest::sameStems_inOneFolder_areNumbered()
{
    QCOMPARE(namesOf(planTasks({"x/a.mp4", "y/a.mp4", "x/a.mkv"}, std::string("o"))),
             (Names{"o/a", "o/a-2", "o/a-3"}));
    QCOMPARE(namesOf(planTasks({"x/a.mp4", "y/a.mp4", "x/a.mkv"}, {})),
             (Names{"x/a", "y/a", "x/a-2"}));
}

void VideoTaskTest::folder_isOne_howeverItIsSpelled()
{
    QCOMPARE(namesOf(planTasks({"x/a.mp4", "./x/a.mkv", "x/../x//a.mov", "a.mp4", "./a.mkv"}, {})),
             (Names{"x/a", "x/a-2", "x/a-3", "./a", "./a-2"}));

    const testsupport::TestDir dir;
    QVERIFY(QDir().mkpath(dir.filePath(QStringLiteral("real"))));
    QVERIFY(
        QFile::link(dir.filePath(QStringLiteral("real")), dir.filePath(QStringLiteral("link"))));
    const std::string top = dir.path().toStdString();
    const std::string relative = QDir().relativeFilePath(dir.path()).toStdString();
    QCOMPARE(namesOf(planTasks({top + "/link/a.mp4", top + "/real/a.mp4", relative + "/real/a.mov"},
                               {})),
             (Names{top + "/link/a", top + "/link/a-2", top + "/link/a-3"}));
}

void VideoTaskTest::videosOfOneFolder_areNumbered_forNamesWithoutAStem()
{
    const auto tails = [](const std::vector<VideoTask>& tasks) {
        Names found;
        for (const VideoTask& task : tasks) {
            found.push_back(task.folderTail);
        }
        return found;
    };
    const Names videos{"x/a.mp4", "y/b.mp4", "./x/b.mp4", "x/a.mkv"};
    QCOMPARE(tails(planTasks(videos, {})), (Names{"", "", "-2", "-3"}));
    QCOMPARE(tails(planTasks(videos, std::string("o"))), (Names{"", "-2", "-3", "-4"}));
}

void VideoTaskTest::numbers_avoidTheStemsOfOthers()
{
    QCOMPARE(namesOf(planTasks({"x/a.mp4", "y/a.mp4", "x/a-2.mp4", "y/a-2.mp4"}, std::string("o"))),
             (Names{"o/a", "o/a-3", "o/a-2", "o/a-2-2"}));
}

void VideoTaskTest::stemsThatAreLongAndAlike_areNumbered()
{
    const std::string stem(200, 'x');
    const auto tasks = planTasks({stem + "1.mp4", stem + "2.mp4"}, std::string("o"));
    QCOMPARE(tasks[0].tail, std::string());
    QCOMPARE(tasks[1].tail, std::string("-2"));
}

void VideoTaskTest::manyVideosOfOneStem_areAllDifferent()
{
    std::vector<std::string> videos;
    for (int i = 0; i < 50000; ++i) {
        videos.push_back(std::to_string(i) + "/video.mp4");
    }
    Names names = namesOf(planTasks(videos, std::string("o")));
    std::sort(names.begin(), names.end());
    QVERIFY(std::adjacent_find(names.begin(), names.end()) == names.end());
}

QTEST_APPLESS_MAIN(VideoTaskTest)

#include "VideoTaskTest.moc"
