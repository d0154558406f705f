#include "stills/VideoTask.h"

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
