#include "series/SeriesBoard.h"

#include <QTest>

#include <atomic>

namespace {

constexpr qint64 megabyte = 1 << 20;

/// Takes all and keeps nothing.
class Sink : public SeriesOutput
{
public:
    void take(SeriesPicture) override {}
};

/// A plan of so many stretches with one target each.
SeriesPlan planOf(int stretches)
{
    SeriesPlan plan;
    for (int i = 0; i < stretches; ++i) {
        SeriesTarget target;
        target.ms = i * 1000;
        plan.targets.append(target);
        SeriesPlan::Stretch stretch;
        stretch.begin = i;
        stretch.end = i + 1;
        plan.stretches.append(stretch);
    }
    return plan;
}

SeriesOptions optionsWith(qint64 memory, qint64 picture)
{
    SeriesOptions options;
    options.lanes = 4;
    options.memoryBytes = memory;
    options.pictureBytes = picture;
    return options;
}

} // namespace

class SeriesBoardTest : public QObject
{
    Q_OBJECT

private:
    Sink m_sink;
    std::atomic<bool> m_isCancelled{false};
    const QtAV::IsCancelled m_asks = [this] { return m_isCancelled.load(); };
    const QVector<SeriesJob> m_jobs{SeriesJob()};

    /// Claims all stretches of the one video, which is opened and planned by then.
    void claimAll(SeriesBoard& board, int stretches)
    {
        QVERIFY(board.next(-1).kind == SeriesBoard::Task::Kind::Plan);
        QCOMPARE(board.planned(0, planOf(stretches), {}, {}).stretch, 0);
        for (int i = 1; i < stretches; ++i) {
            QCOMPARE(board.next(-1).stretch, i);
        }
    }

private Q_SLOTS:
    void init() { m_isCancelled = false; }

    void lanes_decodeAtOnce_whileOnePictureOfEachFits()
    {
        SeriesBoard board(m_jobs, m_sink, m_asks, optionsWith(10 * megabyte, 4 * megabyte));
        claimAll(board, 4);
        for (int stretch = 0; stretch < 4; ++stretch) {
            QVERIFY(board.enter(0, stretch, 2 * megabyte));
        }
    }

    void lanes_wait_whilePicturesOfOthersTakeTheMemory()
    {
        SeriesBoard board(m_jobs, m_sink, m_asks, optionsWith(10 * megabyte, 4 * megabyte));
        claimAll(board, 4);
        QVERIFY(board.enter(0, 1, 4 * megabyte));
        QVERIFY(board.enter(0, 2, 4 * megabyte));
        QVERIFY(!board.enter(0, 3, 4 * megabyte));
        board.leave(4 * megabyte);
        QVERIFY(board.enter(0, 3, 4 * megabyte));
    }

    void lane_thatTheOutputWaitsFor_neverWaits()
    {
        SeriesBoard board(m_jobs, m_sink, m_asks, optionsWith(megabyte, 4 * megabyte));
        claimAll(board, 3);
        QVERIFY(board.enter(0, 2, 4 * megabyte));
        QVERIFY(!board.enter(0, 1, 4 * megabyte));
        QVERIFY(board.waitToEnter(0, 0, 4 * megabyte));
        // Its successor is next then.
        board.finished(0, 0);
        QVERIFY(board.waitToEnter(0, 1, 4 * megabyte));
    }

    void lane_decodesAlone_whereOnePictureIsLargerThanTheMemory()
    {
        SeriesBoard board(m_jobs, m_sink, m_asks, optionsWith(megabyte, megabyte));
        claimAll(board, 2);
        QVERIFY(board.enter(0, 1, 4 * megabyte));
    }

    void waiting_ends_whenAllIsCancelled()
    {
        SeriesBoard board(m_jobs, m_sink, m_asks, optionsWith(megabyte, megabyte));
        claimAll(board, 3);
        QVERIFY(board.enter(0, 1, megabyte));
        m_isCancelled = true;
        QVERIFY(!board.waitToEnter(0, 2, megabyte));
    }
};

QTEST_GUILESS_MAIN(SeriesBoardTest)

#include "SeriesBoardTest.moc"
