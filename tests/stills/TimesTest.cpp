#include "stills/Times.h"

#include <QTest>

using namespace stills;

class TimesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void size_isWidthAndHeight();
    void size_isRefused_data();
    void size_isRefused();
    void threshold_isAboveZeroAndUpToOne();
    void memory_countsIn1024s();
    void shard_countsFromOne();
};

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
