#include "qtav/src/HeldPictures.h"

#include <QTest>

#include <optional>

using QtAV::FramePtr;
using QtAV::HeldPictures;
using QtAV::makeFrame;

class HeldPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_counts_untilItsLastReferenceGoes()
    {
        const HeldPictures held;
        FramePtr first = makeFrame();
        QVERIFY(held.add(*first, 1000));
        FramePtr second = makeFrame();
        QVERIFY(held.add(*second, 500));
        QCOMPARE(held.bytes(), qint64(1500));
        FramePtr reference = makeFrame();
        QVERIFY(av_frame_copy_props(reference.get(), first.get()) >= 0);
        first.reset();
        QCOMPARE(held.bytes(), qint64(1500));
        reference.reset();
        QCOMPARE(held.bytes(), qint64(500));
        second.reset();
        QCOMPARE(held.bytes(), qint64(0));
    }

    void pictureThatIsGivenAway_countsNoLonger_unlessAReferenceIsKept()
    {
        const HeldPictures held;
        FramePtr kept = makeFrame();
        QVERIFY(held.add(*kept, 1000));
        FramePtr given = makeFrame();
        QVERIFY(av_frame_copy_props(given.get(), kept.get()) >= 0);
        HeldPictures::giveAway(*given);
        QCOMPARE(held.bytes(), qint64(1000));
        HeldPictures::giveAway(*kept);
        QCOMPARE(held.bytes(), qint64(0));
    }

    void picture_mayOutliveTheCount()
    {
        std::optional<HeldPictures> held(std::in_place);
        FramePtr frame = makeFrame();
        QVERIFY(held->add(*frame, 1000));
        held.reset();
        frame.reset();
    }
};

QTEST_APPLESS_MAIN(HeldPicturesTest)

#include "HeldPicturesTest.moc"
