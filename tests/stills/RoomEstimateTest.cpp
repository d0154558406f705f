#include "stills/RoomEstimate.h"

#include <QTest>

using stills::PicturesLeft;
using stills::RoomEstimate;

class RoomEstimateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missing_isThatOfThePicture_whenItIsTheLast()
    {
        RoomEstimate estimate;
        estimate.addWritten(5000);
        QCOMPARE(estimate.missingFor(1, 1000, 400, 0), qint64(400));
    }

    void missing_countsTheRest_asLargeAsThePicturesSoFar()
    {
        RoomEstimate estimate;
        estimate.addWritten(1000);
        estimate.addWritten(3000);
        // Three pictures of 2000 bytes on average, and ten behind the one that has no room.
        QCOMPARE(estimate.missingFor(11, 2000, 400, 0), qint64(400 + 10 * 2000));
    }

    void missing_isEstimated_whenNoPictureWasWritten()
    {
        QCOMPARE(RoomEstimate().missingFor(3, 700, 700, 0), qint64(3 * 700));
    }

    void missing_leavesOutWhatIsOnTheDisk_butNotThePictureItself()
    {
        QCOMPARE(RoomEstimate().missingFor(3, 700, 700, 700), qint64(2 * 700));
        QCOMPARE(RoomEstimate().missingFor(2, 700, 700, 5000), qint64(700));
    }

    void text_saysHowManyPictures_andOfWhat()
    {
        QCOMPARE(RoomEstimate::text(120000000, {38, false}),
                 QStringLiteral("and about 120.0 MB for the 38 pictures left"));
        QCOMPARE(RoomEstimate::text(2000, {2, true}),
                 QStringLiteral("and about 2.0 kB for the 2 pictures left of this video"));
    }
};

QTEST_GUILESS_MAIN(RoomEstimateTest)

#include "RoomEstimateTest.moc"
