#include "series/SeriesRunner.h"
#include "tests/qtav/DecodedPackets.h"
#include "tests/series/SeriesRecord.h"
#include "tests/support/Samples.h"

#include <QTest>

using decoding::DecodedPackets;
using seriestests::every;

namespace {

/// Maximum number of packets before a frame of the samples is delivered.
constexpr int mostReordered = 3;

/// Counts the pictures.
class Counter : public SeriesOutput
{
public:
    void take(SeriesPicture picture) override { count += picture.error.isEmpty() ? 1 : 0; }

    int count = 0;
};

/// Number of packets decoded for such positions of a sample.
DecodedPackets decodedFor(const QString& file, const FramePositions& positions, int lanes,
                          int pictures)
{
    SeriesJob job;
    job.video = testsupport::samplePath(file);
    job.positions = positions;
    Counter counter;
    static_cast<void>(decoding::takeDecodedPackets());
    const bool isThrough = series::run({job}, counter, [] { return false; }, {lanes});
    const DecodedPackets decoded = decoding::takeDecodedPackets();
    return isThrough && counter.count == pictures ? decoded : DecodedPackets();
}

FramePositions at(std::initializer_list<double> milliseconds)
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::List;
    for (const double ms : milliseconds) {
        positions.list.push_back({FramePosition::Kind::Milliseconds, ms});
    }
    return positions;
}

} // namespace

/// How much the engine decodes for its pictures, which determines the time of a series.
class SeriesDecodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frames_areDecodedOnce_howeverDenseThePositions_data();
    void frames_areDecodedOnce_howeverDenseThePositions();
    void groupsBetweenPositions_areNotDecoded();
    void longGroupsAmongShortOnes_areDecodedTwiceAtMost();
    void framesThatNobodyNeeds_areLeftOut_fromTheFirstPictureOn();
    void keyFrames_areAllThatIsDecoded_whenTheyAreWanted();
};

void SeriesDecodingTest::frames_areDecodedOnce_howeverDenseThePositions_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("everyMs");
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("lanes");
    for (const int lanes : {1, 2, 4}) {
        QTest::addRow("each frame, %d lanes", lanes)
            << QStringLiteral("h264_gop250.mp4") << 7 << 520 << lanes;
        QTest::addRow("every fourth, %d lanes", lanes)
            << QStringLiteral("h264_gop250.mp4") << 160 << 130 << lanes;
        QTest::addRow("B-frames, %d lanes", lanes)
            << QStringLiteral("h264_bframes.mp4") << 7 << 100 << lanes;
    }
}

void SeriesDecodingTest::frames_areDecodedOnce_howeverDenseThePositions()
{
    QFETCH(const QString, file);
    QFETCH(const int, everyMs);
    QFETCH(const int, pictures);
    QFETCH(const int, lanes);
    const DecodedPackets decoded = decodedFor(file, every(everyMs), lanes, pictures);
    QVERIFY(decoded.times.size() >= pictures);
    // A decoder delivers a frame when it has the packets that may be shown before it: at the end of
    // a group of pictures these are the first of the next one, which is decoded again later.
    const int groups = testsupport::keyFrames(testsupport::sampleNamed(file)).size();
    const int repeated = decoded.total() - decoded.times.size();
    QVERIFY2(repeated <= mostReordered * (groups - 1), qPrintable(QString::number(repeated)));
}

void SeriesDecodingTest::groupsBetweenPositions_areNotDecoded()
{
    const DecodedPackets decoded =
        decodedFor(QStringLiteral("h264_gop250.mp4"), at({400, 20400}), 1, 2);
    // Frame 10 from the key frame 0, and frame 510 from the key frame 500.
    QVERIFY(decoded.total() > 0);
    QVERIFY2(decoded.total() <= 2 * (11 + mostReordered),
             qPrintable(QString::number(decoded.total())));
}

void SeriesDecodingTest::longGroupsAmongShortOnes_areDecodedTwiceAtMost()
{
    const DecodedPackets decoded = decodedFor(QStringLiteral("h264_2fps.ts"), every(6000), 1, 10);
    // At 36, 42 and 48 seconds in the group from 30 to 50: the search for 42 seconds begins anew.
    QVERIFY(decoded.times.size() >= 10);
    const int repeated = decoded.total() - decoded.times.size();
    QVERIFY2(repeated <= 13 + mostReordered, qPrintable(QString::number(repeated)));
}

void SeriesDecodingTest::framesThatNobodyNeeds_areLeftOut_fromTheFirstPictureOn()
{
    const DecodedPackets decoded = decodedFor(QStringLiteral("h264_bframes.mp4"), at({3900}), 1, 1);
    // Frame 97 from the key frame 75 on, without most of the frames between them.
    QVERIFY(decoded.total() > 0);
    QVERIFY2(decoded.total() <= 15, qPrintable(QString::number(decoded.total())));
}

void SeriesDecodingTest::keyFrames_areAllThatIsDecoded_whenTheyAreWanted()
{
    FramePositions positions;
    positions.kind = FramePositions::Kind::KeyFrames;
    for (const int lanes : {1, 2}) {
        const DecodedPackets decoded =
            decodedFor(QStringLiteral("h264_gop250.mp4"), positions, lanes, 3);
        QCOMPARE(decoded.counts, QList<int>({1, 1, 1}));
    }
}

QTEST_GUILESS_MAIN(SeriesDecodingTest)
#include "SeriesDecodingTest.moc"
