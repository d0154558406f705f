#include "qtav/player/SoundWorker.h"

#include "qtav/src/FFmpegLog.h"

#include <QIODevice>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <utility>

namespace QtAV {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds reportInterval{10};

/// Between two reports the time is extrapolated, at most this long: the device may have stopped.
constexpr double longestExtrapolationSeconds = 0.1;

/// A device of which nothing more is heard for so long is gone, or done where its source has ended.
/// Before its first sound, a device may have to play out two seconds of silence.
constexpr std::chrono::milliseconds longestStandstill{3000};
constexpr std::chrono::milliseconds longestStandstillAtTheEnd{500};

std::atomic<int> workerCount{0};

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
    qint64 readData(char* data, qint64 maximum) override
    {
        const qint64 got = m_file.read(data, maximum);
        m_hasEnded = got < maximum;
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    SoundFile& m_file;
    std::atomic<bool> m_hasEnded{false}; ///< the device may read in a thread of its own
};

SoundWorker::SoundWorker(SoundDevice::Factory makeDevice)
    : m_makeDevice(std::move(makeDevice))
    , m_clock(this)
{
    ++workerCount;
    m_clock.setInterval(reportInterval);
    m_clock.setTimerType(Qt::PreciseTimer);
    connect(&m_clock, &QTimer::timeout, this, &SoundWorker::reportTime);
}

SoundWorker::~SoundWorker()
{
    stopDevice();
    // Deleting a device can block, too: until then this one counts.
    m_device.reset();
    --workerCount;
}

int SoundWorker::count()
{
    return workerCount;
}

void SoundWorker::setRequest(const SoundRequest& request)
{
    const std::lock_guard lock(m_mutex);
    m_request = request;
    m_isTaken = false;
    if (!m_busySince) {
        m_busySince = Clock::now();
    }
    QMetaObject::invokeMethod(this, "carryOutRequest", Qt::QueuedConnection);
}

SoundRequest SoundWorker::takeRequest()
{
    const std::lock_guard lock(m_mutex);
    m_isTaken = true;
    return m_request;
}

void SoundWorker::beginWork()
{
    const std::lock_guard lock(m_mutex);
    if (!m_busySince) {
        m_busySince = Clock::now();
    }
}

void SoundWorker::endWork()
{
    const std::lock_guard lock(m_mutex);
    if (m_isTaken) {
        m_busySince.reset();
    } else {
        m_busySince = Clock::now();
    }
}

std::chrono::milliseconds SoundWorker::busyFor() const
{
    const std::lock_guard lock(m_mutex);
    return busyForLocked();
}

std::chrono::milliseconds SoundWorker::busyForLocked() const
{
    if (!m_busySince) {
        return std::chrono::milliseconds(0);
    }
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - *m_busySince);
}

void SoundWorker::report(std::optional<double> seconds)
{
    const std::lock_guard lock(m_mutex);
    m_reported = seconds;
    m_reportedSerial = m_done.serial;
    m_reportedAt = Clock::now();
}

std::optional<double> SoundWorker::heardSeconds() const
{
    const std::lock_guard lock(m_mutex);
    const bool isCurrent = m_request.plays && m_reportedSerial == m_request.serial;
    if (!isCurrent || !m_reported || busyForLocked() >= longestWork) {
        return std::nullopt;
    }
    const std::chrono::duration<double> since = Clock::now() - m_reportedAt;
    return *m_reported + m_request.speed * std::min(since.count(), longestExtrapolationSeconds);
}

void SoundWorker::carryOutRequest()
{
    if (QThread::currentThread()->isInterruptionRequested()) {
        return;
    }
    carryOut(takeRequest());
    endWork();
}

void SoundWorker::carryOut(const SoundRequest& request)
{
    const SoundRequest done = std::exchange(m_done, request);
    if (request.path != done.path) {
        openFile(request.path);
    }
    if (request.path != done.path || request.serial != done.serial) {
        stopDevice();
        if (request.plays) {
            start(request);
        }
    }
    if (m_device) {
        m_device->setVolume(request.volume);
    }
}

void SoundWorker::openFile(const QString& path)
{
    stopDevice();
    m_device.reset();
    m_source.reset();
    m_file.reset();
    if (path.isEmpty()) {
        return;
    }
    auto file = std::make_unique<SoundFile>();
    QString error;
    if (file->open(path, error)) {
        m_file = std::move(file);
    } else {
        qCWarning(lcQtAV, "No sound: %s", qUtf8Printable(error));
    }
}

void SoundWorker::start(const SoundRequest& request)
{
    if (!m_file) {
        return;
    }
    // Made anew each time: the standard device may be another one than before.
    m_device = m_makeDevice(m_file->sampleRate());
    if (!m_device) {
        return;
    }
    m_device->setVolume(request.volume);
    m_file->setFormat(m_device->sampleRate(), m_device->channels(), request.speed);
    if (!m_file->seek(request.from)) {
        return;
    }
    m_source = std::make_unique<Source>(*m_file);
    m_lastHeard = 0.0;
    m_movedAt = Clock::now();
    if (m_device->start(m_source.get())) {
        m_clock.start();
    } else {
        qCWarning(lcQtAV, "The sound device does not start.");
    }
}

void SoundWorker::stopDevice()
{
    m_clock.stop();
    if (m_device) {
        m_device->stop();
    }
    report(std::nullopt);
}

/// A device that failed, or has played everything, no longer provides the time.
void SoundWorker::reportTime()
{
    beginWork();
    const double heard = m_device->heardSeconds();
    if (m_device->isRunning() && !standsStill(heard)) {
        report(m_done.from + m_done.speed * heard);
    } else {
        stopDevice();
    }
    endWork();
}

bool SoundWorker::standsStill(double heardSeconds)
{
    const Time now = Clock::now();
    if (heardSeconds > m_lastHeard) {
        m_movedAt = now;
    }
    m_lastHeard = heardSeconds;
    const auto longest = m_source->hasEnded() ? longestStandstillAtTheEnd : longestStandstill;
    return now - m_movedAt > longest;
}

} // namespace QtAV
