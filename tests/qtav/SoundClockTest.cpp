#include "qtav/player/SoundClock.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <random>

using QtAV::SoundClock;

namespace {

/// A device that reports only how much it has taken, with delay and limited precision.
class BlockDevice
{
public:
    /// @param block    how much it takes at once, in seconds.
    /// @param quantum  precision of its reports, in seconds.
    BlockDevice(double block, double quantum)
        : m_block(block)
        , m_quantum(quantum)
    {
        m_clock.reset(std::max(block, 0.25), at(0.0));
    }

    /// Lets time pass, polling every 8 to 12 ms, and returns the maximum error of the clock.
    double run(double seconds)
    {
        double mostOff = 0.0;
        for (const double end = m_now + seconds; m_now < end;) {
            m_now += 0.008 + 0.004 * double(m_random() % 1000) / 1000.0;
            mostOff = std::max(mostOff, std::abs(look() - heard()));
        }
        return mostOff;
    }

    /// The device stands still.
    void interrupt(double seconds)
    {
        for (const double end = m_now + seconds; m_now < end; m_now += 0.01) {
            m_silence += 0.01;
            look();
        }
    }

    /// The device plays on without reports for this long.
    double runUnknown(double seconds)
    {
        const double taken = known();
        double mostOff = 0.0;
        for (const double end = m_now + seconds; m_now < end;) {
            m_now += 0.01;
            mostOff = std::max(mostOff, std::abs(m_clock.heard(taken, at(m_now)) - heard()));
        }
        return mostOff;
    }

    double look() { return m_clock.heard(known(), at(m_now)); }
    double heard() const { return std::max(0.0, m_now - m_silence); }
    double known() const
    {
        if (m_now < m_silence) {
            return 0.0;
        }
        const double taken = (std::floor(heard() / m_block) + 1.0) * m_block;
        return std::floor(taken / m_quantum) * m_quantum;
    }

private:
    static SoundClock::Time at(double seconds)
    {
        return SoundClock::Time() + std::chrono::nanoseconds(qint64(seconds * 1e9));
    }

    double m_block;
    double m_quantum;
    double m_now = 0.0;
    double m_silence = 0.0; ///< how long there was silence
    std::mt19937 m_random{23};
    SoundClock m_clock;
};

constexpr double largestOffset = 0.032; ///< the quantum of 20 ms and the 12 ms between two looks

} // namespace

/// What is heard from a device that takes samples in blocks.
class SoundClockTest : public QObject
{
    Q_OBJECT

private slots:
    void time_runsEvenly_whateverTheBlocks_data();
    void time_runsEvenly_whateverTheBlocks();
    void time_standsStill_beforeTheFirstSound();
    void time_isNeverAheadOfWhatWasTaken_andRightAgain_afterAnInterruption();
    void time_runsOn_whenWhatWasTakenIsKnownLate();
};

void SoundClockTest::time_runsEvenly_whateverTheBlocks_data()
{
    QTest::addColumn<double>("block");
    QTest::addColumn<double>("quantum");
    QTest::newRow("small") << 0.01 << 0.001;
    QTest::newRow("small, known roughly") << 0.01 << 0.02;
    QTest::newRow("large") << 0.21 << 0.001;
    QTest::newRow("large, known roughly") << 0.21 << 0.02;
    QTest::newRow("half a second") << 0.5 << 0.02;
}

void SoundClockTest::time_runsEvenly_whateverTheBlocks()
{
    QFETCH(double, block);
    QFETCH(double, quantum);
    BlockDevice device(block, quantum);
    const double off = device.run(20.0);
    QVERIFY2(off <= largestOffset, QByteArray::number(off).constData());
}

void SoundClockTest::time_standsStill_beforeTheFirstSound()
{
    BlockDevice device(0.21, 0.02);
    device.interrupt(2.0);
    QVERIFY(device.look() <= 0.0101); // since the last poll
    QVERIFY(device.run(5.0) <= largestOffset);
}

void SoundClockTest::time_isNeverAheadOfWhatWasTaken_andRightAgain_afterAnInterruption()
{
    BlockDevice device(0.21, 0.02);
    device.run(3.0);
    device.interrupt(1.0);
    QVERIFY(device.look() <= device.known());
    device.run(1.0);
    QVERIFY(device.run(5.0) <= largestOffset);
}

void SoundClockTest::time_runsOn_whenWhatWasTakenIsKnownLate()
{
    BlockDevice device(0.01, 0.01);
    device.run(3.1);
    QVERIFY(device.runUnknown(0.08) >= 0.05);  // never ahead of what is known
    QVERIFY(device.run(5.0) <= largestOffset); // but right at once when more is known
}

QTEST_GUILESS_MAIN(SoundClockTest)
#include "SoundClockTest.moc"
