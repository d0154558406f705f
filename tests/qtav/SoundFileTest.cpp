#include "qtav/player/SoundFile.h"

#include "tests/support/ResourceLimits.h"
#include "tests/support/Samples.h"
#include "tests/support/TestDir.h"

#include <QFile>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <optional>

using QtAV::SoundFile;
using testsupport::MemoryLimit;
using testsupport::samplePath;
using testsupport::TestDir;

namespace {

constexpr int soundRate = 48000;

/// Enough for a second of sound and what FFmpeg needs.
constexpr rlim_t littleMemory = 64 << 20;

/// Opens a file and makes it deliver samples of one channel.
[[nodiscard]] bool openMono(SoundFile& sound, const QString& path)
{
    QString error;
    if (!sound.open(path, error)) {
        qWarning("%s: %s", qPrintable(path), qPrintable(error));
        return false;
    }
    sound.setFormat(soundRate, 1);
    return true;
}

/// All samples from here to the end, in portions whose size matches no packet.
QVector<qint16> readRest(SoundFile& sound)
{
    QVector<qint16> all;
    QVector<qint16> part(10007);
    for (;;) {
        const qint64 bytes = sound.read(reinterpret_cast<char*>(part.data()), part.size() * 2);
        all += part.mid(0, int(bytes / 2));
        if (bytes < part.size() * 2) {
            return all;
        }
    }
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

/// The samples that a WAV file of one channel and 16 bits stores, in the machine's byte order.
QVector<qint16> storedSamples(const QByteArray& wav)
{
    const int begin = wav.indexOf("data") + 8;
    QVector<qint16> samples;
    for (int i = begin; i + 1 < wav.size(); i += 2) {
        samples.append(qint16(uchar(wav.at(i)) | uchar(wav.at(i + 1)) << 8));
    }
    return samples;
}

/// The mean strength of the samples in a stretch of time, in seconds.
double strength(const QVector<qint16>& samples, double from, double to)
{
    const QVector<qint16> part = samples.mid(int(from * soundRate), int((to - from) * soundRate));
    double energy = 0.0;
    for (const qint16 sample : part) {
        energy += double(sample) * sample;
    }
    return std::sqrt(energy / std::max(1, int(part.size())));
}

void append(QByteArray& bytes, quint32 number, int count)
{
    for (int i = 0; i < count; ++i) {
        bytes.append(char(number >> (8 * i) & 0xff));
    }
}

/// A WAV file of one channel with a tone of that frequency, for samples at 48 kHz.
QByteArray toneOf(double hertz, int samples, quint32 declaredRate = soundRate)
{
    QByteArray wav("RIFF");
    append(wav, quint32(36 + 2 * samples), 4);
    wav += "WAVEfmt ";
    append(wav, 16, 4);
    append(wav, 1, 2);
    append(wav, 1, 2);
    append(wav, declaredRate, 4);
    append(wav, 2 * declaredRate, 4);
    append(wav, 2, 2);
    append(wav, 16, 2);
    wav += "data";
    append(wav, quint32(2 * samples), 4);
    for (int i = 0; i < samples; ++i) {
        constexpr double turn = 6.283185307179586;
        const double value = 10000.0 * std::sin(turn * hertz * i / soundRate);
        append(wav, quint32(std::lround(value)), 2);
    }
    return wav;
}

/// Number of upward zero crossings per second; the ends do not count.
double frequencyOf(const QVector<qint16>& samples)
{
    const int from = soundRate / 10;
    const int to = samples.size() - soundRate / 10;
    int first = -1;
    int last = -1;
    int count = -1;
    for (int i = from; i < to; ++i) {
        if (samples.at(i - 1) < 0 && samples.at(i) >= 0) {
            first = first < 0 ? i : first;
            last = i;
            ++count;
        }
    }
    return double(count) * soundRate / (last - first);
}

double firstLoudSecond(const QVector<qint16>& samples)
{
    const auto isLoud = [](qint16 sample) { return std::abs(int(sample)) > 100; };
    const auto loud = std::find_if(samples.cbegin(), samples.cend(), isLoud);
    return double(loud - samples.cbegin()) / soundRate;
}

} // namespace

/// Reading a file's sound: which samples come from where.
class SoundFileTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { MemoryLimit::prepare(); }
    void samples_areThoseOfTheFile_atEachPosition();
    void samples_areAsManyAsTheFormatWants();
    void speed_givesTheFileInLessTime_orInMore();
    void speed_keepsThePitch_data();
    void speed_keepsThePitch();
    void lateSound_isPrecededBySilence_data();
    void lateSound_isPrecededBySilence();
    void gap_isSilent_atEachSpeed();
    void gap_takesLittleMemory_howeverManyChannelsTheDeviceHas();
    void sampleRateThatNobodyUses_givesNoSound_andTakesLittleMemory_data();
    void sampleRateThatNobodyUses_givesNoSound_andTakesLittleMemory();
    void sound_endsWhereTheFileEndsIt();
    void nothing_isRead_behindTheEnd();
    void seeking_works_afterTheEnd();
    void file_doesNotOpen_withoutSound_data();
    void file_doesNotOpen_withoutSound();
    void cutOffFile_givesWhatItHolds();
    void damagedPart_leavesTheRestInItsPlace();
};

void SoundFileTest::samples_areThoseOfTheFile_atEachPosition()
{
    const QString path = samplePath(QStringLiteral("sound_only.wav"));
    const QVector<qint16> stored = storedSamples(contents(path));
    QCOMPARE(stored.size(), 2 * soundRate);
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    QCOMPARE(sound.sampleRate(), soundRate);
    for (const int start : {0, 1, 4801, 24000, 47999, 90007, 95999}) {
        QVERIFY(sound.seek(double(start) / soundRate));
        const QVector<qint16> read = readRest(sound);
        QVERIFY2(read == stored.mid(start), QByteArray::number(start).constData());
    }
}

void SoundFileTest::samples_areAsManyAsTheFormatWants()
{
    const QString path = samplePath(QStringLiteral("sound_only.wav"));
    const QVector<qint16> stored = storedSamples(contents(path));
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    sound.setFormat(soundRate, 2);
    QVERIFY(sound.seek(0.0));
    const QVector<qint16> stereo = readRest(sound);
    QCOMPARE(stereo.size(), 2 * stored.size());
    for (int i = 0; i < stereo.size(); i += 2) {
        QCOMPARE(stereo.at(i), stereo.at(i + 1));
    }
    sound.setFormat(soundRate / 2, 1);
    QVERIFY(sound.seek(0.0));
    QVERIFY(std::abs(readRest(sound).size() - stored.size() / 2) < 50);
}

void SoundFileTest::speed_givesTheFileInLessTime_orInMore()
{
    const int stored = 2 * soundRate;
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(QStringLiteral("sound_only.wav"))));
    for (const double speed : {0.5, 1.25, 2.0}) {
        sound.setFormat(soundRate, 1, speed);
        QVERIFY(sound.seek(0.0));
        // Sound that keeps its pitch consists of pieces of some hundredths of a second.
        QVERIFY(std::abs(readRest(sound).size() - stored / speed) < 0.03 * soundRate);
        QVERIFY(sound.seek(1.5));
        QVERIFY(std::abs(readRest(sound).size() - stored / speed / 4.0) < 0.03 * soundRate);
    }
    // The silence before a sound that starts later is shortened as well.
    SoundFile late;
    QVERIFY(openMono(late, samplePath(QStringLiteral("sound_later.mkv"))));
    late.setFormat(soundRate, 1, 2.0);
    QVERIFY(late.seek(0.0));
    QVERIFY(std::abs(firstLoudSecond(readRest(late)) - 0.24) < 0.03);
}

void SoundFileTest::speed_keepsThePitch_data()
{
    QTest::addColumn<double>("speed");
    for (const double speed : {0.5, 0.75, 1.0, 1.25, 1.5, 2.0}) {
        QTest::newRow(qPrintable(QString::number(speed))) << speed;
    }
}

void SoundFileTest::speed_keepsThePitch()
{
    QFETCH(const double, speed);
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("tone.wav"));
    write(path, toneOf(440.0, 3 * soundRate));
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    sound.setFormat(soundRate, 1, speed);
    // Also from a place inside: nothing before it is heard.
    for (const double from : {0.0, 1.0}) {
        QVERIFY(sound.seek(from));
        const QVector<qint16> samples = readRest(sound);
        const double seconds = double(samples.size()) / soundRate;
        const double wanted = (3.0 - from) / speed;
        QVERIFY2(std::abs(seconds - wanted) < 0.03, qPrintable(QString::number(seconds)));
        const double hertz = frequencyOf(samples);
        QVERIFY2(std::abs(hertz - 440.0) < 3.0, qPrintable(QString::number(hertz)));
        // As loud as before, without gaps.
        for (double at = 0.1; at + 0.1 < seconds; at += 0.1) {
            QVERIFY(std::abs(strength(samples, at, at + 0.1) - 10000.0 / std::sqrt(2.0)) < 1500.0);
        }
    }
}

void SoundFileTest::lateSound_isPrecededBySilence_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("MP4") << QStringLiteral("sound_later.mp4");
    QTest::newRow("Matroska") << QStringLiteral("sound_later.mkv");
}

/// The sound begins 0.48 s after the pictures.
void SoundFileTest::lateSound_isPrecededBySilence()
{
    QFETCH(QString, file);
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(file)));
    for (const double from : {0.0, 0.2, 0.4}) {
        QVERIFY(sound.seek(from));
        const double begin = firstLoudSecond(readRest(sound)) + from;
        QVERIFY2(std::abs(begin - 0.48) < 0.01, QByteArray::number(begin).constData());
    }
    QVERIFY(sound.seek(1.0));
    QVERIFY(firstLoudSecond(readRest(sound)) < 0.01);
}

/// The sound of a second, and a minute later that of another one.
void SoundFileTest::gap_isSilent_atEachSpeed()
{
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(QStringLiteral("sound_with_gap.mka"))));
    for (const double speed : {1.0, 2.0, 4.0}) {
        sound.setFormat(soundRate, 1, speed);
        QVERIFY(sound.seek(0.0));
        const QVector<qint16> samples = readRest(sound);
        QVERIFY(std::abs(double(samples.size()) / soundRate - 62.0 / speed) < 0.03);
        QVERIFY(strength(samples, 0.1, 0.9 / speed) > 100.0);
        QCOMPARE(strength(samples, 1.2 / speed, 60.9 / speed), 0.0);
        QVERIFY(strength(samples, 61.2 / speed, 61.9 / speed) > 100.0);
    }
    sound.setFormat(soundRate, 1);
    QVERIFY(sound.seek(30.0));
    QVERIFY(std::abs(firstLoudSecond(readRest(sound)) - 31.056) < 0.01);
}

void SoundFileTest::gap_takesLittleMemory_howeverManyChannelsTheDeviceHas()
{
    if (!MemoryLimit::isPossible()) {
        QSKIP("Sanitizers end a program that gets no memory.");
    }
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(QStringLiteral("sound_with_gap.mka"))));
    sound.setFormat(192000, 8);
    QByteArray part(192000 * 8 * 2, '\0');
    const MemoryLimit limit(littleMemory);
    QVERIFY(sound.seek(0.0));
    for (int second = 0; second < 10; ++second) {
        QCOMPARE(sound.read(part.data(), part.size()), qint64(part.size()));
    }
}

void SoundFileTest::sampleRateThatNobodyUses_givesNoSound_andTakesLittleMemory_data()
{
    QTest::addColumn<quint32>("rate");
    for (const quint32 rate : {1U, 999U, 1000001U, 2000000000U}) {
        QTest::addRow("%u per second", rate) << rate;
    }
}

void SoundFileTest::sampleRateThatNobodyUses_givesNoSound_andTakesLittleMemory()
{
    QFETCH(const quint32, rate);
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("rate.wav"));
    write(path, toneOf(440.0, soundRate, rate));
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    std::optional<MemoryLimit> limit;
    if (MemoryLimit::isPossible()) {
        limit.emplace(littleMemory);
    }
    static_cast<void>(sound.seek(0.0));
    QVERIFY(readRest(sound).isEmpty());
}

/// Half way through the pictures.
void SoundFileTest::sound_endsWhereTheFileEndsIt()
{
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(QStringLiteral("sound_ends_early.mp4"))));
    for (const double from : {0.0, 0.5, 1.2}) {
        QVERIFY(sound.seek(from));
        const double end = double(readRest(sound).size()) / soundRate + from;
        // The encoder's packets are 21 ms long, and the last one is padded.
        QVERIFY2(end > 1.499 && end < 1.545, QByteArray::number(end).constData());
    }
}

void SoundFileTest::nothing_isRead_behindTheEnd()
{
    for (const char* file : {"sound_only.wav", "sound_only.mp3", "sound_ends_early.mp4"}) {
        SoundFile sound;
        QVERIFY(openMono(sound, samplePath(QString::fromLatin1(file))));
        QVERIFY(sound.seek(0.0));
        QVERIFY(!readRest(sound).isEmpty());
        QVERIFY(readRest(sound).isEmpty());
        // Whether such a seek fails or succeeds is up to the container.
        static_cast<void>(sound.seek(60.0));
        QVERIFY2(readRest(sound).isEmpty(), file);
    }
}

void SoundFileTest::seeking_works_afterTheEnd()
{
    SoundFile sound;
    QVERIFY(openMono(sound, samplePath(QStringLiteral("sound_only.mp3"))));
    QVERIFY(sound.seek(0.0));
    const QVector<qint16> all = readRest(sound);
    QVERIFY(strength(all, 0.5, 1.5) > 100.0);
    QVERIFY(sound.seek(0.0));
    QCOMPARE(readRest(sound), all);
}

void SoundFileTest::file_doesNotOpen_withoutSound_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"h264_bframes.mp4", "cover.jpg", "text.mp4", "empty.mp4",
                             "random_bytes.mp4", "folder.mp4", "no_such_file.mp4"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void SoundFileTest::file_doesNotOpen_withoutSound()
{
    QFETCH(QString, file);
    SoundFile sound;
    QString error;
    QVERIFY(!sound.open(samplePath(file), error));
    QVERIFY(!error.isEmpty());
}

void SoundFileTest::cutOffFile_givesWhatItHolds()
{
    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("cut_off.wav"));
    const QByteArray whole = contents(samplePath(QStringLiteral("sound_only.wav")));
    const QByteArray half = whole.left(whole.size() / 2);
    write(path, half);
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    QVERIFY(sound.seek(0.0));
    QVERIFY(readRest(sound) == storedSamples(half));
    QVERIFY(sound.seek(0.25));
    QVERIFY(readRest(sound) == storedSamples(half).mid(soundRate / 4));
}

/// The tone goes on behind the damage, and ends when it did before.
void SoundFileTest::damagedPart_leavesTheRestInItsPlace()
{
    const QString original = samplePath(QStringLiteral("sound_earlier.ts"));
    SoundFile undamaged;
    QVERIFY(openMono(undamaged, original));
    QVERIFY(undamaged.seek(0.0));
    const QVector<qint16> expected = readRest(undamaged);

    const TestDir dir;
    const QString path = dir.filePath(QStringLiteral("damaged.ts"));
    QByteArray bytes = contents(original);
    const int damage = bytes.size() / 6;
    bytes.replace(bytes.size() / 2, damage, QByteArray(damage, '\0'));
    write(path, bytes);
    SoundFile sound;
    QVERIFY(openMono(sound, path));
    QVERIFY(sound.seek(0.0));
    const QVector<qint16> read = readRest(sound);
    QVERIFY(read != expected);
    QVERIFY(std::abs(read.size() - expected.size()) < soundRate / 20);
    const double length = double(expected.size()) / soundRate;
    const double usual = strength(expected, 0.2 * length, 0.3 * length);
    QVERIFY(usual > 100.0);
    for (const double part : {0.2, 0.8, 0.9}) {
        const double heard = strength(read, part * length, part * length + 0.1);
        QVERIFY2(std::abs(heard - usual) < 0.1 * usual, QByteArray::number(part).constData());
    }
}

QTEST_GUILESS_MAIN(SoundFileTest)
#include "SoundFileTest.moc"
