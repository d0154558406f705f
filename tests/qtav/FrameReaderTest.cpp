#include <QtAV/FrameReader.h>

#include "tests/qtav/Decoding.h"
#include "tests/qtav/Ivf.h"
#include "tests/support/RunProgram.h"
#include "tests/support/Sanitizers.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

using namespace decoding;
using QtAV::FrameAnswer;
using QtAV::FrameReader;
using QtAV::FrameResult;
using QtAV::VideoFrame;
using testsupport::Sample;
using testsupport::samplePath;
using testsupport::TestDir;
using testsupport::Trait;

namespace {

bool always()
{
    return true;
}

FrameReader::Search atOrAfter(qint64 ms)
{
    FrameReader::Search search;
    search.ms = ms;
    search.isReached = [ms](const VideoFrame& frame) {
        return static_cast<qint64>(frame.timestamp() * 1000.0) >= ms;
    };
    return search;
}

QString openError(FrameReader& reader, const QString& path)
{
    QString error;
    return reader.open(path, never, error) ? QString() : error;
}

} // namespace

class FrameReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void next_givesEveryFrameInOrder_data();
    void next_givesEveryFrameInOrder();
    void next_knowsTheFrameBefore();
    void next_goesOnWhereItWasCancelled();
    void find_givesTheFirstFrameAtOrAfter_data();
    void find_givesTheFirstFrameAtOrAfter();
    void find_givesTheSameFrame_whenFramesBeforeMayBeSkipped_data();
    void find_givesTheSameFrame_whenFramesBeforeMayBeSkipped();
    void find_givesTheLastFrame_behindTheEnd();
    void find_isCancelled_beforeItBegins();
    void longestGroup_isKnown_fromThePacketsRead();
    void readAhead_keepsLittle_ofManySmallPackets();
    void open_fails_withAText();
    void frames_fail_whenTheFileIsOverwritten_data();
    void frames_fail_whenTheFileIsOverwritten();
    void closedReader_opensAnotherFile();
};

void FrameReaderTest::next_givesEveryFrameInOrder_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("threads");
    const QList<int> threadCounts = testsupport::isSanitized ? QList<int>{4} : QList<int>{1, 4};
    for (const Sample& sample : testsupport::allVideoSamples()) {
        for (const int threads : threadCounts) {
            if (!sample.has(Trait::Large)) {
                QTest::addRow("%s, %d threads", qPrintable(sample.file), threads)
                    << sample.file << threads;
            }
        }
    }
}

void FrameReaderTest::next_givesEveryFrameInOrder()
{
    QFETCH(const QString, file);
    QFETCH(const int, threads);
    FrameReader reader;
    reader.setThreads(threads);
    QCOMPARE(openError(reader, samplePath(file)), QString());
    QList<Shown> got;
    FrameResult result;
    while ((result = reader.next(never)).answer == FrameAnswer::Frame) {
        got.append(shown(result.frame));
    }
    QCOMPARE(result.answer, FrameAnswer::End);
    QCOMPARE(got, expectedFrom(testsupport::sampleNamed(file), 0));
}

void FrameReaderTest::next_knowsTheFrameBefore()
{
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_bframes.mp4"))), QString());
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QVERIFY(reader.isAtFirstOfVideo());
    QVERIFY(!reader.predecessor());
    const double first = *reader.last();
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QVERIFY(!reader.isAtFirstOfVideo());
    QCOMPARE(reader.predecessor(), std::optional(first));
    reader.seek(2000);
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QVERIFY(!reader.predecessor());
    QVERIFY(reader.isAtLanding());
}

void FrameReaderTest::next_goesOnWhereItWasCancelled()
{
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_gop250.mp4"))), QString());
    const Sample& sample = testsupport::sampleNamed(QStringLiteral("h264_gop250.mp4"));
    QList<Shown> got;
    int questions = 0;
    const auto everyThird = [&questions] { return ++questions % 3 == 0; };
    for (;;) {
        const FrameResult result = reader.next(everyThird);
        if (result.answer == FrameAnswer::Frame) {
            got.append(shown(result.frame));
        } else if (result.answer != FrameAnswer::Cancelled) {
            QCOMPARE(result.answer, FrameAnswer::End);
            break;
        }
    }
    QCOMPARE(got, expectedFrom(sample, 0));
}

void FrameReaderTest::find_givesTheFirstFrameAtOrAfter_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        if (!sample.has(Trait::Large)) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
        }
    }
}

void FrameReaderTest::find_givesTheFirstFrameAtOrAfter()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(file)), QString());
    const int stride = std::max(1, sample.frames / 10);
    for (int n = sample.frames - 1; n >= 0; n -= stride) {
        const FrameResult found = reader.find(atOrAfter(frameTimeMs(sample, n)), never);
        QCOMPARE(found.answer, FrameAnswer::Frame);
        QCOMPARE(shown(found.frame), expectedFrom(sample, n).first());
    }
}

void FrameReaderTest::find_givesTheSameFrame_whenFramesBeforeMayBeSkipped_data()
{
    find_givesTheFirstFrameAtOrAfter_data();
}

void FrameReaderTest::find_givesTheSameFrame_whenFramesBeforeMayBeSkipped()
{
    QFETCH(const QString, file);
    const Sample& sample = testsupport::sampleNamed(file);
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(file)), QString());
    const int stride = std::max(1, sample.frames / 5);
    for (int n = sample.frames - 1; n >= 0; n -= stride) {
        FrameReader::Search search = atOrAfter(frameTimeMs(sample, n));
        search.completeFrom = search.ms;
        const FrameResult found = reader.find(search, never);
        QCOMPARE(found.answer, FrameAnswer::Frame);
        QCOMPARE(shown(found.frame), expectedFrom(sample, n).first());
    }
}

void FrameReaderTest::find_givesTheLastFrame_behindTheEnd()
{
    for (const char* file : {"h264_bframes.mp4", "mpeg2.ts", "vp9.webm", "mpeg4_bframes.avi"}) {
        const Sample& sample = testsupport::sampleNamed(QString::fromLatin1(file));
        FrameReader reader;
        QCOMPARE(openError(reader, samplePath(sample.file)), QString());
        FrameReader::Search search = atOrAfter(10000000);
        search.completeFrom = search.ms;
        const FrameResult found = reader.find(search, never);
        QCOMPARE(found.answer, FrameAnswer::Frame);
        QCOMPARE(shown(found.frame), expectedFrom(sample, sample.frames - 1).first());
    }
}

void FrameReaderTest::find_isCancelled_beforeItBegins()
{
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_bframes.mp4"))), QString());
    QCOMPARE(reader.find(atOrAfter(1000), always).answer, FrameAnswer::Cancelled);
    QCOMPARE(reader.find(atOrAfter(1000), never).answer, FrameAnswer::Frame);
}

void FrameReaderTest::longestGroup_isKnown_fromThePacketsRead()
{
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_2fps.ts"))), QString());
    QVERIFY(!reader.longestGroupMs());
    QCOMPARE(reader.readAhead(5000, never), FrameAnswer::Frame);
    // Its first call only lands.
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QCOMPARE(reader.readAhead(5000, never), FrameAnswer::Frame);
    QCOMPARE(reader.longestGroupMs(), std::optional<qint64>(1000));

    reader.seek(40000);
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QCOMPARE(reader.readAhead(45000, never), FrameAnswer::Frame);
    QVERIFY(*reader.longestGroupMs() >= 15000 && *reader.longestGroupMs() < 20000);
    QCOMPARE(reader.readAhead(55000, never), FrameAnswer::Frame);
    QCOMPARE(reader.longestGroupMs(), std::optional<qint64>(20000));

    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_2fps.ts"))), QString());
    QVERIFY(!reader.longestGroupMs());
}

/// Each costs more than its data.
void FrameReaderTest::readAhead_keepsLittle_ofManySmallPackets()
{
    constexpr int packets = 200000;
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("packets.ivf"));
    const QString command = QStringLiteral("-v error -f lavfi -i color=size=16x16:rate=25 "
                                           "-frames:v 2 -c:v libvpx");
    const auto made = testsupport::runProgram(QStringLiteral("ffmpeg"),
                                              command.split(QLatin1Char(' ')) + QStringList{path});
    QVERIFY2(made.succeeded(), made.standardError.constData());
    ivf::File file = ivf::read(path);
    QCOMPARE(file.packets.size(), 2);
    const QByteArray small = file.packets.constLast().data;
    QVERIFY(small.size() < 100);
    while (file.packets.size() < packets) {
        file.packets.append({quint64(file.packets.size()), small});
    }
    ivf::write(path, file);
    FrameReader reader;
    QCOMPARE(openError(reader, path), QString());
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    int asked = 0;
    const auto counting = [&asked] {
        ++asked;
        return false;
    };
    QCOMPARE(reader.readAhead(reader.demuxer().duration(), counting), FrameAnswer::Frame);
    QVERIFY2(asked > 1000 && asked < packets * 3 / 4, QByteArray::number(asked).constData());
}

void FrameReaderTest::open_fails_withAText()
{
    FrameReader reader;
    for (const char* file : {"sound_only.mp4", "empty.mp4", "random_bytes.mp4", "missing.mp4"}) {
        QVERIFY2(!openError(reader, samplePath(QString::fromLatin1(file))).isEmpty(), file);
        QVERIFY(!reader.isOpen());
    }
    QString error;
    QVERIFY(!reader.open(samplePath(QStringLiteral("h264_bframes.mp4")), always, error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!reader.isOpen());
}

void FrameReaderTest::frames_fail_whenTheFileIsOverwritten_data()
{
    QTest::addColumn<QString>("file");
    for (const Sample& sample : testsupport::videoSamplesToRepeat()) {
        if (!sample.has(Trait::Large) && QFile(samplePath(sample.file)).size() > 0) {
            QTest::newRow(qPrintable(sample.file)) << sample.file;
        }
    }
}

/// A download or a recording restarts under the same name.
void FrameReaderTest::frames_fail_whenTheFileIsOverwritten()
{
    QFETCH(const QString, file);
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("video"));
    QVERIFY(QFile::copy(samplePath(file), path));
    FrameReader reader;
    QCOMPARE(openError(reader, path), QString());
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
    QVERIFY(QFile::resize(path, 0));
    for (const qint64 ms : {0, 1000, 500, 100000}) {
        const FrameResult found = reader.find(atOrAfter(ms), never);
        QCOMPARE(found.answer, FrameAnswer::Failed);
        QVERIFY(!found.error.isEmpty());
        QVERIFY(!reader.canGoOn());
    }
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_bframes.mp4"))), QString());
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
}

void FrameReaderTest::closedReader_opensAnotherFile()
{
    FrameReader reader;
    QCOMPARE(openError(reader, samplePath(QStringLiteral("h264_bframes.mp4"))), QString());
    reader.close();
    QVERIFY(!reader.isOpen());
    QCOMPARE(openError(reader, samplePath(QStringLiteral("vp9.webm"))), QString());
    QCOMPARE(reader.next(never).answer, FrameAnswer::Frame);
}

QTEST_GUILESS_MAIN(FrameReaderTest)
#include "FrameReaderTest.moc"
