#include "qtav/src/Container.h"

#include "tests/qtav/Decoding.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <atomic>
#include <chrono>
#include <thread>

using decoding::never;
using QtAV::Container;
using QtAV::PacketAnswer;
using QtAV::PacketPtr;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

/// After this time an interrupt takes effect.
constexpr std::chrono::milliseconds timeToTakeEffect{150};

std::unique_ptr<Container> opened(const QString& path)
{
    QString error;
    std::unique_ptr<Container> container = Container::open(path, never, error);
    if (!container) {
        qWarning("%s: %s", qUtf8Printable(path), qUtf8Printable(error));
    }
    return container;
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("Cannot write %s", qUtf8Printable(path));
    }
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("Cannot read %s", qUtf8Printable(path));
    }
    return file.readAll();
}

/// Reads packets up to the first answer of another kind, which is stored in `last`.
int readAll(Container& container, PacketAnswer& last)
{
    int packets = 0;
    for (PacketPtr packet;; ++packets) {
        last = container.read(packet);
        const bool mayGoOn = last == PacketAnswer::Failed && container.canGoOn();
        if (last != PacketAnswer::Packet && !mayGoOn) {
            return packets;
        }
    }
}

/// The beginning of a film.
QString makeCutOffFile(const TestDir& dir)
{
    const QString path = dir.filePath(QStringLiteral("endless.mkv"));
    const QByteArray whole = contentsOf(samplePath(QStringLiteral("h264_bframes.mkv")));
    write(path, whole.left(whole.size() / 2));
    return path;
}

/// Appends gigabytes of zeros to a file, in which FFmpeg searches for the next packet.
void growEndless(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.resize(qint64(3) << 30)) {
        qFatal("Cannot make a sparse file");
    }
}

/// Reads a file that grew endless, and cancels while FFmpeg searches for the next packet.
void readUntilCancelled(Container& container, PacketAnswer& last)
{
    std::atomic<bool> isCancelled{false};
    container.setInterrupt([&isCancelled] { return isCancelled.load(); });
    std::thread canceller([&isCancelled] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        isCancelled = true;
    });
    readAll(container, last);
    canceller.join();
    container.setInterrupt(never);
}

} // namespace

class ContainerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void open_refusesWhatNamesOtherFiles_data();
    void open_refusesWhatNamesOtherFiles();
    void open_takesANameForAName_notForAPattern();
    void open_refusesWhatIsNoRegularFile();
    void open_endsSoon_whenCancelled();
    void open_leavesOthersTheMemoryThatTheyMayTake();
    void read_tellsTheEnd_fromAFailure();
    void read_fails_whenTheFileIsCutToNothing_data();
    void read_fails_whenTheFileIsCutToNothing();
    void read_isCancelled_betweenPacketsThatComeAtOnce();
    void read_isCancelled_inAPacketThatTakesLong();
    void reopen_startsAgain();
    void reopen_keepsWhatThereWas_whenOtherStreamsAreThere();
    void reopen_keepsWhatThereWas_whenTheFileIsEmpty();
    void seek_makesReadingPossibleAgain_afterACancelledRead();
};

void ContainerTest::open_refusesWhatNamesOtherFiles_data()
{
    QTest::addColumn<QByteArray>("contents");
    const QByteArray target = samplePath(QStringLiteral("h264_bframes.mp4")).toUtf8();
    QTest::newRow("HLS") << QByteArray(
        "#EXTM3U\n#EXT-X-TARGETDURATION:3600\n#EXTINF:10,\nnext.ts\n");
    QTest::newRow("HLS with a list of lists")
        << QByteArray("#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=1\nother.m3u8\n");
    QTest::newRow("ffconcat") << "ffconcat version 1.0\nfile '" + target + "'\n";
    QTest::newRow("DASH") << QByteArray(
        "<?xml version=\"1.0\"?>\n<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" "
        "profiles=\"urn:mpeg:dash:profile:isoff-live:2011\" type=\"static\"></MPD>\n");
    QTest::newRow("SDP") << QByteArray("v=0\no=- 0 0 IN IP4 127.0.0.1\ns=x\nc=IN IP4 127.0.0.1\n"
                                       "t=0 0\nm=video 5004 RTP/AVP 96\na=rtpmap:96 H264/90000\n");
}

void ContainerTest::open_refusesWhatNamesOtherFiles()
{
    QFETCH(const QByteArray, contents);
    const TestDir dir;
    for (const char* name : {"list.mp4", "list.m3u8", "list.txt", "list"}) {
        const QString path = dir.filePath(QString::fromLatin1(name));
        write(path, contents);
        QElapsedTimer timer;
        timer.start();
        QString error;
        QVERIFY2(!Container::open(path, never, error), name);
        QVERIFY(!error.isEmpty());
        QVERIFY2(timer.elapsed() < 5000, name);
    }
}

void ContainerTest::open_takesANameForAName_notForAPattern()
{
    const TestDir dir;
    const QByteArray video = contentsOf(samplePath(QStringLiteral("h264_one_frame.mp4")));
    const QByteArray picture = contentsOf(samplePath(QStringLiteral("cover.jpg")));
    write(dir.filePath(QStringLiteral("picture 001.jpg")), picture);
    for (const char* name : {"%03d.mp4", "*.mp4", "[ab]{1,2}.mp4", "concat:a|b.mp4"}) {
        const QString path = dir.filePath(QString::fromLatin1(name));
        write(path, video);
        QVERIFY2(opened(path), name);
    }
    QString error;
    QVERIFY(!Container::open(dir.filePath(QStringLiteral("picture %03d.jpg")), never, error));
}

void ContainerTest::open_refusesWhatIsNoRegularFile()
{
    QString error;
    QVERIFY(!Container::open(QStringLiteral("/nowhere/at all.mp4"), never, error));
    QCOMPARE(error, QStringLiteral("The file does not exist."));
    for (const char* path : {"/dev/zero", "/tmp", "/dev/tty"}) {
        QVERIFY2(!Container::open(QString::fromLatin1(path), never, error), path);
        QCOMPARE(error, QStringLiteral("This is not a file."));
    }
}

void ContainerTest::open_endsSoon_whenCancelled()
{
    const TestDir dir;
    const QString path = makeCutOffFile(dir);
    growEndless(path);
    std::atomic<bool> isCancelled{true};
    QElapsedTimer timer;
    timer.start();
    QString error;
    const auto isCancelledNow = [&isCancelled] { return isCancelled.load(); };
    QVERIFY(!Container::open(path, isCancelledNow, error));
    QVERIFY(!error.isEmpty());
    QVERIFY(timer.elapsed() < 1000);
}

/// FFmpeg has one limit for the whole process.
void ContainerTest::open_leavesOthersTheMemoryThatTheyMayTake()
{
    constexpr qint64 gibibyte = qint64(1) << 30;
    const QString path = samplePath(QStringLiteral("h264_bframes.mp4"));
    QString error;
    const auto large = Container::open(path, never, error, QtAV::PictureLimit(2 * gibibyte));
    QVERIFY(large);
    QVERIFY(opened(path));
    void* const block = av_malloc(gibibyte);
    QVERIFY(block);
    av_free(block);
}

void ContainerTest::read_tellsTheEnd_fromAFailure()
{
    const auto container = opened(samplePath(QStringLiteral("h264_bframes.mp4")));
    QVERIFY(container);
    PacketAnswer last = PacketAnswer::Failed;
    QVERIFY(readAll(*container, last) > 10);
    QCOMPARE(last, PacketAnswer::End);
    PacketPtr packet;
    QCOMPARE(container->read(packet), PacketAnswer::End);
}

void ContainerTest::read_fails_whenTheFileIsCutToNothing_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"h264_gop250.mp4", "h264_bframes.mkv", "h264.ts", "mpeg4_bframes.avi",
                             "mpeg2.mpg", "raw.h264", "vp9.webm", "h264_bframes.flv"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

/// Packets that FFmpeg has read ahead may still come, but never the end.
void ContainerTest::read_fails_whenTheFileIsCutToNothing()
{
    QFETCH(const QString, file);
    const TestDir dir;
    const QString path = dir.filePath(file);
    QVERIFY(QFile::copy(samplePath(file), path));
    const auto container = opened(path);
    QVERIFY(container);
    PacketPtr packet;
    QCOMPARE(container->read(packet), PacketAnswer::Packet);
    QVERIFY(QFile::resize(path, 0));
    PacketAnswer last = PacketAnswer::Packet;
    readAll(*container, last);
    QCOMPARE(last, PacketAnswer::Failed);
    QVERIFY(!container->canGoOn());
    QVERIFY(!container->errorText().isEmpty());
    QVERIFY(container->isOverwritten());
}

/// Nothing was read, so reading can go on where it was.
void ContainerTest::read_isCancelled_betweenPacketsThatComeAtOnce()
{
    const auto container = opened(samplePath(QStringLiteral("h264_bframes.mkv")));
    QVERIFY(container);
    PacketAnswer last = PacketAnswer::Failed;
    const int all = readAll(*container, last);
    QVERIFY(container->seekNear(container->videoStreams().first(), 0));
    PacketPtr packet;
    QCOMPARE(container->read(packet), PacketAnswer::Packet);
    container->setInterrupt([] { return true; });
    std::this_thread::sleep_for(timeToTakeEffect);
    QCOMPARE(container->read(packet), PacketAnswer::Cancelled);
    QVERIFY(container->wasInterrupted());
    QVERIFY(container->canGoOn());
    container->setInterrupt(never);
    QCOMPARE(readAll(*container, last), all - 1);
    QCOMPARE(last, PacketAnswer::End);
}

void ContainerTest::read_isCancelled_inAPacketThatTakesLong()
{
    const TestDir dir;
    const QString path = makeCutOffFile(dir);
    const auto container = opened(path);
    QVERIFY(container);
    growEndless(path);
    QElapsedTimer timer;
    timer.start();
    PacketAnswer last = PacketAnswer::Packet;
    readUntilCancelled(*container, last);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(last, PacketAnswer::Cancelled);
    QVERIFY(!container->canGoOn());
    QVERIFY2(elapsed < 2000, qPrintable(QString::number(elapsed)));
}

void ContainerTest::reopen_startsAgain()
{
    const auto container = opened(samplePath(QStringLiteral("h264_bframes.mkv")));
    QVERIFY(container);
    PacketPtr first;
    QCOMPARE(container->read(first), PacketAnswer::Packet);
    PacketAnswer last = PacketAnswer::Failed;
    readAll(*container, last);
    QVERIFY(container->reopen());
    PacketPtr again;
    QCOMPARE(container->read(again), PacketAnswer::Packet);
    QCOMPARE(again->size, first->size);
}

void ContainerTest::reopen_keepsWhatThereWas_whenOtherStreamsAreThere()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("changing.mkv"));
    QVERIFY(QFile::copy(samplePath(QStringLiteral("two_videos.mkv")), path));
    const auto container = opened(path);
    QVERIFY(container);
    const QVector<int> streams = container->videoStreams();
    QCOMPARE(streams.size(), 2);
    write(path, contentsOf(samplePath(QStringLiteral("ffv1.mkv"))));
    QVERIFY(!container->reopen());
    QVERIFY(!container->errorText().isEmpty());
    QCOMPARE(container->videoStreams(), streams);
    QVERIFY(container->stream(streams.last()).codecpar);
}

void ContainerTest::reopen_keepsWhatThereWas_whenTheFileIsEmpty()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("changing.mp4"));
    QVERIFY(QFile::copy(samplePath(QStringLiteral("h264_bframes.mp4")), path));
    const auto container = opened(path);
    QVERIFY(container);
    QVERIFY(QFile::resize(path, 0));
    QVERIFY(!container->reopen());
    PacketPtr packet;
    for (int i = 0; i < 100; ++i) {
        static_cast<void>(container->read(packet));
    }
    QVERIFY(!container->seekNear(container->videoStreams().first(), 0) ||
            container->read(packet) != PacketAnswer::End);
}

void ContainerTest::seek_makesReadingPossibleAgain_afterACancelledRead()
{
    const TestDir dir;
    const QString path = makeCutOffFile(dir);
    const auto container = opened(path);
    QVERIFY(container);
    growEndless(path);
    PacketAnswer last = PacketAnswer::Packet;
    readUntilCancelled(*container, last);
    QCOMPARE(last, PacketAnswer::Cancelled);
    QVERIFY(!container->canGoOn());
    QVERIFY(container->seekNear(container->videoStreams().first(), 0));
    PacketPtr packet;
    QCOMPARE(container->read(packet), PacketAnswer::Packet);
}

QTEST_GUILESS_MAIN(ContainerTest)
#include "ContainerTest.moc"
