#include "qtav/src/PictureLimit.h"

#include "tests/qtav/Decoding.h"
#include "tests/qtav/Ivf.h"
#include "tests/support/GrowingVideo.h"
#include "tests/support/RunProgram.h"

#include <QtAV/FrameReader.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

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

/// Writes 40 pictures of that size.
void makeVideo(const QString& path, const QString& encoder, const QSize& size = {320, 240})
{
    const QString command =
        QStringLiteral("-v error -y -f lavfi -i testsrc2=size=%1x%2:rate=10:duration=4 "
                       "-pix_fmt yuv420p ")
            .arg(size.width())
            .arg(size.height()) +
        encoder;
    const auto made = testsupport::runProgram(QStringLiteral("ffmpeg"),
                                              command.split(QLatin1Char(' ')) + QStringList{path});
    if (!made.succeeded()) {
        qFatal("%s", made.standardError.constData());
    }
}

/// Appends the packets of one file to those of another, with later times.
void appendPackets(const QString& from, const QString& to)
{
    ivf::File whole = ivf::read(to);
    const auto first = quint64(whole.packets.size());
    for (const ivf::Packet& packet : ivf::read(from).packets) {
        whole.packets.append({first + packet.time, packet.data});
    }
    ivf::write(to, whole);
}

/// One packet of VP9 with several pictures: those, and an index of their sizes.
QByteArray superframe(const QList<QByteArray>& pictures)
{
    if (pictures.size() == 1) {
        return pictures.constFirst();
    }
    const QByteArray marker(1, char(0xc0 | 3 << 3 | (pictures.size() - 1)));
    QByteArray joined;
    QByteArray index = marker;
    for (const QByteArray& picture : pictures) {
        joined += picture;
        index += ivf::littleEndian(quint32(picture.size()));
    }
    return joined + index + marker;
}

/// Joins so many packets of an IVF file with VP9 to one each.
void joinPackets(const QString& path, int together)
{
    const ivf::File single = ivf::read(path);
    ivf::File joined{single.header, {}};
    QList<QByteArray> pictures;
    for (const ivf::Packet& packet : single.packets) {
        pictures.append(packet.data);
        if (pictures.size() == together) {
            joined.packets.append({packet.time, superframe(pictures)});
            pictures.clear();
        }
    }
    ivf::write(path, joined);
}

/// Changes the size that an MP4 or IVF file with AV1 declares outside of the stream.
void declareSize(const QString& path, const QSize& size)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite)) {
        qFatal("%s cannot be changed", qUtf8Printable(path));
    }
    const QByteArray content = file.readAll();
    QByteArray sides(4, Qt::Uninitialized);
    if (content.startsWith("DKIF")) {
        qToLittleEndian(quint16(size.width()), sides.data());
        qToLittleEndian(quint16(size.height()), sides.data() + 2);
        file.seek(12);
    } else {
        qToBigEndian(quint16(size.width()), sides.data());
        qToBigEndian(quint16(size.height()), sides.data() + 2);
        file.seek(content.indexOf("av01", content.indexOf("stsd")) + 28);
    }
    file.write(sides);
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
        makeVideo(path, QStringLiteral("-c:v libx264 -threads 1 "
                                       "-x264-params ref=16:bframes=0:keyint=1000:scenecut=0"));
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

    void reader_refusesVideos_whosePacketsGiveManyPictures_data()
    {
        QTest::addColumn<int>("together");
        QTest::addColumn<int>("threads");
        QTest::newRow("one a packet") << 1 << 1;
        QTest::newRow("one a packet, four threads") << 1 << 4;
        QTest::newRow("eight a packet") << 8 << 1;
        QTest::newRow("eight a packet, four threads") << 8 << 4;
    }
    void reader_refusesVideos_whosePacketsGiveManyPictures()
    {
        QFETCH(const int, together);
        QFETCH(const int, threads);
        const QString path = m_folder.filePath(QStringLiteral("packets.ivf"));
        makeVideo(path, QStringLiteral("-c:v libvpx-vp9 -deadline realtime -cpu-used 8 "
                                       "-auto-alt-ref 0 -lag-in-frames 0"));
        joinPackets(path, together);
        QtAV::FrameReader reader;
        reader.setThreads(threads);
        reader.setPictureMemory(PictureLimit::bytesOf(AV_PIX_FMT_YUV420P, {320, 240}, {320, 240}));
        QString error;
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        int good = 0;
        QtAV::FrameResult result = reader.next(never);
        for (; result.answer == FrameAnswer::Frame; result = reader.next(never)) {
            ++good;
        }
        if (together == 1) {
            QCOMPARE(good, 40);
            QVERIFY(result.answer == FrameAnswer::End);
        } else {
            QVERIFY(result.answer == FrameAnswer::Failed);
            QVERIFY2(result.error.contains(QStringLiteral("too many large pictures")),
                     qUtf8Printable(result.error));
            QVERIFY(!reader.canGoOn());
        }
    }

    void reader_refusesAv1Pictures_thatAreLargerThanDeclared_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("threads");
        QTest::addColumn<QSize>("size");
        // The library that decodes refuses those with more than a fifth of the memory in pixels.
        const QSize far(640, 480);
        const QSize little(500, 400);
        QTest::newRow("in the header") << QStringLiteral("larger.mp4") << 1 << far;
        QTest::newRow("in the packets") << QStringLiteral("larger.ivf") << 1 << far;
        QTest::newRow("four threads") << QStringLiteral("larger.ivf") << 4 << far;
        QTest::newRow("a little too large") << QStringLiteral("larger.mp4") << 1 << little;
    }
    void reader_refusesAv1Pictures_thatAreLargerThanDeclared()
    {
        QFETCH(const QString, file);
        QFETCH(const int, threads);
        QFETCH(const QSize, size);
        const QString path = m_folder.filePath(file);
        makeVideo(path, QStringLiteral("-c:v libsvtav1 -preset 12"), size);
        declareSize(path, {320, 240});
        QtAV::FrameReader reader;
        reader.setThreads(threads);
        reader.setPictureMemory(megabyte);
        QString error;
        if (reader.open(path, never, error)) {
            const QtAV::FrameResult result = firstFrame(reader);
            QVERIFY(result.answer == FrameAnswer::Failed);
            QVERIFY(!reader.canGoOn());
            error = result.error;
        }
        const QString text = QStringLiteral("one of %1 x %2").arg(size.width()).arg(size.height());
        QVERIFY2(error.contains(text), qUtf8Printable(error));
        reader.setPictureMemory(4 * megabyte);
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
    }

    void reader_refusesAv1Pictures_thatGrow_data()
    {
        QTest::addColumn<int>("threads");
        QTest::newRow("one thread") << 1;
        QTest::newRow("four threads") << 4;
    }
    void reader_refusesAv1Pictures_thatGrow()
    {
        QFETCH(const int, threads);
        const QString encoder = QStringLiteral("-c:v libsvtav1 -preset 12");
        const QString path = m_folder.filePath(QStringLiteral("growing.ivf"));
        const QString larger = m_folder.filePath(QStringLiteral("larger.ivf"));
        makeVideo(path, encoder);
        makeVideo(larger, encoder, {640, 480});
        appendPackets(larger, path);
        QtAV::FrameReader reader;
        reader.setThreads(threads);
        reader.setPictureMemory(megabyte);
        QString error;
        QVERIFY2(reader.open(path, never, error), qUtf8Printable(error));
        int good = 0;
        QtAV::FrameResult result = reader.next(never);
        for (; result.answer == FrameAnswer::Frame; result = reader.next(never)) {
            ++good;
        }
        QVERIFY2(good > 0 && good <= 40, qPrintable(QString::number(good)));
        QVERIFY(result.answer == FrameAnswer::Failed);
        QVERIFY2(result.error.contains(QStringLiteral("one of 640 x 480")),
                 qUtf8Printable(result.error));
        QVERIFY(!reader.canGoOn());
        QVERIFY(firstFrame(reader).answer == FrameAnswer::Frame);
    }

    void decoder_beginsNoPicture_behindTheDeadline_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* file : {"h264_bframes.mp4", "av1.mp4"}) {
            QTest::newRow(file) << QString::fromLatin1(file);
        }
    }
    void decoder_beginsNoPicture_behindTheDeadline()
    {
        QFETCH(const QString, file);
        const auto deadline = std::make_shared<QtAV::Deadline>();
        QtAV::FrameReader reader;
        reader.setThreads(1);
        reader.setDeadline(deadline);
        QString error;
        QVERIFY(reader.open(samplePath(file), never, error));
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
