#include "ui/mainwindow/FolderSteps.h"

#include "tests/support/Patience.h"
#include "tests/support/TestDir.h"
#include "ui/mainwindow/VideoNames.h"

#include <QAction>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using testsupport::patienceMs;
using testsupport::TestDir;

/// The next and the previous video of a folder.
class FolderStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void neighbours_areThoseInNaturalOrder_amongVideos();
    void neighbours_ofAVideoThatIsGone_areThoseAroundItsPlace();
    void actions_areEnabled_whileThereIsAVideo_andTellIt();
    void newFile_isNoticed();
    void closedVideo_hasNoNeighbours();
};

namespace {

struct Steps
{
    QAction next{nullptr};
    QAction previous{nullptr};
    FolderSteps steps{next, previous, nullptr};
};

} // namespace

void FolderStepsTest::neighbours_areThoseInNaturalOrder_amongVideos()
{
    const TestDir dir;
    const QString ninth = dir.makeFile(QStringLiteral("take 9.mp4"));
    const QString tenth = dir.makeFile(QStringLiteral("Take 10.MKV"));
    const QString last = dir.makeFile(QStringLiteral("take 11.webm"));
    dir.makeFile(QStringLiteral("take 9.5.txt"));
    dir.makeFile(QStringLiteral("take 10.mkv.part"));
    QCOMPARE(VideoNames::neighboursOf(tenth).previous, ninth);
    QCOMPARE(VideoNames::neighboursOf(tenth).next, last);
    QCOMPARE(VideoNames::neighboursOf(ninth).previous, QString());
    QCOMPARE(VideoNames::neighboursOf(ninth).next, tenth);
    QCOMPARE(VideoNames::neighboursOf(last).next, QString());
}

void FolderStepsTest::neighbours_ofAVideoThatIsGone_areThoseAroundItsPlace()
{
    const TestDir dir;
    const QString a = dir.makeFile(QStringLiteral("a.mp4"));
    const QString c = dir.makeFile(QStringLiteral("c.mp4"));
    const VideoNames::Neighbours around =
        VideoNames::neighboursOf(dir.filePath(QStringLiteral("b.mp4")));
    QCOMPARE(around.previous, a);
    QCOMPARE(around.next, c);
    const VideoNames::Neighbours none = VideoNames::neighboursOf(QStringLiteral("/gone/b.mp4"));
    QVERIFY(none.previous.isEmpty() && none.next.isEmpty());
}

void FolderStepsTest::actions_areEnabled_whileThereIsAVideo_andTellIt()
{
    const TestDir dir;
    const QString a = dir.makeFile(QStringLiteral("a.mp4"));
    const QString b = dir.makeFile(QStringLiteral("b.mp4"));
    Steps steps;
    QSignalSpy chosen(&steps.steps, &FolderSteps::chosen);
    QVERIFY(!steps.next.isEnabled() && !steps.previous.isEnabled());
    steps.steps.setVideo(a);
    QTRY_VERIFY_WITH_TIMEOUT(steps.next.isEnabled(), patienceMs);
    QVERIFY(!steps.previous.isEnabled());
    steps.next.trigger();
    QCOMPARE(chosen.takeFirst().first().toString(), b);
    steps.steps.setVideo(b);
    QTRY_VERIFY_WITH_TIMEOUT(steps.previous.isEnabled(), patienceMs);
    QVERIFY(!steps.next.isEnabled());
    steps.previous.trigger();
    QCOMPARE(chosen.takeFirst().first().toString(), a);
}

void FolderStepsTest::newFile_isNoticed()
{
    const TestDir dir;
    const QString a = dir.makeFile(QStringLiteral("a.mp4"));
    const QString c = dir.makeFile(QStringLiteral("c.mp4"));
    Steps steps;
    QSignalSpy chosen(&steps.steps, &FolderSteps::chosen);
    steps.steps.setVideo(a);
    QTRY_VERIFY_WITH_TIMEOUT(steps.next.isEnabled(), patienceMs);
    const QString b = dir.makeFile(QStringLiteral("b.mp4"));
    const auto next = [&] {
        steps.next.trigger();
        return chosen.takeLast().first().toString();
    };
    QTRY_COMPARE_WITH_TIMEOUT(next(), b, patienceMs);
    QVERIFY(QFile::remove(b));
    QVERIFY(QFile::remove(c));
    QTRY_VERIFY_WITH_TIMEOUT(!steps.next.isEnabled(), patienceMs);
}

void FolderStepsTest::closedVideo_hasNoNeighbours()
{
    const TestDir dir;
    const QString a = dir.makeFile(QStringLiteral("a.mp4"));
    dir.makeFile(QStringLiteral("b.mp4"));
    Steps steps;
    steps.steps.setVideo(a);
    // Also if the folder has been read already, but the result was not delivered.
    steps.steps.setVideo({});
    QTest::qWait(50);
    QVERIFY(!steps.next.isEnabled());
}

QTEST_MAIN(FolderStepsTest)
#include "FolderStepsTest.moc"
