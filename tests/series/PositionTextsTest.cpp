#include "series/PositionTexts.h"

#include <QTest>

using namespace positions;

class PositionTextsTest : public QObject
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
};

void PositionTextsTest::time_isRead_asPeopleWriteIt_data()
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

void PositionTextsTest::time_isRead_asPeopleWriteIt()
{
    QFETCH(const QByteArray, text);
    QFETCH(const double, ms);
    const Result<double> time = parseTime(text.toStdString());
    QVERIFY2(time.isGood(), time.error.c_str());
    QCOMPARE(*time.value, ms);
}

void PositionTextsTest::time_isRefused_withItsText_data()
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

void PositionTextsTest::time_isRefused_withItsText()
{
    QFETCH(const QByteArray, text);
    const Result<double> time = parseTime(text.toStdString());
    QVERIFY(!time.isGood());
    QVERIFY2(time.error.find("'" + text.toStdString() + "'") == 0, time.error.c_str());
}

void PositionTextsTest::position_mayBeAPartOrTheLastFrame()
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

void PositionTextsTest::positions_areListed_withCommas()
{
    const auto positions = parsePositions("1:02.5,75%,last");
    QVERIFY(positions.isGood());
    QCOMPARE(positions.value->size(), std::size_t(3));
    QCOMPARE(positions.value->front().value, 62500.0);
    QVERIFY(positions.value->back().kind == FramePosition::Kind::Last);
}

void PositionTextsTest::positions_areRefused_whenOneIsMissing()
{
    for (const char* const text : {"", ",", "1,", ",1", "1,,2", "1, 2"}) {
        QVERIFY2(!parsePositions(text).isGood(), text);
    }
}

void PositionTextsTest::skip_mayBeAPart()
{
    QVERIFY(parseSkip("10%").value->unit == SeriesSkip::Unit::Percent);
    QCOMPARE(parseSkip("30s").value->value, 30000.0);
    QVERIFY(!parseSkip("last").isGood());
}

void PositionTextsTest::frames_areNumbersAndRanges()
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

void PositionTextsTest::frames_areRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text : {"", ",", "-", "5-", "-5", "7-5", "1.5", "1-2-3", "a",
                                   "99999999999999999999", "0-1000000", "0-999999,0-5"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void PositionTextsTest::frames_areRefused()
{
    QFETCH(const QByteArray, text);
    QVERIFY(!parseFrames(text.toStdString()).isGood());
}

QTEST_APPLESS_MAIN(PositionTextsTest)
#include "PositionTextsTest.moc"
