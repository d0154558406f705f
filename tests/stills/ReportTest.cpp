#include "stills/Report.h"
#include "stills/Texts.h"

#include <QTest>

using stills::ProgressState;
using stills::Tally;

class ReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void progress_hasPictures_speedAndRemainingTime();
    void progress_countsVideos_whenThereAreSeveral();
    void progress_fitsTheTerminal();
    void summary_saysHowManyAndWhere_data();
    void summary_saysHowManyAndWhere();
    void clockTimes_haveHours_whereThereAreAny();
};

void ReportTest::progress_hasPictures_speedAndRemainingTime()
{
    ProgressState state;
    state.name = QStringLiteral("film.mkv");
    state.pictures = 12;
    state.expected = 48;
    state.part = 0.25;
    state.total = 12;
    state.elapsedMs = 2000;
    QCOMPARE(stills::progressText(state, 80),
             QStringLiteral("film.mkv: 12/48 pictures, 6.0/s, 0:06 left"));
}

void ReportTest::progress_countsVideos_whenThereAreSeveral()
{
    ProgressState state;
    state.videos = 4;
    state.video = 2;
    state.name = QStringLiteral("film.mkv");
    state.pictures = 3;
    state.total = 13;
    state.part = 0.0;
    state.elapsedMs = 10000;
    QCOMPARE(stills::progressText(state, 80),
             QStringLiteral("2/4 film.mkv: 3 pictures, 1.3/s, 0:30 left"));
}

void ReportTest::progress_fitsTheTerminal()
{
    ProgressState state;
    state.name = QString(200, QLatin1Char('x'));
    state.pictures = 12;
    for (const int columns : {0, 1, 10, 40, 80, 200}) {
        QVERIFY(stills::progressText(state, columns).size() <= columns);
    }
    QVERIFY(stills::progressText(state, 80).endsWith(QStringLiteral("...: 12 pictures")));
}

void ReportTest::summary_saysHowManyAndWhere_data()
{
    QTest::addColumn<int>("delivered");
    QTest::addColumn<int>("skipped");
    QTest::addColumn<int>("failed");
    QTest::addColumn<int>("sheets");
    QTest::addColumn<bool>("isSheetAlone");
    QTest::addColumn<bool>("wasInterrupted");
    QTest::addColumn<QString>("text");
    const auto row = [](int delivered, int skipped, int failed, int sheets, bool isSheetAlone,
                        bool wasInterrupted, const char* text) {
        QTest::newRow(text) << delivered << skipped << failed << sheets << isSheetAlone
                            << wasInterrupted << QString::fromLatin1(text);
    };
    row(47, 0, 3, 0, false, false, "47 pictures in out (3 errors)");
    row(1, 0, 1, 0, false, false, "1 picture in out (1 error)");
    row(0, 0, 0, 0, false, false, "0 pictures in out");
    row(5, 7, 2, 0, false, false, "5 pictures in out (7 skipped, 2 errors)");
    row(0, 0, 0, 2, true, false, "2 contact sheets in out");
    row(9, 0, 0, 1, false, false, "9 pictures and 1 contact sheet in out");
    row(9, 0, 0, 0, false, true, "interrupted: 9 pictures in out");
}

void ReportTest::summary_saysHowManyAndWhere()
{
    QFETCH(const int, delivered);
    QFETCH(const int, skipped);
    QFETCH(const int, failed);
    QFETCH(const int, sheets);
    QFETCH(const bool, isSheetAlone);
    QFETCH(const bool, wasInterrupted);
    QFETCH(const QString, text);
    const Tally tally{delivered, skipped, failed, sheets};
    QCOMPARE(stills::summaryText(tally, QStringLiteral("in out"), isSheetAlone, wasInterrupted),
             text);
}

void ReportTest::clockTimes_haveHours_whereThereAreAny()
{
    QCOMPARE(stills::clockTime(42999), QStringLiteral("0:42"));
    QCOMPARE(stills::clockTime(3723000), QStringLiteral("1:02:03"));
    QCOMPARE(stills::exactClockTime(42040), QStringLiteral("0:42.040"));
    QCOMPARE(stills::clockTime(-5), QStringLiteral("0:00"));
}

QTEST_APPLESS_MAIN(ReportTest)

#include "ReportTest.moc"
