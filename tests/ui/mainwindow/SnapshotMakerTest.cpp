#include "ui/mainwindow/SnapshotMaker.h"

#include "tests/support/Patience.h"

#include <QSignalSpy>
#include <QTest>

using testsupport::patienceMs;

class SnapshotMakerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallPicture_isMadeAtOnce();
    void largePicture_isMadeInTheBackground();
    void largeResult_isMadeInTheBackground();
    void captures_areAnsweredInTheirOrder();
    void onlyTheNewestRemaking_isAnswered();
    void finishing_answersAtOnce_andOnlyOnce();
    void forgottenRemaking_isNotAnswered();
};

namespace {

CapturedPicture pictureOf(const QSize& size, const QColor& colour = Qt::red)
{
    CapturedPicture picture;
    picture.image = QImage(size, QImage::Format_RGB888);
    picture.image.fill(colour);
    return picture;
}

const QSize smallSize(320, 240);
const QSize largeSize(3840, 2160);

MadeSnapshot madeIn(const QList<QVariant>& arguments)
{
    return arguments.first().value<MadeSnapshot>();
}

struct Maker
{
    SnapshotMaker maker;
    QSignalSpy captured{&maker, &SnapshotMaker::captured};
    QSignalSpy remade{&maker, &SnapshotMaker::remade};
};

} // namespace

void SnapshotMakerTest::smallPicture_isMadeAtOnce()
{
    Maker made;
    made.maker.capture(pictureOf(smallSize), {});
    QCOMPARE(made.captured.size(), 1);
    QVERIFY(!madeIn(made.captured.first()).rendering.image.isNull());
    made.maker.remake(pictureOf(smallSize), {});
    QCOMPARE(made.remade.size(), 1);
}

void SnapshotMakerTest::largePicture_isMadeInTheBackground()
{
    Maker made;
    made.maker.capture(pictureOf(largeSize), {});
    QVERIFY(made.captured.isEmpty());
    QVERIFY(made.captured.wait(patienceMs));
    const MadeSnapshot snapshot = madeIn(made.captured.first());
    QCOMPARE(snapshot.picture.image.size(), largeSize);
    QVERIFY(!snapshot.rendering.image.isNull());
    QCOMPARE(snapshot.rendering.image.pixelColor(10, 10), QColor(Qt::red));
}

void SnapshotMakerTest::largeResult_isMadeInTheBackground()
{
    ImageRecipe enlarging;
    enlarging.keepsSize = false;
    enlarging.bounds = largeSize;
    Maker made;
    made.maker.capture(pictureOf(smallSize), enlarging);
    QVERIFY(made.captured.isEmpty());
    QVERIFY(made.captured.wait(patienceMs));
    QCOMPARE(madeIn(made.captured.first()).rendering.image.size(), largeSize);
}

void SnapshotMakerTest::captures_areAnsweredInTheirOrder()
{
    Maker made;
    made.maker.capture(pictureOf(largeSize), {});
    made.maker.capture(pictureOf(smallSize), {});
    QVERIFY(made.captured.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(made.captured.size(), 2, patienceMs);
    QCOMPARE(madeIn(made.captured.at(0)).picture.image.size(), largeSize);
    QCOMPARE(madeIn(made.captured.at(1)).picture.image.size(), smallSize);
}

void SnapshotMakerTest::onlyTheNewestRemaking_isAnswered()
{
    Maker made;
    made.maker.remake(pictureOf(largeSize, Qt::red), {});
    made.maker.remake(pictureOf(largeSize, Qt::green), {});
    made.maker.remake(pictureOf(largeSize, Qt::blue), {});
    QVERIFY(made.remade.wait(patienceMs));
    QTest::qWait(100);
    QCOMPARE(made.remade.size(), 1);
    const QImage image = madeIn(made.remade.first()).rendering.image;
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::blue));
}

/// Saving gets the newest request.
void SnapshotMakerTest::finishing_answersAtOnce_andOnlyOnce()
{
    Maker made;
    made.maker.remake(pictureOf(largeSize), {});
    made.maker.finishRemaking();
    QCOMPARE(made.remade.size(), 1);
    made.maker.finishRemaking();
    QTest::qWait(300);
    QCOMPARE(made.remade.size(), 1);
}

void SnapshotMakerTest::forgottenRemaking_isNotAnswered()
{
    Maker made;
    made.maker.remake(pictureOf(largeSize), {});
    made.maker.forgetRemaking();
    QTest::qWait(300);
    QVERIFY(made.remade.isEmpty());
}

QTEST_MAIN(SnapshotMakerTest)
#include "SnapshotMakerTest.moc"
