#pragma once

#include "qtav/player/SoundDevice.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QTimer>

#include <atomic>
#include <condition_variable>
#include <limits>
#include <memory>
#include <mutex>

/// Simulated sound devices, controlled by a test.
namespace playing {

constexpr int rate = 48000;

/// Blocks devices until it is opened.
class Gate
{
public:
    void shut()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = false;
    }
    void open()
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_opened.notify_all();
    }
    void pass()
    {
        std::unique_lock lock(m_mutex);
        ++m_waiting;
        m_opened.wait(lock, [this] { return m_isOpen; });
        --m_waiting;
    }
    int waiting() const
    {
        const std::lock_guard lock(m_mutex);
        return m_waiting;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_opened;
    bool m_isOpen = true;
    int m_waiting = 0;
};

/// What the devices of a test did; used by both threads.
struct Record
{
    Gate start;
    Gate stop;
    Gate query; ///< of how much has been heard
    std::atomic<int> made{0};
    std::atomic<int> started{0};
    std::atomic<qint64> heardBytes{0};
    std::atomic<double> volume{-1.0};
    /// Fails when this many bytes have been played.
    std::atomic<qint64> failsAfter{std::numeric_limits<qint64>::max()};
    /// Reports that it runs even if it does not, as real systems do.
    std::atomic<bool> saysItRuns{false};
};

/// Takes samples as fast as a real device would play them, multiplied by a factor.
class PretendedDevice : public QtAV::SoundDevice
{
public:
    explicit PretendedDevice(std::shared_ptr<Record> itsRecord, double speed = 1.0)
        : m_shared(std::move(itsRecord))
        , m_record(*m_shared)
        , m_speed(speed)
    {
        ++m_record.made;
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { pull(); });
    }

    int sampleRate() const override { return rate; }
    int channels() const override { return 2; }
    bool start(QIODevice* source) override
    {
        ++m_record.started;
        m_record.start.pass();
        m_source = source;
        m_heard = 0;
        m_time.start();
        m_timer.start();
        return true;
    }
    void stop() override
    {
        m_record.stop.pass();
        m_timer.stop();
    }
    bool isRunning() const override { return m_timer.isActive() || m_record.saysItRuns; }
    double heardSeconds() override
    {
        m_record.query.pass();
        return double(m_heard) / bytesASecond;
    }
    void setVolume(qreal volume) override { m_record.volume = volume; }

private:
    static constexpr int bytesASecond = rate * 4;

    void pull()
    {
        const qint64 due = qint64(double(m_time.elapsed()) * m_speed) * (bytesASecond / 1000);
        QByteArray samples(int(due - m_heard), '\0');
        const qint64 got = m_source->read(samples.data(), samples.size());
        m_heard += got;
        m_record.heardBytes += got;
        if (got < samples.size() || m_heard > m_record.failsAfter) {
            m_timer.stop();
        }
    }

    const std::shared_ptr<Record> m_shared;
    Record& m_record;
    double m_speed;
    QIODevice* m_source = nullptr;
    QTimer m_timer;
    QElapsedTimer m_time;
    qint64 m_heard = 0;
};

/// During its lifetime, all players created have this device. Its record may outlive them.
class Devices
{
public:
    explicit Devices(double speed = 1.0)
    {
        QtAV::SoundDevice::setFactory([kept = m_shared, speed](int) {
            return std::make_unique<PretendedDevice>(kept, speed);
        });
    }
    ~Devices()
    {
        QtAV::SoundDevice::setFactory(&QtAV::SoundDevice::openDefault);
        record.start.open();
        record.stop.open();
        record.query.open();
    }
    Devices(const Devices&) = delete;
    Devices& operator=(const Devices&) = delete;

private:
    const std::shared_ptr<Record> m_shared = std::make_shared<Record>();

public:
    Record& record = *m_shared;
};

} // namespace playing
