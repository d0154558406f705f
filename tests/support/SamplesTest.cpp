#include "tests/support/Samples.h"
#include "tests/support/FrameNumber.h"
#include "tests/support/RunProgram.h"

#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>

#include <cmath>

using namespace testsupport;

Q_DECLARE_METATYPE(testsupport::Sample)

namespace {

/// A filter that keeps the visible part. Newer FFmpeg has already hidden the rest.
QString shownPart(const Sample& sample)
{
    return sample.has(Trait::CleanAperture)
               ? QStringLiteral("crop=320:240:max(0\\,in_w-332):max(0\\,in_h-248)")
               : QStringLiteral("null");
}

/// The pictures of the first video, upright, in presentation order and in the stored size. For a
/// damaged file, those that can be decoded.
QList<QImage> decodedByFfmpeg(const Sample& sample)
{
    const bool sideways = sample.has(Trait::Sideways);
    const QSize size = sideways ? sample.codedSize.transposed() : sample.codedSize;
    const QStringList arguments{
        QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-nostdin"),
        // Otherwise FFmpeg rounds the cropping at the left for aligned memory.
        QStringLiteral("-flags"), QStringLiteral("unaligned"), QStringLiteral("-i"),
        samplePath(sample.file), QStringLiteral("-map"), QStringLiteral("0:V:0"),
        QStringLiteral("-vsync"), QStringLiteral("passthrough"), QStringLiteral("-vf"),
        shownPart(sample), QStringLiteral("-pix_fmt"), QStringLiteral("gray"), QStringLiteral("-f"),
        QStringLiteral("rawvideo"), QStringLiteral("-")};
    const auto result = runProgram(QStringLiteral("ffmpeg"), arguments);
    if (!result.succeeded() && !sample.has(Trait::Damaged)) {
        qWarning("%s", result.standardError.constData());
    }
    const int pictureBytes = size.width() * size.height();
    QList<QImage> pictures;
    for (int at = 0; at + pictureBytes <= result.standardOutput.size(); at += pictureBytes) {
        const auto* bytes = reinterpret_cast<const uchar*>(result.standardOutput.constData());
        pictures.append(
            QImage(bytes + at, size.width(), size.height(), size.width(), QImage::Format_Grayscale8)
                .copy());
    }
    return pictures;
}

ProgramResult ffprobe(const QStringList& arguments)
{
    return runProgram(QStringLiteral("ffprobe"),
                      QStringList{QStringLiteral("-v"), QStringLiteral("error")} + arguments);
}

/// ffprobe's output for each frame of the first video, with its rate and the container's start. It
/// decodes all of them, once per sample.
QJsonObject probe(const Sample& sample)
{
    static QHash<QString, QJsonObject> known;
    QJsonObject& probed = known[sample.file];
    if (probed.isEmpty()) {
        const auto result =
            ffprobe({QStringLiteral("-select_streams"), QStringLiteral("V:0"),
                     QStringLiteral("-show_entries"),
                     QStringLiteral("format=start_time:stream=r_frame_rate,avg_frame_rate:"
                                    "frame=key_frame,best_effort_timestamp_time"),
                     QStringLiteral("-of"), QStringLiteral("json"), samplePath(sample.file)});
        probed = QJsonDocument::fromJson(result.standardOutput).object();
    }
    return probed;
}

double number(const QJsonObject& object, const QString& key)
{
    bool isNumber = false;
    const double value = object.value(key).toString().toDouble(&isNumber);
    return isNumber ? value : std::nan("");
}

/// The start of the container. An MP4 is shown from 0 on, whatever FFmpeg 5.1 counts before that.
double startOf(const QJsonObject& format, const Sample& sample)
{
    const double start = number(format, QStringLiteral("start_time"));
    // ffmpeg states no start where the first frame has only a decoding time.
    const bool hasNone = std::isnan(start);
    const bool isEarlier = sample.file.endsWith(QLatin1String(".mp4")) && start < 0.0;
    return hasNone || isEarlier ? 0.0 : start;
}

/// The shown frames from the ffmpeg program. It drops the picture that its MPEG-2 decoder holds
/// back when the size of the pictures changes.
QList<int> shownByFfmpeg(const Sample& sample)
{
    const bool dropsOne =
        sample.has(Trait::SizeChange) && sample.file.contains(QLatin1String("mpeg2"));
    QList<int> frames;
    for (int n = 0; n < sample.frames; ++n) {
        if (!dropsOne || n != 49) {
            frames.append(n);
        }
    }
    return frames;
}

/// Whole milliseconds since the container starts. Printed times are rounded to microseconds: adding
/// 2 of them does not reach the next tick of any container.
qint64 wholeMs(double seconds)
{
    return qint64(std::floor((seconds + 2e-6) * 1000));
}

/// The times stated by the packets of the first video, in file order: decoding times for packets
/// without others. Excludes times that ffprobe generates.
QList<qint64> statedTimes(const Sample& sample)
{
    const auto result =
        ffprobe({QStringLiteral("-fflags"), QStringLiteral("+nofillin"),
                 QStringLiteral("-select_streams"), QStringLiteral("V:0"),
                 QStringLiteral("-show_entries"), QStringLiteral("packet=pts_time,dts_time"),
                 QStringLiteral("-of"), QStringLiteral("json"), samplePath(sample.file)});
    const QJsonObject probed = QJsonDocument::fromJson(result.standardOutput).object();
    // Not printed if generating times is disabled.
    const QJsonObject format = probe(sample).value(QStringLiteral("format")).toObject();
    const double start = startOf(format, sample);
    const bool hasNone = sample.has(Trait::NoPresentationTimes);
    const QString key = hasNone ? QStringLiteral("dts_time") : QStringLiteral("pts_time");
    QList<qint64> times;
    const QJsonArray packets = probed.value(QStringLiteral("packets")).toArray();
    for (const auto& packet : packets) {
        const double seconds = number(packet.toObject(), key);
        if (!std::isnan(seconds)) {
            times.append(wholeMs(seconds - start));
        }
    }
    return times;
}

QList<qint64> frameTimes(const Sample& sample)
{
    QList<qint64> times;
    for (int n = 0; n < sample.frames; ++n) {
        times.append(frameTimeMs(sample, n));
    }
    return times;
}

} // namespace

/// Compares the manifest with what ffmpeg finds in the files.
class SamplesTest : public QObject
{
    Q_OBJECT

    static void addVideoRows()
    {
        QTest::addColumn<Sample>("sample");
        for (const Sample& sample : allVideoSamples()) {
            QTest::newRow(qUtf8Printable(sample.file)) << sample;
        }
    }

    /// For files in which ffmpeg gives frames no times, or wrong ones.
    static void checkStatedTimes(const Sample& sample)
    {
        const QList<qint64> times = frameTimes(sample);
        const QList<qint64> stated = statedTimes(sample);
        if (sample.has(Trait::UntimedPackets)) {
            QVERIFY(stated.size() < times.size());
            QVERIFY(stated.size() * 10 > times.size());
            for (const qint64 time : stated) {
                QVERIFY2(times.contains(time), qPrintable(QString::number(time)));
            }
            QCOMPARE(QSet<qint64>(stated.begin(), stated.end()).size(), stated.size());
            return;
        }
        if (sample.has(Trait::VariableRate)) {
            QCOMPARE(stated, times);
            return;
        }
        // They state at most decoding times; the file states only the rate.
        const QJsonArray streams = probe(sample).value(QStringLiteral("streams")).toArray();
        const QString rate =
            QStringLiteral("%1/%2").arg(sample.frameRate.num).arg(sample.frameRate.den);
        // Newer FFmpeg finds the rate of fields in raw.h264, or no average in dv.dv, but never
        // both.
        const QJsonObject stream = streams.first().toObject();
        const QStringList rates{stream.value(QStringLiteral("r_frame_rate")).toString(),
                                stream.value(QStringLiteral("avg_frame_rate")).toString()};
        QVERIFY2(rates.contains(rate), qPrintable(rates.join(u' ')));
    }

private slots:
    void frames_bearTheirNumbers_data() { addVideoRows(); }
    void frames_bearTheirNumbers()
    {
        QFETCH(Sample, sample);
        const QList<QImage> pictures = decodedByFfmpeg(sample);
        const QList<int> shown = shownByFfmpeg(sample);
        QCOMPARE(pictures.size(), shown.size());
        for (int i = 0; i < pictures.size(); ++i) {
            QCOMPARE(frameNumber(pictures[i]).value_or(-1), sample.firstNumber + shown[i]);
        }
    }

    void times_areThoseOfTheContainer_data() { addVideoRows(); }
    void times_areThoseOfTheContainer()
    {
        QFETCH(Sample, sample);
        if (sample.has(Trait::NoPresentationTimes) || sample.has(Trait::UntimedPackets)) {
            return checkStatedTimes(sample);
        }
        const QJsonObject probed = probe(sample);
        const QJsonArray frames = probed.value(QStringLiteral("frames")).toArray();
        const QList<int> shown = shownByFfmpeg(sample);
        QCOMPARE(frames.size(), shown.size());
        const double start = startOf(probed.value(QStringLiteral("format")).toObject(), sample);
        for (int i = 0; i < frames.size(); ++i) {
            const double seconds =
                number(frames[i].toObject(), QStringLiteral("best_effort_timestamp_time")) - start;
            QCOMPARE(frameTimeMs(sample, shown[i]), wholeMs(seconds));
        }
    }

    void keyFrames_areThoseOfTheDecoder_data() { addVideoRows(); }
    void keyFrames_areThoseOfTheDecoder()
    {
        QFETCH(Sample, sample);
        const QJsonArray frames = probe(sample).value(QStringLiteral("frames")).toArray();
        const QList<int> shown = shownByFfmpeg(sample);
        QCOMPARE(frames.size(), shown.size());
        QList<int> expected;
        for (int n = 0; n < frames.size(); ++n) {
            if (frames[n].toObject().value(QStringLiteral("key_frame")).toInt() == 1) {
                expected.append(shown.at(n));
            }
        }
        QVERIFY(!expected.isEmpty());
        QCOMPARE(expected.first() == 0, !sample.has(Trait::StartsInsideGop));
        const QList<int> listed = keyFrames(sample);
        if (sample.has(Trait::IntraRefresh)) {
            // The container marks later ones, but they give no complete picture.
            QVERIFY(listed.size() > expected.size());
            QCOMPARE(expected, QList<int>{0});
            QCOMPARE(listed.first(), 0);
            return;
        }
        QCOMPARE(listed, expected);
    }

    void noVideo_isFound_inSoundFiles()
    {
        for (const Sample& sample : noVideoSamples()) {
            const auto result = ffprobe({QStringLiteral("-select_streams"), QStringLiteral("V"),
                                         QStringLiteral("-show_entries"),
                                         QStringLiteral("stream=index"), QStringLiteral("-of"),
                                         QStringLiteral("csv=p=0"), samplePath(sample.file)});
            QVERIFY2(result.succeeded(), qPrintable(sample.file));
            QCOMPARE(result.standardOutput.trimmed(), QByteArray());
        }
    }

    void unopenableFiles_exist_andAreNoVideos()
    {
        for (const Sample& sample : brokenSamples()) {
            QVERIFY2(QFileInfo::exists(samplePath(sample.file)), qPrintable(sample.file));
            const bool opens = ffprobe({samplePath(sample.file)}).succeeded();
            QVERIFY2(opens != sample.has(Trait::Unopenable), qPrintable(sample.file));
        }
    }

    void damagedFiles_loseFrames_butShowNoOthers()
    {
        for (const Sample& sample : brokenSamples()) {
            if (sample.has(Trait::Unopenable)) {
                continue;
            }
            int readable = 0;
            for (const QImage& picture : decodedByFfmpeg(sample)) {
                readable += frameNumber(picture).value_or(sample.frames) < sample.frames ? 1 : 0;
            }
            QVERIFY2(readable > 0, qPrintable(sample.file));
        }
    }
};

QTEST_GUILESS_MAIN(SamplesTest)
#include "SamplesTest.moc"
