#include "stills/Times.h"

#include <QTest>

using namespace stills;

class TimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void time_isRead_asPeopleWriteIt_data();
    void time_isRead_asPeopleWriteIt();
    void time_isRefused_withItsText_data();
    void time_isRefused_withItsText();
    void position_mayBeAPartOrTheLastFrame();
    void positions_areListed_withCommas();
    void positions_areRefused_whenOneIsMissing();
    void skip_mayBeAPart();
    void frames_areNumbersAndRanges();
    void frames_areRefused_data();
    void frames_areRefused();
    void size_isWidthAndHeight();
    void size_isRefused_data();
    void size_isRefused();
    void threshold_isAboveZeroAndUpToOne();
    void memory_countsIn1024s();
    void shard_countsFromOne();
};

void TimesTest::time_isRead_asPeopleWriteIt_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("ms");
    const auto row = [](const char* text, double ms) {
        QTest::newRow(text) << QByteArray(text) << ms;
    };
    row("0", 0);
    row("90", 90000);
    row("90s", 90000);
    row("1.5s", 1500);
    row("1.001", 1001);
    row("500ms", 500);
    row("33.5ms", 33.5);
    row("2m", 120000);
    row("1h", 3600000);
    row("1.5h", 5400000);
    row("1:30", 90000);
    row("0:00", 0);
    row("1:30.250", 90250);
    row("1:02.5", 62500);
    row("90:00", 5400000);
    row("1:02:03.5", 3723500);
    row("100:00:00", 360000000);
    row("1000000h", 3.6e12);
}

void TimesTest::time_isRead_asPeopleWriteIt()
{
    QFETCH(const QByteArray, text);
    QFETCH(const double, ms);
    const Result<double> time = parseTime(text.toStdString());
    QVERIFY2(time.isGood(), time.error.c_str());
    QCOMPARE(*time.value, ms);
}

void TimesTest::time_isRefused_withItsText_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text : {"",
                                   " ",
                                   "-5",
                                   "+5",
                                   "5,5",
                                   "1.500,5",
                                   "1.",
                                   ".5",
                                   "1.2.3",
                                   "5x",
                                   "5sec",
                                   "ss",
                                   "ms",
                                   "90ss",
                                   "1e3",
                                   "0x10",
                                   "1 s",
                                   " 1",
                                   "1:75",
                                   "1:5",
                                   "1::30",
                                   ":30",
                                   "1:",
                                   "1:2:3:4",
                                   "1:60:00",
                                   "1:00:60",
                                   "1:30s",
                                   "1:-1",
                                   "5%",
                                   "last",
                                   "nan",
                                   "inf",
                                   "1.1234567890",
                                   "1000001h",
                                   "99999999999999999999",
                                   "99999999999999999999:00",
                                   "9999999999:00:00",
                                   "\xd9\xa5"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void TimesTest::time_isRefused_withItsText()
{
    QFETCH(const QByteArray, text);
    const Result<double> time = parseTime(text.toStdString());
    QVERIFY(!time.isGood());
    QVERIFY2(time.error.find("'" + text.toStdString() + "'") == 0, time.error.c_str());
}

void TimesTest::position_mayBeAPartOrTheLastFrame()
{
    QVERIFY(parsePosition("last").value->kind == FramePosition::Kind::Last);
    const FramePosition part = *parsePosition("12.5%").value;
    QVERIFY(part.kind == FramePosition::Kind::Percent);
    QCOMPARE(part.value, 12.5);
    QCOMPARE(parsePosition("100%").value->value, 100.0);
    QVERIFY(parsePosition("1:30").value->kind == FramePosition::Kind::Milliseconds);
    for (const char* const text : {"101%", "100.1%", "-1%", "%", "50%%", "Last", "first"}) {
        QVERIFY2(!parsePosition(text).isGood(), text);
    }
}

void TimesTest::positions_areListed_withCommas()
{
    const auto positions = parsePositions("1:02.5,75%,last");
    QVERIFY(positions.isGood());
    QCOMPARE(positions.value->size(), std::size_t(3));
    QCOMPARE(positions.value->front().value, 62500.0);
    QVERIFY(positions.value->back().kind == FramePosition::Kind::Last);
}

void TimesTest::positions_areRefused_whenOneIsMissing()
{
    for (const char* const text : {"", ",", "1,", ",1", "1,,2", "1, 2"}) {
        QVERIFY2(!parsePositions(text).isGood(), text);
    }
}

void TimesTest::skip_mayBeAPart()
{
    QVERIFY(parseSkip("10%").value->unit == SeriesSkip::Unit::Percent);
    QCOMPARE(parseSkip("30s").value->value, 30000.0);
    QVERIFY(!parseSkip("last").isGood());
}

void TimesTest::frames_areNumbersAndRanges()
{
    const auto frames = parseFrames("0,100,200-203");
    QVERIFY(frames.isGood());
    std::vector<double> numbers;
    for (const FramePosition& frame : *frames.value) {
        QVERIFY(frame.kind == FramePosition::Kind::FrameNumber);
        numbers.push_back(frame.value);
    }
    QCOMPARE(numbers, (std::vector<double>{0, 100, 200, 201, 202, 203}));
}

void TimesTest::frames_areRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text : {"", ",", "-", "5-", "-5", "7-5", "1.5", "1-2-3", "a",
                                   "99999999999999999999", "0-1000000", "0-999999,0-5"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void TimesTest::frames_areRefused()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!parseFrames(text.toStdString()).isGood());
}

void TimesTest::size_isWidthAndHeight()
{
    const Result<Size> size = parseSize("1920x1080");
    QVERIFY(size.isGood());
    QCOMPARE(size.value->width, 1920);
    QCOMPARE(size.value->height, 1080);
}

void TimesTest::size_isRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text :
         {"", "x", "10", "10x", "x10", "0x10", "10x0", "-1x5", "5X5", "1x2x3", "99999x1"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void TimesTest::size_isRefused()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!parseSize(text.toStdString()).isGood());
}

void TimesTest::threshold_isAboveZeroAndUpToOne()
{
    QCOMPARE(*parseThreshold("0.25").value, 0.25);
    QCOMPARE(*parseThreshold("1").value, 1.0);
    for (const char* const text : {"0", "1.01", "", "true", "-0.5", "0,3"}) {
        QVERIFY2(!parseThreshold(text).isGood(), text);
    }
}

void TimesTest::memory_countsIn1024s()
{
    QCOMPARE(*parseMemory("800M").value, std::int64_t(800) * 1024 * 1024);
    QCOMPARE(*parseMemory("1.5G").value, std::int64_t(1536) * 1024 * 1024);
    QCOMPARE(*parseMemory("500000000").value, std::int64_t(500000000));
    for (const char* const text : {"", "M", "1", "2GB", "-1G", "9999999T", "0"}) {
        QVERIFY2(!parseMemory(text).isGood(), text);
    }
}

void TimesTest::shard_countsFromOne()
{
    const Result<Shard> shard = parseShard("3/16");
    QVERIFY(shard.isGood());
    QCOMPARE(shard.value->number, 3);
    QCOMPARE(shard.value->count, 16);
    QVERIFY(QByteArray::fromStdString(parseShard("0/16").error).contains("count from 1"));
    for (const char* const text : {"", "3", "3/", "/3", "17/16", "0/0", "1/0", "-1/4", "1/2/3"}) {
        QVERIFY2(!parseShard(text).isGood(), text);
    }
}

QTEST_APPLESS_MAIN(TimesTest)

#include "TimesTest.moc"
