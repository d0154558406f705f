#include "ui/mainwindow/CaptureTickets.h"

#include <QTest>

class CaptureTicketsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answer_matters_whenItWasAskedFor();
    void answer_matters_whenNobodyAsked();
    void answer_doesNotMatter_whenItsQuestionWasForgotten();
    void answers_arePending_untilTheyArrive_orAreForgotten();
};

void CaptureTicketsTest::answer_matters_whenItWasAskedFor()
{
    CaptureTickets tickets;
    tickets.ask();
    tickets.ask();
    QVERIFY(tickets.answer());
    QVERIFY(tickets.answer());
}

void CaptureTicketsTest::answer_matters_whenNobodyAsked()
{
    CaptureTickets tickets;
    QVERIFY(tickets.answer());
    tickets.ask();
    tickets.forgetAll();
    QVERIFY(!tickets.answer());
}

void CaptureTicketsTest::answer_doesNotMatter_whenItsQuestionWasForgotten()
{
    CaptureTickets tickets;
    tickets.ask();
    tickets.ask();
    QVERIFY(tickets.answer());
    tickets.forgetAll();
    tickets.ask();
    QVERIFY(!tickets.answer());
    QVERIFY(tickets.answer());
}

void CaptureTicketsTest::answers_arePending_untilTheyArrive_orAreForgotten()
{
    CaptureTickets tickets;
    QVERIFY(!tickets.arePending());
    tickets.ask();
    tickets.ask();
    QVERIFY(tickets.answer());
    QVERIFY(tickets.arePending());
    tickets.forgetAll();
    QVERIFY(!tickets.arePending());
    tickets.ask();
    QVERIFY(!tickets.answer());
    QVERIFY(tickets.arePending());
    QVERIFY(tickets.answer());
    QVERIFY(!tickets.arePending());
}

QTEST_APPLESS_MAIN(CaptureTicketsTest)
#include "CaptureTicketsTest.moc"
