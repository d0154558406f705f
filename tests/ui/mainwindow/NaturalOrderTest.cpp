#include "ui/mainwindow/NaturalOrder.h"

#include <QStringList>
#include <QTest>

#include <algorithm>

class NaturalOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_areSorted_asPeopleDo_data();
    void names_areSorted_asPeopleDo();
    void namesThatDiffer_areNeverEqual();
};

void NaturalOrderTest::names_areSorted_asPeopleDo_data()
{
    QTest::addColumn<QStringList>("sorted");
    const auto add = [](const char* name, const QStringList& sorted) {
        QTest::newRow(name) << sorted;
    };
    const auto list = [](const char* names) {
        return QString::fromUtf8(names).split(QLatin1Char('|'));
    };
    add("numbers", list("take 2.mp4|take 9.mp4|take 10.mp4|take 100.mp4"));
    add("case", list("a.mp4|B.mp4|c.mp4"));
    add("zeros", list("007.mp4|8.mp4|0009.mp4|10.mp4"));
    add("several numbers", list("s1e2|s1e10|s2e1|s10e1"));
    add("longer than any type", list("a99999999999999999999999|a100000000000000000000000"));
    add("shorter", list("clip|clip1|clip1a"));
    add("number or letter", list("1.mp4|a.mp4"));
    add("empty", list("|a"));
}

void NaturalOrderTest::names_areSorted_asPeopleDo()
{
    QFETCH(const QStringList, sorted);
    QStringList names = sorted;
    std::reverse(names.begin(), names.end());
    std::sort(names.begin(), names.end(), NaturalOrder());
    QCOMPARE(names, sorted);
}

void NaturalOrderTest::namesThatDiffer_areNeverEqual()
{
    const NaturalOrder order;
    const QString upper = QStringLiteral("A1");
    const QString lower = QStringLiteral("a01");
    QVERIFY(order(upper, lower) != order(lower, upper));
    QVERIFY(!order(upper, upper));
}

QTEST_GUILESS_MAIN(NaturalOrderTest)
#include "NaturalOrderTest.moc"
