#include "imaging/Recording.h"

#include <QTest>

namespace {

QString textOf(const std::optional<Recording::Moment>& moment)
{
    if (!moment) {
        return QStringLiteral("none");
    }
    const QString text = moment->time.toString(Qt::ISODateWithMs);
    return moment->knowsZone ? text : text.left(23) + QStringLiteral(" somewhere");
}

} // namespace

class RecordingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parseMoment_understandsWhatFilesSay_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("moment");
        const auto row = [](const char* text, const char* moment) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromLatin1(moment);
        };
        row("2024-05-06T10:34:56.250000Z", "2024-05-06T10:34:56.250Z");
        row("2024-05-06T12:34:56+0200", "2024-05-06T12:34:56.000+02:00");
        row("2024-05-06T12:34:56-09:30", "2024-05-06T12:34:56.000-09:30");
        row("2024-05-06 12:34:56", "2024-05-06T12:34:56.000 somewhere");
        row("2024:05:06 12:34:56.5", "2024-05-06T12:34:56.500 somewhere");
        row(" 2024-05-06T12:34Z ", "2024-05-06T12:34:00.000Z");
        row("2024-02-29T00:00:00.0009Z", "2024-02-29T00:00:00.000Z");
        row("", "none");
        row("2024", "none");
        row("2024-05-06", "none");
        row("2023-02-29T00:00:00Z", "none");
        row("2024-05-06T25:00:00Z", "none");
        row("2024-05-06T12:34:56+99:00", "none");
        row("1904-01-01T00:00:00Z", "none");
        row("1970-01-01T00:00:00Z", "none");
        row("0000-00-00T00:00:00Z", "none");
        row("yesterday", "none");
        row("2024-05-06T12:34:56Z; rm -rf", "none");
        row("٢٠٢٤-05-06T12:34:56Z", "none");
    }
    void parseMoment_understandsWhatFilesSay()
    {
        QFETCH(const QString, text);
        QTEST(textOf(Recording::parseMoment(text)), "moment");
    }

    void moment_goesOn_intoTheNextYear()
    {
        const auto start = Recording::parseMoment(QStringLiteral("2023-12-31T23:59:59.500+01:00"));
        QVERIFY(start);
        QCOMPARE(textOf(start->after(600)), QStringLiteral("2024-01-01T00:00:00.100+01:00"));
    }

    void parsePlace_understandsDegreesMinutesAndSeconds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("latitude");
        QTest::addColumn<double>("longitude");
        QTest::newRow("degrees") << QStringLiteral("+48.2085+016.3730+171.5/") << 48.2085 << 16.373;
        QTest::newRow("south and west") << QStringLiteral("-33.9-151.2/") << -33.9 << -151.2;
        QTest::newRow("minutes") << QStringLiteral("+4830.0+01615.0/") << 48.5 << 16.25;
        QTest::newRow("seconds") << QStringLiteral("+483036+0161545.0/") << 48.51 << 16.2625;
        QTest::newRow("its system") << QStringLiteral("+01.5+002.5+3CRSWGS_84/") << 1.5 << 2.5;
    }
    void parsePlace_understandsDegreesMinutesAndSeconds()
    {
        QFETCH(const QString, text);
        const auto place = Recording::parsePlace(text);
        QVERIFY(place);
        QTEST(place->latitude, "latitude");
        QTEST(place->longitude, "longitude");
    }

    void parsePlace_findsTheAltitude()
    {
        QCOMPARE(*Recording::parsePlace(QStringLiteral("+1.0+2.0-3.5/"))->altitude, -3.5);
        QVERIFY(!Recording::parsePlace(QStringLiteral("+1.0+2.0/"))->altitude);
    }

    void parsePlace_findsNone_whereThereIsNone_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text :
             {"", "Vienna", "+91.0+000.0/", "+01.0+181.0/", "48.2,16.3", "+48.2", "+nan+nan/",
              "+999999999999+1/", "+1.0+2.0+3.0+4.0/"}) {
            QTest::newRow(text) << QString::fromLatin1(text);
        }
    }
    void parsePlace_findsNone_whereThereIsNone()
    {
        QFETCH(const QString, text);
        QVERIFY(!Recording::parsePlace(text));
    }

    void of_prefersWhatTellsMore()
    {
        const Recording recording = Recording::of(
            {{QStringLiteral("creation_time"), QStringLiteral("2024-01-02T03:04:05Z")},
             {QStringLiteral("com.apple.quicktime.creationdate"),
              QStringLiteral("2024-01-02T05:04:05+0200")},
             {QStringLiteral("make"), QStringLiteral("\n")},
             {QStringLiteral("com.android.manufacturer"), QStringLiteral("Maker")},
             {QStringLiteral("artist"), QStringLiteral(" A\tname ")},
             {QStringLiteral("location"), QStringLiteral("+1.0+2.0/")}});
        QCOMPARE(textOf(recording.start), QStringLiteral("2024-01-02T05:04:05.000+02:00"));
        QCOMPARE(recording.make, QStringLiteral("Maker"));
        QCOMPARE(recording.model, QString());
        QCOMPARE(recording.author, QStringLiteral("A name"));
        QCOMPARE(recording.place->longitude, 2.0);
    }

    void of_passesOverADateThatMakesNoSense()
    {
        const Recording recording = Recording::of(
            {{QStringLiteral("com.apple.quicktime.creationdate"), QStringLiteral("nonsense")},
             {QStringLiteral("date"), QStringLiteral("2024-01-02 03:04:05")}});
        QCOMPARE(textOf(recording.start), QStringLiteral("2024-01-02T03:04:05.000 somewhere"));
    }

    void plainText_hasNothingThatBreaksAFile()
    {
        const QString hostile = QStringLiteral("a\x1b[2J\x07") + QChar(0xd800) + QChar(0xfffe) +
                                QChar(0x85) + QChar(0) + QStringLiteral("<b>&\"é") +
                                QString::fromUtf8("\xf0\x9f\x8e\xa5");
        QCOMPARE(plainText(hostile),
                 QStringLiteral("a [2J \uFFFD <b>&\"é") + QString::fromUtf8("\xf0\x9f\x8e\xa5"));
        QCOMPARE(plainText(QString(5000, QLatin1Char('x'))).size(), 1000);
        const QString wide = QString::fromUtf8("\xf0\x9f\x8e\xa5").repeated(1500);
        QCOMPARE(plainText(wide), QString::fromUtf8("\xf0\x9f\x8e\xa5").repeated(1000));
        QCOMPARE(plainName(QStringLiteral(" a  b\u3000\u202fc\n\td ")),
                 QStringLiteral(" a  b\u3000\u202fc  d "));
        QCOMPARE(plainLines(QStringLiteral(" a\nb\rc ")), QStringLiteral(" a\nb c "));
    }
};

QTEST_GUILESS_MAIN(RecordingTest)
#include "RecordingTest.moc"
