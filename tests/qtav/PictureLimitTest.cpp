#include "qtav/src/PictureLimit.h"

#include "tests/qtav/Decoding.h"
#include "tests/support/GrowingVideo.h"
#include "tests/support/RunProgram.h"

#include <QtAV/FrameReader.h>

#include <QTemporaryDir>
#include <QTest>

using decoding::never;
using QtAV::FrameAnswer;
using QtAV::PictureLimit;
using testsupport::samplePath;
using testsupport::writeGrowingVideo;

namespace {

constexpr qint64 megabyte = 1 << 20;

/// What a search for the first frame gives.
QtAV::FrameResult firstFrame(QtAV::FrameReader& reader)
{
    QtAV::FrameReader::Search search;
    search.isReached = [](const QtAV::VideoFrame&) { return true; };
    return reader.find(search, never);
}

} // namespace

class PictureLimitTest : public QObject
{
    Q_OBJECT

private:
    const QTemporaryDir m_folder;

private Q_SLOTS:
    void bytes_areThoseOfThePicture_andOfTheImage()
    {
        const QSize stored(100, 10);
        QCOMPARE(PictureLimit::bytesOf(AV_PIX_FMT_YUV420P, stored, stored), qint64(1500 + 4000));
        QCOMPARE(PictureLimit::bytesOf(AV_PIX_FMT_YUV444P10LE, stored, stored),
                 qint64(6000 + 4000));
        QCOMPARE(PictureLimit::bytesOf(AV_PIX_FMT_NONE, stored, {200, 10}), qint64(1500 + 8000));
        // The product of the sides never overflows.
        QCOMPARE(PictureLimit::bytesOf(AV_PIX_FMT_YUV420P, {65535, 65535}, {1 << 20, 65535}),
                 qint64(65535) * 65535 * 12 / 8 + (qint64(65535) << 20) * 4);
    }

    void threads_areFewer_whereEachHoldsALargePicture()
    {
        const PictureLimit limit(10 * megabyte);
        QCOMPARE(limit.threadsFor(AV_PIX_FMT_GRAY8, {1024, 1024}, 4), 4);
        QCOMPARE(limit.threadsFor(AV_PIX_FMT_GRAY8, {4096, 1024}, 4), 2);
        QCOMPARE(limit.threadsFor(AV_PIX_FMT_GRAY8, {40960, 1024}, 4), 1);
        QCOMPARE(limit.threadsFor(AV_PIX_FMT_GRAY8, {16, 16}, 0), 0);
    }

    void reader_refusesVideos_thatDeclareTooLargePictures()
    {
        const QString path = samplePath(QStringLiteral("h264_2160p.mp4"));
        QtAV::FrameReader reader;
        QString error;
        reader.setPictureMemory(40 * megabyte);
        QVERIFY(!reader.open(path, never, error));
        QVERIFY2(error.contains(QStringLiteral("3840 x 2160")), qUtf8Printable(error));
        reader.setPictureMemory(50 * megabyte);
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
    }

    void reader_refusesPictures_thatAreLargerThanDeclared_data()
    {
        QTest::addColumn<int>("threads");
        QTest::newRow("one thread") << 1;
        QTest::newRow("four threads") << 4;
    }
    void reader_refusesPictures_thatAreLargerThanDeclared()
    {
        QFETCH(const int, threads);
        const QString path = m_folder.filePath(QStringLiteral("video.avi"));
        QVERIFY(writeGrowingVideo(10, path));
        QtAV::FrameReader reader;
        reader.setThreads(threads);
        reader.setPictureMemory(2 * megabyte);
        QString error;
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        int good = 0;
        QtAV::FrameResult result = reader.next(never);
        for (; result.answer == FrameAnswer::Frame; result = reader.next(never)) {
            ++good;
        }
        QVERIFY2(good <= 10 && good >= 10 - threads, qPrintable(QString::number(good)));
        QVERIFY(result.answer == FrameAnswer::Failed);
        QVERIFY2(result.error.contains(QStringLiteral("too large")), qUtf8Printable(result.error));
        QVERIFY(!reader.canGoOn());
        // A search there reports the same, and an earlier one succeeds.
        QtAV::FrameReader::Search search;
        search.isReached = [](const QtAV::VideoFrame&) { return false; };
        search.ms = reader.demuxer().duration();
        result = reader.find(search, never);
        QVERIFY(result.answer == FrameAnswer::Failed);
        QVERIFY2(result.error.contains(QStringLiteral("too large")), qUtf8Printable(result.error));
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
    }

    void reader_refusesVideos_whoseDecoderKeepsTooMany_data()
    {
        QTest::addColumn<int>("pictures");
        QTest::addColumn<bool>("isAllowed");
        // Of 320 x 240: each takes 115,200 bytes decoded and 307,200 as an image.
        QTest::newRow("memory for one") << 1 << false;
        QTest::newRow("memory for four") << 4 << true;
    }
    void reader_refusesVideos_whoseDecoderKeepsTooMany()
    {
        QFETCH(const int, pictures);
        QFETCH(const bool, isAllowed);
        const QString path = m_folder.filePath(QStringLiteral("references.mp4"));
        const QString command =
            QStringLiteral("-v error -y -f lavfi -i testsrc2=size=320x240:rate=10:duration=4 "
                           "-c:v libx264 -pix_fmt yuv420p -threads 1 "
                           "-x264-params ref=16:bframes=0:keyint=1000:scenecut=0");
        const auto made = testsupport::runProgram(
            QStringLiteral("ffmpeg"), command.split(QLatin1Char(' ')) + QStringList{path});
        QVERIFY2(made.succeeded(), made.standardError.constData());
        QtAV::FrameReader reader;
        reader.setThreads(1);
        reader.setPictureMemory(pictures *
                                PictureLimit::bytesOf(AV_PIX_FMT_YUV420P, {320, 240}, {320, 240}));
        QString error;
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        int good = 0;
        QtAV::FrameResult result = reader.next(never);
        for (; result.answer == FrameAnswer::Frame; result = reader.next(never)) {
            ++good;
        }
        if (isAllowed) {
            QCOMPARE(good, 40);
            QVERIFY(result.answer == FrameAnswer::End);
        } else {
            // Twice the memory for one holds seven, and the thread works on an eighth.
            QVERIFY2(good >= 6 && good <= 8, qPrintable(QString::number(good)));
            QVERIFY(result.answer == FrameAnswer::Failed);
            QVERIFY2(result.error.contains(QStringLiteral("too many large pictures")),
                     qUtf8Printable(result.error));
        }
    }

    void decoder_beginsNoPicture_behindTheDeadline()
    {
        const auto deadline = std::make_shared<QtAV::Deadline>();
        QtAV::FrameReader reader;
        reader.setThreads(1);
        reader.setDeadline(deadline);
        QString error;
        QVERIFY(reader.open(samplePath(QStringLiteral("h264_bframes.mp4")), never, error));
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
        deadline->start(std::chrono::milliseconds(1));
        QTest::qWait(5);
        QVERIFY(deadline->hasPassed());
        QVERIFY(reader.next(never).answer != FrameAnswer::Frame);
        deadline->start(std::chrono::milliseconds(0));
        QVERIFY(!deadline->hasPassed());
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
    }
};

QTEST_GUILESS_MAIN(PictureLimitTest)

#include "PictureLimitTest.moc"
