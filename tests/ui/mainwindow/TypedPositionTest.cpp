#include "ui/mainwindow/TypedPosition.h"

#include <QTest>

using Kind = FramePosition::Kind;
using Way = TypedPosition::Way;

Q_DECLARE_METATYPE(FramePosition::Kind)
Q_DECLARE_METATYPE(TypedPosition::Way)

class TypedPositionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void position_isRead_asPeopleTypeIt_data();
    void position_isRead_asPeopleTypeIt();
    void otherTexts_sayNothing_data();
    void otherTexts_sayNothing();
};

void TypedPositionTest::position_isRead_asPeopleTypeIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Way>("way");
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<double>("value");
    const auto row = [](const char* text, Way way, Kind kind, double value) {
        QTest::newRow(text) << QString::fromLatin1(text) << way << kind << value;
    };
    row("1:02:03.5", Way::To, Kind::Milliseconds, 3723500);
    row("00:01:02.500", Way::To, Kind::Milliseconds, 62500);
    row("90", Way::To, Kind::Milliseconds, 90000);
    row(" 90S\n", Way::To, Kind::Milliseconds, 90000);
    row("+10s", Way::By, Kind::Milliseconds, 10000);
    row("-2s", Way::By, Kind::Milliseconds, -2000);
    row("+1:30", Way::By, Kind::Milliseconds, 90000);
    row("-500ms", Way::By, Kind::Milliseconds, -500);
    row("f1234", Way::To, Kind::FrameNumber, 1234);
    row("F0", Way::To, Kind::FrameNumber, 0);
    row("75%", Way::To, Kind::Percent, 75);
    row("Last", Way::To, Kind::Last, 0);
}

void TypedPositionTest::position_isRead_asPeopleTypeIt()
{
    QFETCH(const QString, text);
    QFETCH(const Way, way);
    QFETCH(const Kind, kind);
    QFETCH(const double, value);
    const std::optional<TypedPosition> typed = typedPosition(text);
    QVERIFY(typed);
    QVERIFY(typed->way == way);
    QVERIFY(typed->place.kind == kind);
    QCOMPARE(typed->place.value, value);
}

void TypedPositionTest::otherTexts_sayNothing_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "  ", "+", "-", "f", "abc", "+-2s", "--2", "f1-3", "f1,2", "f-1",
                             "f1.5", "+75%", "101%", "1:75", "1,5", "+f3", "f99999999999999999"}) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
    QTest::newRow("other digits") << QString(QChar(0x665));
}

void TypedPositionTest::otherTexts_sayNothing()
{
    QFETCH(const QString, text);
    QVERIFY(!typedPosition(text));
}

QTEST_APPLESS_MAIN(TypedPositionTest)
#include "TypedPositionTest.moc"
