// Commands to a player: the last bytes of the input are the user's actions, the others are the
// file. Its sound is played first.

#include "fuzz/InputFile.h"
#include "fuzz/Limits.h"
#include "qtav/player/FrameSource.h"
#include "qtav/player/SoundFile.h"

#include <QtAV/QtAV_Global.h>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t mostActions = 24;
constexpr qint64 cacheBytes = 8 << 20;
constexpr int soundRate = 48000;
constexpr int channels = 2;

/// Plays half a second of the sound from its start, and from one second on.
void playSound(const QString& path, double speed)
{
    QtAV::SoundFile sound;
    QString error;
    if (!sound.open(path, error)) {
        return;
    }
    sound.setFormat(soundRate, channels, speed);
    std::array<qint16, soundRate / 2 * channels> samples{};
    for (const double start : {0.0, 1.0}) {
        if (sound.seek(start)) {
            static_cast<void>(sound.read(reinterpret_cast<char*>(samples.data()), sizeof(samples)));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QtAV::setLogLevel(QtAV::LogOff);
    const std::size_t actions = std::min(mostActions, size / 16);
    const InputFile file(data, size - actions);
    const double speed = actions == 0 ? 1.0 : 0.25 * (1 + data[size - 1] / 6 % 16);
    playSound(file.path(), speed);
    const QtAV::IsCancelled isLate = fuzzlimits::until(fuzzlimits::startedDeadline());
    QtAV::FrameSource source;
    source.setPictureMemory(fuzzlimits::pictureBytes);
    source.setScreen(QSize(80, 60));
    QString error;
    if (!source.open(file.path(), cacheBytes, isLate, error)) {
        return 0;
    }
    double seconds = 0.0;
    for (std::size_t i = size - actions; i < size; ++i) {
        QtAV::FrameResult result;
        switch (data[i] % 6) {
        case 0:
            result = source.frameAt(source.duration() * (data[i] / 6) / 42, isLate);
            break;
        case 1:
            result = source.after(seconds, isLate);
            break;
        case 2:
            result = source.before(seconds, isLate);
            break;
        case 3:
            result = source.decodeAnew(seconds, isLate);
            break;
        case 4:
            static_cast<void>(source.prepare(QtAV::FrameSource::longestRest, isLate));
            break;
        default:
            source.setDeinterlacing(data[i] / 6 % 2 == 0 ? QtAV::Deinterlacing::On
                                                         : QtAV::Deinterlacing::Automatic);
            break;
        }
        if (result.frame.isValid()) {
            seconds = result.frame.timestamp();
            source.setFocus(seconds);
            static_cast<void>(result.frame.toImage(QImage::Format_RGB888, QSize(80, 60)));
        }
    }
    return 0;
}
