#include "video/Thumbnails.h"

#include "tests/support/FrameNumber.h"
#include "tests/support/Patience.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"
#include "tests/video/MakeVideo.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

using testsupport::frameNumber;
using testsupport::patienceMs;
using testsupport::samplePath;

namespace {

const QString clip = QStringLiteral("h264_gop250.mp4"); // 520 frames, 25 a second

/// The number in a thumbnail, once it is available.
std::optional<int> numberAt(Thumbnails& thumbnails, qint64 ms)
{
    thumbnails.request(ms);
    const auto isMade = [&] { return !thumbnails.at(ms).isNull(); };
    return QTest::qWaitFor(isMade, patienceMs) ? frameNumber(thumbnails.at(ms)) : std::nullopt;
}

} // namespace

class ThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picture_isThatOfTheMoment_andSmall();
    void newestRequest_wins_andIsToldOnce();
    void pictures_areThoseOfTheVideo_thatIsSetNow();
    void cancelledRequest_givesNothing();
    void unreadableVideo_givesNothing_andTheNextOneDoes();
    void thumbnails_canEnd_whileAVideoIsRead();
};

void ThumbnailsTest::picture_isThatOfTheMoment_andSmall()
{
    Thumbnails thumbnails;
    thumbnails.setSource(samplePath(clip));
    QVERIFY(thumbnails.at(4000).isNull());
    QCOMPARE(numberAt(thumbnails, 4000), std::make_optional(100));
    QCOMPARE(numberAt(thumbnails, 3961), std::make_optional(100));
    QCOMPARE(numberAt(thumbnails, 0), std::make_optional(0));
    QCOMPARE(numberAt(thumbnails, 1000000), std::make_optional(519));
    const QSize size = thumbnails.at(4000).size();
    QVERIFY(size.width() <= Thumbnails::largest.width());
    QVERIFY(size.height() <= Thumbnails::largest.height());
    QCOMPARE(size.height() * 4, size.width() * 3);
}

void ThumbnailsTest::newestRequest_wins_andIsToldOnce()
{
    Thumbnails thumbnails;
    QSignalSpy made(&thumbnails, &Thumbnails::made);
    thumbnails.setSource(samplePath(clip));
    for (qint64 ms = 40; ms <= 8000; ms += 40) {
        thumbnails.request(ms);
    }
    const auto isMade = [&] { return !thumbnails.at(8000).isNull(); };
    QVERIFY(QTest::qWaitFor(isMade, patienceMs));
    // One may have been begun before the others were requested.
    QVERIFY(made.count() <= 2);
    QCOMPARE(made.last().first().toLongLong(), 8000);
    made.clear();
    thumbnails.request(8000);
    QCOMPARE(numberAt(thumbnails, 80), std::make_optional(2));
    QCOMPARE(made.count(), 1);
}

void ThumbnailsTest::pictures_areThoseOfTheVideo_thatIsSetNow()
{
    Thumbnails thumbnails;
    thumbnails.setSource(samplePath(clip));
    QCOMPARE(numberAt(thumbnails, 400), std::make_optional(10));
    thumbnails.request(4000);
    thumbnails.setSource(samplePath(QStringLiteral("h264_1fps.mp4")));
    QVERIFY(thumbnails.at(400).isNull());
    QCOMPARE(numberAt(thumbnails, 400), std::make_optional(1));
    QVERIFY(thumbnails.at(4000).isNull());
    thumbnails.setSource(QString());
    thumbnails.request(400);
    thumbnails.setSource(samplePath(clip));
    QCOMPARE(numberAt(thumbnails, 800), std::make_optional(20));
    QVERIFY(thumbnails.at(400).isNull());
}

void ThumbnailsTest::cancelledRequest_givesNothing()
{
    const testsupport::TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    Thumbnails thumbnails;
    const QSignalSpy made(&thumbnails, &Thumbnails::made);
    thumbnails.setSource(slow);
    thumbnails.request(0);
    thumbnails.cancel();
    thumbnails.setSource(samplePath(clip));
    QCOMPARE(numberAt(thumbnails, 40), std::make_optional(1));
    QCOMPARE(made.count(), 1);
}

void ThumbnailsTest::unreadableVideo_givesNothing_andTheNextOneDoes()
{
    const testsupport::TestDir dir;
    Thumbnails thumbnails;
    const QSignalSpy made(&thumbnails, &Thumbnails::made);
    thumbnails.setSource(dir.filePath(QStringLiteral("missing.mp4")));
    thumbnails.request(0);
    thumbnails.setSource(samplePath(QStringLiteral("sound_only.wav")));
    thumbnails.request(0);
    thumbnails.setSource(samplePath(clip));
    QCOMPARE(numberAt(thumbnails, 0), std::make_optional(0));
    QCOMPARE(made.count(), 1);
}

void ThumbnailsTest::thumbnails_canEnd_whileAVideoIsRead()
{
    const testsupport::TestDir dir;
    const QString slow = dir.filePath(QStringLiteral("slow.mkv"));
    testsupport::makeSlowVideo(slow);
    for (int i = 0; i < 3; ++i) {
        auto thumbnails = std::make_unique<Thumbnails>();
        thumbnails->setSource(slow);
        thumbnails->request(0);
        QTest::qWait(i * 20);
        thumbnails.reset();
    }
    QVERIFY(QFile::exists(slow));
}

QTEST_MAIN(ThumbnailsTest)
#include "ThumbnailsTest.moc"
