#include "qtav/player/SoundWorker.h"

#include "qtav/src/FFmpegLog.h"

#include <utility>

namespace QtAV {

namespace {

constexpr int TellTimeMs = 10;

/// A device without progress for this long is gone, or has finished if its source has ended. Before
/// its first sound, a device may have to play two seconds of silence.
constexpr std::chrono::milliseconds LongestStandstill{3000};
constexpr std::chrono::milliseconds LongestStandstillAtTheEnd{500};

} // namespace

/// Lets the device read the file.
class SoundWorker::Source : public QIODevice
{
public:
    explicit Source(SoundFile& file)
        : m_file(file)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    bool hasEnded() const { return m_hasEnded; }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        const qint64 got = m_file.read(data, most);
        m_hasEnded = got < most;
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    SoundFile& m_file;
    bool m_hasEnded = false;
};

SoundWorker::SoundWorker(SoundState& state, SoundDevice::Factory makeDevice)
    : m_state(state)
    , m_makeDevice(std::move(makeDevice))
    , m_clock(this)
{
    m_clock.setInterval(TellTimeMs);
    m_clock.setTimerType(Qt::PreciseTimer);
    connect(&m_clock, &QTimer::timeout, this, &SoundWorker::tellTime);
}

SoundWorker::~SoundWorker()
{
    stopDevice();
}

void SoundWorker::run()
{
    m_state.setWorker(this);
    m_loop.exec();
    m_state.setWorker(nullptr);
}

void SoundWorker::heed()
{
    const std::optional<SoundState::Wish> wish = m_state.takeWish();
    if (!wish) {
        m_loop.quit();
        return;
    }
    carryOut(*wish);
    m_state.setCarriedOut();
}

void SoundWorker::carryOut(const SoundState::Wish& wish)
{
    const SoundState::Wish done = std::exchange(m_done, wish);
    if (wish.path != done.path)
        openFile(wish.path);
    if (wish.path != done.path || wish.playSerial != done.playSerial) {
        stopDevice();
        if (wish.plays)
            start(wish);
    }
    if (m_device)
        m_device->setVolume(wish.volume);
}

void SoundWorker::openFile(const QString& path)
{
    stopDevice();
    m_device.reset();
    m_source.reset();
    m_file.reset();
    if (path.isEmpty())
        return;
    auto file = std::make_unique<SoundFile>();
    QString error;
    if (file->open(path, error))
        m_file = std::move(file);
    else
        qCWarning(lcQtAV, "No sound: %s", qUtf8Printable(error));
}

void SoundWorker::start(const SoundState::Wish& wish)
{
    if (!m_file)
        return;
    // Requested each time: the device may have appeared since, or be a different one.
    m_device = m_makeDevice(m_file->sampleRate());
    if (!m_device)
        return;
    m_device->setVolume(wish.volume);
    m_file->setFormat(m_device->sampleRate(), m_device->channels(), wish.speed);
    if (!m_file->seek(wish.from))
        return;
    m_source = std::make_unique<Source>(*m_file);
    m_lastHeard = 0.0;
    m_movedAt = std::chrono::steady_clock::now();
    if (m_device->start(m_source.get()))
        m_clock.start();
    else
        qCWarning(lcQtAV, "The sound device does not start.");
}

void SoundWorker::stopDevice()
{
    m_clock.stop();
    if (m_device)
        m_device->stop();
    m_state.setHeard(m_done.playSerial, std::nullopt);
}

/// A device that failed, or has played everything, no longer provides the time.
void SoundWorker::tellTime()
{
    const double heard = m_device->heardSeconds();
    if (m_device->isRunning() && !isOver(heard))
        m_state.setHeard(m_done.playSerial, m_done.from + m_done.speed * heard);
    else
        stopDevice();
}

bool SoundWorker::isOver(double heardSeconds)
{
    const auto now = std::chrono::steady_clock::now();
    if (heardSeconds > m_lastHeard)
        m_movedAt = now;
    m_lastHeard = heardSeconds;
    const auto longest = m_source->hasEnded() ? LongestStandstillAtTheEnd : LongestStandstill;
    return now - m_movedAt > longest;
}

} // namespace QtAV
