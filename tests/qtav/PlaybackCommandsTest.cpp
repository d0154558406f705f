#include "qtav/player/PlaybackCommands.h"

#include <QTest>

using QtAV::PlaybackCommands;

namespace {

/// Number of steps taken until none waits; backward steps count negative.
int takeSteps(PlaybackCommands& commands)
{
    int steps = 0;
    while (commands.nextStep()) {
        steps += commands.takeStep().direction == PlaybackCommands::Direction::Forward ? 1 : -1;
        if (!commands.endStep()) {
            qFatal("a step was cancelled");
        }
    }
    return steps;
}

void step(PlaybackCommands& commands, PlaybackCommands::Direction direction, int times)
{
    for (int i = 0; i < times; ++i) {
        commands.step(direction);
    }
}

} // namespace

/// Which commands wait, and which replace each other.
class PlaybackCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void newCommands_areNone();
    void serials_rise();
    void seek_replacesSeeksAndSteps();
    void file_replacesAll();
    void close_waitsAsAFileWithoutAPath();
    void steps_cancelEachOther_inOppositeDirections();
    void steps_areBounded();
    void stepTaken_isCancelled_byOneInTheOtherDirection();
    void stepTaken_isNotCancelled_byMoreInItsOwn();
    void stepTaken_isCancelledOnce_soThatFurtherStepsWait();
    void stepTaken_isOutdated_bySeekAndFile();
    void seekTaken_isOutdated_byNewerOnes_butNotBySteps();
    void fileTaken_isOutdated_byAnother_butNotBySeeks();
    void arrival_isSeen_untilAcknowledged();
    void captures_stay_whateverElseComes_upToALimit();
    void quit_dropsAll_andOutdatesWhatIsDone();
};

void PlaybackCommandsTest::newCommands_areNone()
{
    PlaybackCommands commands;
    QVERIFY(!commands.hasFile());
    QVERIFY(!commands.hasSeek());
    QVERIFY(!commands.nextStep());
    QVERIFY(!commands.hasArrived());
    QVERIFY(!commands.quits());
}

void PlaybackCommandsTest::serials_rise()
{
    PlaybackCommands commands;
    quint64 last = 0;
    for (const quint64 serial :
         {commands.open(QStringLiteral("a"), 1), commands.seek(5),
          commands.step(PlaybackCommands::Direction::Forward), commands.close()}) {
        QVERIFY(serial > last);
        last = serial;
    }
}

void PlaybackCommandsTest::seek_replacesSeeksAndSteps()
{
    PlaybackCommands commands;
    commands.seek(100);
    commands.step(PlaybackCommands::Direction::Forward);
    const quint64 serial = commands.seek(200);
    QVERIFY(!commands.nextStep());
    const PlaybackCommands::Seek taken = commands.takeSeek();
    QCOMPARE(taken.ms, qint64(200));
    QCOMPARE(taken.serial, serial);
    QVERIFY(!commands.hasSeek());
}

void PlaybackCommandsTest::file_replacesAll()
{
    PlaybackCommands commands;
    commands.open(QStringLiteral("first"), 1);
    commands.seek(100);
    commands.step(PlaybackCommands::Direction::Forward);
    const quint64 serial = commands.open(QStringLiteral("second"), 7);
    QVERIFY(!commands.hasSeek());
    QVERIFY(!commands.nextStep());
    const PlaybackCommands::File taken = commands.takeFile();
    QCOMPARE(taken.path, QStringLiteral("second"));
    QCOMPARE(taken.cacheBytes, qint64(7));
    QCOMPARE(taken.serial, serial);
    QVERIFY(!commands.hasFile());
}

void PlaybackCommandsTest::close_waitsAsAFileWithoutAPath()
{
    PlaybackCommands commands;
    commands.open(QStringLiteral("first"), 1);
    commands.close();
    QVERIFY(commands.takeFile().path.isEmpty());
    QVERIFY(!commands.hasFile());
}

void PlaybackCommandsTest::steps_cancelEachOther_inOppositeDirections()
{
    PlaybackCommands commands;
    step(commands, PlaybackCommands::Direction::Backward, 5);
    step(commands, PlaybackCommands::Direction::Forward, 2);
    QCOMPARE(takeSteps(commands), -3);
    step(commands, PlaybackCommands::Direction::Forward, 4);
    step(commands, PlaybackCommands::Direction::Backward, 4);
    QCOMPARE(takeSteps(commands), 0);
}

void PlaybackCommandsTest::steps_areBounded()
{
    PlaybackCommands commands;
    step(commands, PlaybackCommands::Direction::Backward, 1000);
    QCOMPARE(takeSteps(commands), -PlaybackCommands::mostWaitingSteps);
    step(commands, PlaybackCommands::Direction::Forward, 1000);
    QCOMPARE(takeSteps(commands), int(PlaybackCommands::mostWaitingSteps));
}

void PlaybackCommandsTest::stepTaken_isCancelled_byOneInTheOtherDirection()
{
    PlaybackCommands commands;
    commands.step(PlaybackCommands::Direction::Backward);
    commands.takeStep();
    QVERIFY(!commands.isStepOutdated());
    commands.step(PlaybackCommands::Direction::Forward);
    QVERIFY(commands.isStepOutdated());
    QVERIFY(!commands.endStep());
    QVERIFY(!commands.nextStep());
}

void PlaybackCommandsTest::stepTaken_isNotCancelled_byMoreInItsOwn()
{
    PlaybackCommands commands;
    commands.step(PlaybackCommands::Direction::Backward);
    commands.takeStep();
    commands.step(PlaybackCommands::Direction::Backward);
    QVERIFY(!commands.isStepOutdated());
    QVERIFY(commands.endStep());
    QCOMPARE(takeSteps(commands), -1);
}

void PlaybackCommandsTest::stepTaken_isCancelledOnce_soThatFurtherStepsWait()
{
    PlaybackCommands commands;
    commands.step(PlaybackCommands::Direction::Backward);
    commands.takeStep();
    step(commands, PlaybackCommands::Direction::Forward, 3);
    QVERIFY(!commands.endStep());
    QCOMPARE(takeSteps(commands), 2);
}

void PlaybackCommandsTest::stepTaken_isOutdated_bySeekAndFile()
{
    PlaybackCommands commands;
    commands.step(PlaybackCommands::Direction::Backward);
    commands.takeStep();
    commands.seek(0);
    QVERIFY(commands.isStepOutdated());
    QVERIFY(!commands.endStep());
    commands.takeSeek();

    commands.step(PlaybackCommands::Direction::Forward);
    commands.takeStep();
    QVERIFY(!commands.isStepOutdated());
    commands.close();
    QVERIFY(!commands.endStep());
}

void PlaybackCommandsTest::seekTaken_isOutdated_byNewerOnes_butNotBySteps()
{
    PlaybackCommands commands;
    commands.seek(1);
    commands.takeSeek();
    commands.step(PlaybackCommands::Direction::Forward);
    QVERIFY(!commands.isSeekOutdated());
    commands.seek(2);
    QVERIFY(commands.isSeekOutdated());
    commands.takeSeek();
    QVERIFY(!commands.isSeekOutdated());
    commands.open(QStringLiteral("a"), 1);
    QVERIFY(commands.isSeekOutdated());
}

void PlaybackCommandsTest::fileTaken_isOutdated_byAnother_butNotBySeeks()
{
    PlaybackCommands commands;
    commands.open(QStringLiteral("a"), 1);
    commands.takeFile();
    commands.seek(100);
    commands.step(PlaybackCommands::Direction::Forward);
    QVERIFY(!commands.isFileOutdated());
    commands.close();
    QVERIFY(commands.isFileOutdated());
}

void PlaybackCommandsTest::arrival_isSeen_untilAcknowledged()
{
    PlaybackCommands commands;
    for (int i = 0; i < 4; ++i) {
        switch (i) {
        case 0:
            commands.open(QStringLiteral("a"), 1);
            break;
        case 1:
            commands.seek(100);
            break;
        case 2:
            commands.step(PlaybackCommands::Direction::Forward);
            break;
        default:
            commands.close();
            break;
        }
        QVERIFY(commands.hasArrived());
        commands.acknowledge();
        QVERIFY(!commands.hasArrived());
    }
}

void PlaybackCommandsTest::captures_stay_whateverElseComes_upToALimit()
{
    PlaybackCommands commands;
    quint64 last = 0;
    for (size_t i = 0; i < PlaybackCommands::mostWaitingCaptures; ++i) {
        const quint64 serial = commands.capture({});
        QVERIFY(serial > last);
        last = serial;
        commands.seek(1);
        commands.close();
    }
    QCOMPARE(commands.capture({}), quint64(0));
    for (size_t i = 0; i < PlaybackCommands::mostWaitingCaptures; ++i) {
        QVERIFY(commands.hasCapture());
        commands.takeCapture();
    }
    QVERIFY(!commands.hasCapture());
}

void PlaybackCommandsTest::quit_dropsAll_andOutdatesWhatIsDone()
{
    PlaybackCommands commands;
    commands.open(QStringLiteral("a"), 1);
    commands.seek(100);
    commands.step(PlaybackCommands::Direction::Forward);
    commands.quit();
    QVERIFY(commands.quits());
    QVERIFY(!commands.hasFile());
    QVERIFY(!commands.hasSeek());
    QVERIFY(!commands.nextStep());
    QVERIFY(commands.isFileOutdated() && commands.isSeekOutdated() && commands.isStepOutdated());
    QVERIFY(commands.hasArrived());
}

QTEST_GUILESS_MAIN(PlaybackCommandsTest)
#include "PlaybackCommandsTest.moc"
