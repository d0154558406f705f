#include "qtav/player/PlaybackEngine.h"

#include "tests/qtav/Decoding.h"
#include "tests/support/Patience.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QSemaphore>
#include <QTest>

#include <deque>
#include <optional>

using testsupport::patienceMs;
using namespace decoding;
using QtAV::FrameAnswer;
using QtAV::PlaybackEngine;
using Answer = PlaybackEngine::Answer;

namespace {

/// An engine and its answers.
class Harness
{
public:
    /// The next answer; nothing if there is none.
    std::optional<Answer> next()
    {
        while (m_answers.empty()) {
            if (!m_woken.tryAcquire(1, patienceMs)) {
                return std::nullopt;
            }
            for (Answer& answer : engine.takeAnswers()) {
                m_answers.push_back(std::move(answer));
            }
        }
        const Answer first = m_answers.front();
        m_answers.pop_front();
        return first;
    }

    /// The answer to a command, skipping older ones.
    std::optional<Answer> to(quint64 serial)
    {
        std::optional<Answer> answer = next();
        while (answer && answer->serial < serial) {
            answer = next();
        }
        return answer;
    }

    [[nodiscard]] bool open(const QString& path)
    {
        const std::optional<Answer> answer = to(engine.open(path, QtAV::FrameCache::defaultBytes));
        return answer && answer->result.answer == FrameAnswer::Frame;
    }

private:
    QSemaphore m_woken; ///< before the engine, whose thread uses it

public:
    PlaybackEngine engine{[this] { m_woken.release(); }};

private:
    std::deque<Answer> m_answers;
};

constexpr int longSampleFrames = 520;

/// Opens a copy of a sample that is much longer than what is decoded ahead, and truncates it to
/// nothing.
bool openAndLose(Harness& harness, const testsupport::TestDir& dir)
{
    const QString path = dir.filePath(QStringLiteral("video.mp4"));
    return QFile::copy(testsupport::samplePath(QStringLiteral("h264_gop250.mp4")), path) &&
           harness.open(path) && QFile::resize(path, 0);
}

int numberOf(const std::optional<Answer>& answer)
{
    return answer && answer->result.answer == FrameAnswer::Frame
               ? shown(answer->result.frame).number
               : -1;
}

} // namespace

/// The decoding thread: that commands are answered, and how.
class PlaybackEngineTest : public QObject
{
    Q_OBJECT

private slots:
    void open_isAnswered_withTheFirstFrame();
    void open_fails_withAReason();
    void close_isNotAnswered_andStepsAfterItNeither();
    void seekAndSteps_areAnsweredInOrder();
    void step_endsWithoutAFrame_atTheVideosEnds();
    void seeks_areReplaced_byTheNewest();
    void queue_holdsTheFramesInOrder_untilTheEnd();
    void step_fails_withAReason_whereTheFileIsLost();
    void seek_fails_withAReason_whereTheFileIsLost();
    void queue_fails_insteadOfEnding_whereTheFileIsLost();
};

void PlaybackEngineTest::open_isAnswered_withTheFirstFrame()
{
    Harness harness;
    const quint64 serial = harness.engine.open(testsupport::samplePath(QStringLiteral("sound.mp4")),
                                               QtAV::FrameCache::defaultBytes);
    const std::optional<Answer> answer = harness.next();
    QVERIFY(answer);
    QCOMPARE(answer->kind, Answer::Kind::Opened);
    QCOMPARE(answer->serial, serial);
    QCOMPARE(numberOf(answer), 0);
    QVERIFY(answer->hasSound);
    QCOMPARE(answer->frameInterval, 40);
    QVERIFY(answer->duration > 0);
}

void PlaybackEngineTest::open_fails_withAReason()
{
    Harness harness;
    const quint64 serial = harness.engine.open(testsupport::samplePath(QStringLiteral("text.mp4")),
                                               QtAV::FrameCache::defaultBytes);
    const std::optional<Answer> answer = harness.to(serial);
    QVERIFY(answer);
    QCOMPARE(answer->kind, Answer::Kind::Opened);
    QCOMPARE(answer->result.answer, FrameAnswer::Failed);
    QVERIFY(!answer->result.error.isEmpty());
}

void PlaybackEngineTest::close_isNotAnswered_andStepsAfterItNeither()
{
    Harness harness;
    const QString path = testsupport::samplePath(QStringLiteral("h264_baseline.mp4"));
    QVERIFY(harness.open(path));
    harness.engine.close();
    harness.engine.step(PlaybackEngine::Direction::Forward);
    harness.engine.seek(1000);
    const quint64 serial = harness.engine.open(path, QtAV::FrameCache::defaultBytes);
    const std::optional<Answer> answer = harness.next();
    QVERIFY(answer);
    QCOMPARE(answer->serial, serial);
}

void PlaybackEngineTest::seekAndSteps_areAnsweredInOrder()
{
    Harness harness;
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_bframes.mp4"))));
    const quint64 serial = harness.engine.seek(2000);
    harness.engine.step(PlaybackEngine::Direction::Backward);
    harness.engine.step(PlaybackEngine::Direction::Backward);
    QCOMPARE(numberOf(harness.to(serial)), 50);
    QCOMPARE(numberOf(harness.next()), 49);
    const std::optional<Answer> last = harness.next();
    QCOMPARE(numberOf(last), 48);
    QCOMPARE(last->kind, Answer::Kind::Stepped);
}

void PlaybackEngineTest::step_endsWithoutAFrame_atTheVideosEnds()
{
    Harness harness;
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_baseline.mp4"))));
    std::optional<Answer> answer =
        harness.to(harness.engine.step(PlaybackEngine::Direction::Backward));
    QVERIFY(answer);
    QCOMPARE(answer->result.answer, FrameAnswer::End);
    QCOMPARE(numberOf(harness.to(harness.engine.seek(3600000))), 49);
    answer = harness.to(harness.engine.step(PlaybackEngine::Direction::Forward));
    QVERIFY(answer);
    QCOMPARE(answer->result.answer, FrameAnswer::End);
}

void PlaybackEngineTest::seeks_areReplaced_byTheNewest()
{
    Harness harness;
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_gop250.mp4"))));
    for (int i = 0; i < 200; ++i) {
        harness.engine.seek(19000 - i);
    }
    const quint64 newest = harness.engine.seek(4000);
    int answers = 0;
    std::optional<Answer> answer;
    do {
        answer = harness.next();
        QVERIFY(answer);
        ++answers;
    } while (answer->serial != newest);
    QCOMPARE(numberOf(answer), 100);
    QVERIFY(answers < 200);
}

void PlaybackEngineTest::queue_holdsTheFramesInOrder_untilTheEnd()
{
    Harness harness;
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_baseline.mp4"))));
    QCOMPARE(numberOf(harness.to(harness.engine.seek(1600))), 40);
    harness.engine.setPlaying(true);
    int number = 40;
    bool isEnded = false;
    for (int i = 0; !isEnded && i < patienceMs; ++i) {
        const PlaybackEngine::Due due =
            harness.engine.takeDue((number + 1) * 0.04, PlaybackEngine::CatchUp::No);
        QVERIFY(!due.failure);
        QCOMPARE(due.dropped, 0);
        if (due.frame.isValid()) {
            QCOMPARE(shown(due.frame).number, ++number);
        }
        isEnded = due.isEnded;
        QTest::qSleep(1);
    }
    QVERIFY(isEnded);
    QCOMPARE(number, 49);
}

void PlaybackEngineTest::step_fails_withAReason_whereTheFileIsLost()
{
    Harness harness;
    const testsupport::TestDir dir;
    QVERIFY(openAndLose(harness, dir));
    int number = 0;
    std::optional<Answer> answer =
        harness.to(harness.engine.step(PlaybackEngine::Direction::Forward));
    while (numberOf(answer) > number) {
        number = numberOf(answer);
        answer = harness.to(harness.engine.step(PlaybackEngine::Direction::Forward));
    }
    QVERIFY(answer);
    QCOMPARE(answer->result.answer, FrameAnswer::Failed);
    QVERIFY(!answer->result.error.isEmpty());
    QVERIFY(number < longSampleFrames / 2);
    answer = harness.to(harness.engine.step(PlaybackEngine::Direction::Forward));
    QVERIFY(answer);
    QCOMPARE(answer->result.answer, FrameAnswer::Failed);
    if (number > 0) {
        QCOMPARE(numberOf(harness.to(harness.engine.step(PlaybackEngine::Direction::Backward))),
                 number - 1);
    }
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_bframes.mp4"))));
}

void PlaybackEngineTest::seek_fails_withAReason_whereTheFileIsLost()
{
    Harness harness;
    const testsupport::TestDir dir;
    QVERIFY(openAndLose(harness, dir));
    const std::optional<Answer> answer = harness.to(harness.engine.seek(15000));
    QVERIFY(answer);
    QCOMPARE(answer->kind, Answer::Kind::Sought);
    QCOMPARE(answer->result.answer, FrameAnswer::Failed);
    QVERIFY(!answer->result.error.isEmpty());
    QVERIFY(harness.open(testsupport::samplePath(QStringLiteral("h264_bframes.mp4"))));
}

void PlaybackEngineTest::queue_fails_insteadOfEnding_whereTheFileIsLost()
{
    Harness harness;
    const testsupport::TestDir dir;
    QVERIFY(openAndLose(harness, dir));
    harness.engine.setPlaying(true);
    PlaybackEngine::Due due;
    int number = 0;
    for (int i = 0; !due.failure && !due.isEnded && i < patienceMs; ++i) {
        due = harness.engine.takeDue((number + 1) * 0.04, PlaybackEngine::CatchUp::No);
        if (due.frame.isValid()) {
            number = shown(due.frame).number;
        }
        QTest::qSleep(1);
    }
    QVERIFY(!due.isEnded);
    QVERIFY(due.failure);
    QVERIFY(!due.failure->isEmpty());
    QVERIFY(number < longSampleFrames / 2);
}

QTEST_GUILESS_MAIN(PlaybackEngineTest)
#include "PlaybackEngineTest.moc"
