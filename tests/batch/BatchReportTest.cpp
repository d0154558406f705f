#include "batch/BatchReport.h"

#include "batch/BatchWorkerConfig.h"

#include <QTest>

class BatchReportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outcome_tellsImagesAndFailures();
    void failures_thatDifferInNumbersAlone_shareALine();
    void failures_ofOtherVideosAndCauses_haveLinesOfTheirOwn();
    void failedJobs_areListedOnce_inOrder();
};

void BatchReportTest::outcome_tellsImagesAndFailures()
{
    BatchReport report;
    QCOMPARE(report.outcome(38, false), QStringLiteral("Finished: 38 images"));
    QCOMPARE(report.outcome(1, false), QStringLiteral("Finished: 1 image"));
    QCOMPARE(report.outcome(12, true), QStringLiteral("Cancelled after 12 images"));
    BatchWorkerConfig job;
    for (int i = 0; i < 2; ++i) {
        static_cast<void>(report.addFailure(&job, QStringLiteral("broken")));
    }
    QCOMPARE(report.outcome(38, false), QStringLiteral("Finished: 38 images, 2 failed"));
    QCOMPARE(report.outcome(0, true), QStringLiteral("Cancelled after 0 images, 2 failed"));
}

void BatchReportTest::failures_thatDifferInNumbersAlone_shareALine()
{
    BatchReport report;
    BatchWorkerConfig job;
    job.setSource(QStringLiteral("/v/a.mp4"));
    const BatchReport::Line first =
        report.addFailure(&job, QStringLiteral("Could not save /o/a-00001.jpeg"));
    QVERIFY(first.isNew);
    QCOMPARE(first.cause, 0);
    QCOMPARE(first.text, QStringLiteral("/v/a.mp4: Could not save /o/a-00001.jpeg"));
    const BatchReport::Line second =
        report.addFailure(&job, QStringLiteral("Could not save /o/a-00012.jpeg"));
    QVERIFY(!second.isNew);
    QCOMPARE(second.cause, 0);
    QCOMPARE(second.text, first.text + QStringLiteral(" (and 1 more of this kind)"));
    QCOMPARE(report.causesOf(&job), QStringList{second.text});
    QCOMPARE(report.failures(), 2);
}

void BatchReportTest::failures_ofOtherVideosAndCauses_haveLinesOfTheirOwn()
{
    BatchReport report;
    BatchWorkerConfig a;
    BatchWorkerConfig b;
    const QString message = QStringLiteral("Could not open file");
    QCOMPARE(report.addFailure(&a, message).cause, 0);
    QCOMPARE(report.addFailure(&b, message).cause, 1);
    QCOMPARE(report.addFailure(&a, QStringLiteral("something else\n(in two lines)")).cause, 2);
    QCOMPARE(report.causesOf(&a).size(), 2);
    QVERIFY(!report.causesOf(&a).last().contains(QLatin1Char('\n')));
    QCOMPARE(report.addFailure(&b, message).cause, 1);
}

void BatchReportTest::failedJobs_areListedOnce_inOrder()
{
    BatchReport report;
    BatchWorkerConfig a;
    BatchWorkerConfig b;
    for (BatchWorkerConfig* const job : {&b, &a, &b}) {
        static_cast<void>(report.addFailure(job, QStringLiteral("broken")));
    }
    QCOMPARE(report.failedJobs(), (QList<BatchWorkerConfig*>{&b, &a}));
}

QTEST_GUILESS_MAIN(BatchReportTest)
#include "BatchReportTest.moc"
