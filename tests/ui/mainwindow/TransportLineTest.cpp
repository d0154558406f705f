#include "ui/mainwindow/TransportLine.h"

#include <QPushButton>
#include <QTest>

class TransportLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_standInOneRow_whereThereIsRoom();
    void parts_standInTwoRows_whereThereIsLess();
    void order_isThatOfReading_inBothRows();

private:
    struct Line
    {
        Line()
        {
            time.setFixedSize(100, 20);
            buttons.setFixedSize(200, 20);
            take.setFixedSize(120, 20);
            line.setParts(time, buttons, facts, take);
            line.show();
        }

        TransportLine line;
        QWidget time{&line};
        QWidget buttons{&line};
        QWidget facts{&line};
        QPushButton take{&line};
    };
};

void TransportLineTest::parts_standInOneRow_whereThereIsRoom()
{
    Line parts;
    parts.line.resize(1000, 60);
    QVERIFY(parts.line.isInOneRow());
    QCoreApplication::processEvents();
    QCOMPARE(parts.time.geometry().center().y(), parts.take.geometry().center().y());
    QVERIFY(parts.time.geometry().right() < parts.buttons.geometry().left());
    QVERIFY(parts.buttons.geometry().right() < parts.facts.geometry().left());
    QVERIFY(parts.facts.geometry().right() < parts.take.geometry().left());
}

void TransportLineTest::parts_standInTwoRows_whereThereIsLess()
{
    Line parts;
    parts.line.resize(1000, 60);
    parts.line.resize(parts.line.minimumSizeHint().width(), 60);
    QVERIFY(!parts.line.isInOneRow());
    QVERIFY(parts.line.minimumSizeHint().width() < 500);
    parts.line.resize(1000, 60);
    QVERIFY(parts.line.isInOneRow());
}

void TransportLineTest::order_isThatOfReading_inBothRows()
{
    Line parts;
    parts.line.resize(parts.line.minimumSizeHint().width(), 60);
    QCoreApplication::processEvents();
    QVERIFY(parts.time.geometry().bottom() < parts.buttons.geometry().top());
    QVERIFY(parts.buttons.geometry().right() < parts.take.geometry().left());
}

QTEST_MAIN(TransportLineTest)
#include "TransportLineTest.moc"
