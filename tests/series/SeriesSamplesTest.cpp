#include "tests/series/SeriesRecord.h"

#include "tests/support/Sanitizers.h"

#include <QTest>

using namespace seriestests;
using testsupport::Sample;
using testsupport::Trait;

/// Which frames come out of each kind of video.
class SeriesSamplesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void every_givesTheFrameAtOrAfterEachPosition_data();
    void every_givesTheFrameAtOrAfterEachPosition();
    void numbers_giveTheseFrames_data() { addSamples(); }
    void numbers_giveTheseFrames();
    void keyFrames_areAllOfThem_data() { addSamples(); }
    void keyFrames_areAllOfThem();
    void lastFrame_comes_forEverySample_data() { addSamples(); }
    void lastFrame_comes_forEverySample();

private:
    static void addSamples();
};

void SeriesSamplesTest::addSamples()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        QTest::newRow(qPrintable(sample.file)) << sample.file;
    }
}

void SeriesSamplesTest::every_givesTheFrameAtOrAfterEachPosition_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("everyMs");
    QTest::addColumn<int>("lanes");
    const QList<int> distances =
        testsupport::isSanitized ? QList<int>{170} : QList<int>{15, 170, 900};
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        for (const int ms : distances) {
            if (ms > 15 || !sample.has(Trait::Large)) {
                QTest::addRow("%s, %d ms", qPrintable(sample.file), ms)
                    << sample.file << ms << (ms == 170 ? 4 : 2);
            }
        }
    }
    // Far enough to search for key frames whose times are in no index.
    QTest::newRow("h264_2fps.ts, 6000 ms") << QStringLiteral("h264_2fps.ts") << 6000 << 1;
}

void SeriesSamplesTest::every_givesTheFrameAtOrAfterEachPosition()
{
    QFETCH(QString, file);
    QFETCH(int, everyMs);
    QFETCH(int, lanes);
    const Sample& sample = testsupport::sampleNamed(file);
    Record record;
    QVERIFY(series::run({jobFor(file, every(everyMs))}, record, neverCancelled, {lanes}));
    QCOMPARE(record.errors, QStringList{QString()});
    QCOMPARE(record.begun.size(), 1);
    const qint64 durationMs = record.begun.first().durationMs;
    QCOMPARE(numbersIn(record.pictures), expectedAt(sample, positionsEvery(everyMs, durationMs)));
}

void SeriesSamplesTest::numbers_giveTheseFrames()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    QList<int> frames;
    QStringList expected;
    for (int n = 0; n < sample.frames; n += 1 + n % 7) {
        frames.append(n);
        expected.append(QString::number(sample.firstNumber + n));
    }
    Record record;
    QVERIFY(series::run({jobFor(file, numbers(frames))}, record, neverCancelled, {2}));
    QCOMPARE(numbersIn(record.pictures), expected);
    for (int i = 0; i < frames.size(); ++i) {
        QCOMPARE(record.pictures.at(i).frame, std::optional<qint64>(frames.at(i)));
        QCOMPARE(record.pictures.at(i).timeMs,
                 std::optional<qint64>(testsupport::frameTimeMs(sample, frames.at(i))));
    }
}

void SeriesSamplesTest::keyFrames_areAllOfThem()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    if (sample.has(Trait::IntraRefresh)) {
        QSKIP("It has no whole pictures at its key packets.");
    }
    QStringList expected;
    for (const int frame : testsupport::keyFrames(sample)) {
        expected.append(QString::number(sample.firstNumber + frame));
    }
    Record record;
    QVERIFY(series::run({jobFor(file, ofKind(FramePositions::Kind::KeyFrames))}, record,
                        neverCancelled, {2}));
    QCOMPARE(numbersIn(record.pictures), expected);
}

void SeriesSamplesTest::lastFrame_comes_forEverySample()
{
    QFETCH(QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FramePositions positions = ofKind(FramePositions::Kind::List);
    positions.list = {{FramePosition::Kind::Last}};
    Record record;
    QVERIFY(series::run({jobFor(file, positions)}, record, neverCancelled));
    QCOMPARE(numbersIn(record.pictures),
             QStringList{QString::number(sample.firstNumber + sample.frames - 1)});
}

QTEST_GUILESS_MAIN(SeriesSamplesTest)
#include "SeriesSamplesTest.moc"
