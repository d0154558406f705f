#include "qtav/player/SoundFile.h"

#include "tests/qtav/Playing.h"
#include "tests/qtav/PretendedDevice.h"

#include <QElapsedTimer>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>

using namespace playing;
using QtAV::AVPlayer;
using QtAV::SoundDevice;
using QtAV::SoundFile;

namespace {

QVector<qint16> samplesFrom(SoundFile& file, double seconds)
{
    if (!file.seek(seconds)) {
        return {};
    }
    QVector<qint16> all;
    QVector<qint16> part(10007 * 2);
    for (;;) {
        const qint64 bytes = file.read(reinterpret_cast<char*>(part.data()), part.size() * 2);
        all += part.mid(0, int(bytes / 2));
        if (bytes < part.size() * 2) {
            return all;
        }
    }
}

} // namespace

/// Sound: reading it from a file, and a player with devices that work, fail or are missing.
class SoundTest : public QObject
{
    Q_OBJECT

private slots:
    void file_givesTheSameSamples_fromAnywhere_data();
    void file_givesTheSameSamples_fromAnywhere();
    void file_givesEachSample_atItsTime();
    void file_withoutSound_doesNotOpen();
    void sound_isPlayed_withThePicture();
    void sound_leadsThePicture();
    void sound_startsAnew_afterEachSeek();
    void sound_isSilent_whilePaused();
    void volume_reachesTheDevice();
    void picture_playsOn_withoutADevice();
    void picture_playsOn_whenTheDeviceFails();
    void picture_playsOn_whenTheDeviceStandsStill_data();
    void picture_playsOn_whenTheDeviceStandsStill();
    void player_canEnd_whileSoundPlays();
};

void SoundTest::file_givesTheSameSamples_fromAnywhere_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file :
         {"sound.mp4", "sound_earlier.ts", "sound_earlier.mkv", "sound_later.mp4",
          "sound_later.mkv", "sound_only.wav", "sound_only.mp3", "sound_with_cover.flac"}) {
        QTest::newRow(file) << QString::fromLatin1(file);
    }
}

void SoundTest::file_givesTheSameSamples_fromAnywhere()
{
    QFETCH(QString, file);
    SoundFile sound;
    QString error;
    QVERIFY2(sound.open(testsupport::samplePath(file), error), qPrintable(error));
    sound.setFormat(rate, 2);
    const QVector<qint16> all = samplesFrom(sound, 0.0);
    QVERIFY(all.size() > rate); // half a second and more
    const double length = double(all.size()) / 2 / rate;
    const auto loudest = std::max_element(all.cbegin(), all.cend());
    QVERIFY(*loudest > 100);
    for (const double part : {0.5, 0.1, 0.9, 0.0, 0.7}) {
        const qint64 start = std::llround(part * length * rate);
        const QVector<qint16> rest = samplesFrom(sound, double(start) / rate);
        // Times in milliseconds have an error of up to half a millisecond.
        QVERIFY(std::abs(rest.size() - (all.size() - 2 * start)) <= 2 * rate / 500);
        // The tone's loudness does not depend on where reading began, and neither does silence.
        const int count = std::min(int(rest.size()), rate / 5);
        double energy = 0.0;
        double expected = 0.0;
        for (int i = 0; i < count; ++i) {
            energy += double(rest.at(i)) * rest.at(i);
            const int at = std::min(int(2 * start) + i, int(all.size()) - 1);
            expected += double(all.at(at)) * all.at(at);
        }
        QVERIFY2(std::abs(std::sqrt(energy / count) - std::sqrt(expected / count)) <
                     0.05 * *loudest,
                 QByteArray::number(part).constData());
    }
    QVERIFY(samplesFrom(sound, length + 60.0).isEmpty());
}

/// The tones of the sample begin at 0.48 s of each second.
void SoundTest::file_givesEachSample_atItsTime()
{
    SoundFile sound;
    QString error;
    const QString path = testsupport::samplePath(QStringLiteral("flashes_and_beeps.mp4"));
    QVERIFY2(sound.open(path, error), qPrintable(error));
    sound.setFormat(rate, 2);
    for (const double from : {0.0, 0.1, 0.25, 0.47, 1.0, 3.3, 5.441, 7.0}) {
        const QVector<qint16> samples = samplesFrom(sound, from);
        const auto isLoud = [](qint16 sample) { return std::abs(int(sample)) > 5000; };
        const auto tone = std::find_if(samples.cbegin(), samples.cend(), isLoud);
        const double start = from + double(tone - samples.cbegin()) / 2 / rate;
        const double expected = from < 0.48 ? 0.48 : std::ceil(from - 0.48) + 0.48;
        QVERIFY2(std::abs(start - expected) < 0.002,
                 qPrintable(QStringLiteral("from %1: %2").arg(from).arg(start)));
    }
}

void SoundTest::file_withoutSound_doesNotOpen()
{
    SoundFile sound;
    QString error;
    QVERIFY(!sound.open(testsupport::samplePath(QStringLiteral("h264_bframes.mp4")), error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!sound.open(testsupport::samplePath(QStringLiteral("text.mp4")), error));
    QVERIFY(!error.isEmpty());
}

void SoundTest::sound_isPlayed_withThePicture()
{
    Devices devices;
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), 74);
    QCOMPARE(devices.record.started.load(), 1);
    // The sound is shorter than the video, which continues without it.
    QVERIFY(devices.record.heardBytes > 2.4 * rate * 4);
}

void SoundTest::sound_leadsThePicture()
{
    // A device that plays twice as fast as the clock: the picture keeps up with it.
    Devices devices(2.0);
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    qint64 furthest = 0;
    int pictures = 0;
    connect(&stage.screen, &Screen::presented, &stage.screen, [&] {
        const double heard = double(devices.record.heardBytes) / 4 / rate * 1000.0;
        if (heard > 300.0 && heard < 2300.0) {
            ++pictures;
            furthest = std::max(furthest,
                                qint64(std::abs(double(stage.player.displayPosition()) - heard)));
        }
    });
    QElapsedTimer time;
    time.start();
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(devices.record.started.load(), 1);
    QVERIFY(devices.record.heardBytes > 2.4 * rate * 4);
    QVERIFY(pictures > 0);
    qInfo("The picture was at most %lld ms off the sound.", furthest);
    // With the clock alone it would be 1150 ms late at the end.
    QVERIFY(furthest < 500);
}

void SoundTest::sound_startsAnew_afterEachSeek()
{
    Devices devices;
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
    QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), 1, patienceMs);
    for (const int count : {2, 3, 4}) {
        QVERIFY(stage.seek(count * 500));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), count, patienceMs);
    }
}

void SoundTest::sound_isSilent_whilePaused()
{
    Devices devices;
    Stage stage;
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    QVERIFY(stage.seek(1000));
    QVERIFY(stage.stepForward());
    stage.settle();
    QCOMPARE(devices.record.started.load(), 0);
    stage.player.play();
    QTRY_VERIFY_WITH_TIMEOUT(devices.record.heardBytes > 0, patienceMs);
    stage.player.pause();
    stage.settle();
    const qint64 heard = devices.record.heardBytes;
    stage.settle();
    QCOMPARE(devices.record.heardBytes.load(), heard);
}

void SoundTest::volume_reachesTheDevice()
{
    Devices devices;
    Stage stage;
    stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
    stage.player.audio()->setVolume(0.25);
    QTRY_COMPARE_WITH_TIMEOUT(devices.record.volume.load(), 0.25, patienceMs);
    stage.player.audio()->setVolume(7.0);
    QTRY_COMPARE_WITH_TIMEOUT(devices.record.volume.load(), 1.0, patienceMs);
    stage.player.audio()->setMute(true);
    QTRY_COMPARE_WITH_TIMEOUT(devices.record.volume.load(), 0.0, patienceMs);
    QCOMPARE(stage.player.audio()->volume(), 1.0);
    stage.player.audio()->setMute(false);
    QTRY_COMPARE_WITH_TIMEOUT(devices.record.volume.load(), 1.0, patienceMs);
}

void SoundTest::picture_playsOn_withoutADevice()
{
    SoundDevice::setFactory([](int) { return std::unique_ptr<SoundDevice>(); });
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    QVERIFY(stage.seek(2500));
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), 74);
    SoundDevice::setFactory(&SoundDevice::openDefault);
}

void SoundTest::picture_playsOn_whenTheDeviceFails()
{
    Devices devices;
    devices.record.failsAfter = rate; // after a quarter of a second
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(QStringLiteral("sound.mp4")));
    QVERIFY(stage.seek(2000));
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), 74);
    QVERIFY(devices.record.heardBytes < rate * 4);
}

void SoundTest::picture_playsOn_whenTheDeviceStandsStill_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<qint64>("failsAfter");
    QTest::newRow("after the sound's end")
        << QStringLiteral("sound_ends_early.mp4") << std::numeric_limits<qint64>::max();
    QTest::newRow("in the middle") << QStringLiteral("sound.mp4") << qint64(rate);
}

void SoundTest::picture_playsOn_whenTheDeviceStandsStill()
{
    QFETCH(QString, file);
    QFETCH(qint64, failsAfter);
    Devices devices;
    devices.record.failsAfter = failsAfter;
    devices.record.saysItRuns = true;
    Stage stage;
    stage.player.setMediaEndAction(QtAV::MediaEndAction_Pause);
    QVERIFY(stage.open(file));
    QVERIFY(stage.seek(1000));
    stage.player.play();
    QVERIFY(stage.waitForStatus(QtAV::EndOfMedia));
    QCOMPARE(stage.number(), 74);
    QVERIFY(devices.record.heardBytes > 0);
    QVERIFY(devices.record.heardBytes < rate * 4);
}

void SoundTest::player_canEnd_whileSoundPlays()
{
    Devices devices;
    for (int round = 0; round < 5; ++round) {
        Stage stage;
        stage.player.play(testsupport::samplePath(QStringLiteral("sound.mp4")));
        QTRY_COMPARE_WITH_TIMEOUT(devices.record.started.load(), round + 1, patienceMs);
    }
}

QTEST_GUILESS_MAIN(SoundTest)
#include "SoundTest.moc"
