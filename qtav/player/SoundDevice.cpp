#include "qtav/player/SoundDevice.h"

#include "qtav/player/SoundClock.h"

#if QT_VERSION_MAJOR >= 6
#include <QAudioDevice>
#include <QAudioSink>
#include <QMediaDevices>
#else
#include <QAudioDeviceInfo>
#include <QAudioOutput>
#endif

#include <algorithm>
#include <atomic>

namespace QtAV {

namespace {

// Names of a device and its output in Qt Multimedia, and the format of its 16-bit samples.
#if QT_VERSION_MAJOR >= 6
using DeviceInfo = QAudioDevice;
using Output = QAudioSink;

DeviceInfo defaultDevice()
{
    return QMediaDevices::defaultAudioOutput();
}

bool hasWordSamples(const QAudioFormat& format)
{
    return format.isValid() && format.sampleFormat() == QAudioFormat::Int16;
}

QAudioFormat formatFor(const DeviceInfo& info, int preferredRate)
{
    QAudioFormat format;
    format.setSampleFormat(QAudioFormat::Int16);
    format.setChannelCount(2);
    format.setSampleRate(preferredRate);
    if (info.isFormatSupported(format)) {
        return format;
    }
    format = info.preferredFormat();
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}
#else
using DeviceInfo = QAudioDeviceInfo;
using Output = QAudioOutput;

DeviceInfo defaultDevice()
{
    return DeviceInfo::defaultOutputDevice();
}

bool hasWordSamples(const QAudioFormat& format)
{
    return format.isValid() && format.sampleSize() == 16 &&
           format.sampleType() == QAudioFormat::SignedInt;
}

QAudioFormat formatFor(const DeviceInfo& info, int preferredRate)
{
    QAudioFormat format;
    format.setCodec(QStringLiteral("audio/pcm"));
    format.setByteOrder(static_cast<QAudioFormat::Endian>(QSysInfo::ByteOrder));
    format.setSampleType(QAudioFormat::SignedInt);
    format.setSampleSize(16);
    format.setChannelCount(2);
    format.setSampleRate(preferredRate);
    return info.isFormatSupported(format) ? format : info.nearestFormat(format);
}
#endif

/// Counts what is read from another source. Some systems read in a thread of their own.
class CountedSource : public QIODevice
{
public:
    /// Begins to count anew, in this source.
    void reset(QIODevice* source)
    {
        close();
        m_source = source;
        m_bytes = 0;
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 bytes() const { return m_bytes; }

protected:
    qint64 readData(char* data, qint64 maximum) override
    {
        const qint64 got = m_source->read(data, maximum);
        m_bytes += std::max(got, qint64(0));
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QIODevice* m_source = nullptr;
    std::atomic<qint64> m_bytes{0};
};

/// A device of Qt Multimedia.
class SystemDevice : public SoundDevice
{
public:
    SystemDevice(const DeviceInfo& info, const QAudioFormat& format)
        : m_format(format)
        , m_output(info, format)
    {}

    int sampleRate() const override { return m_format.sampleRate(); }
    int channels() const override { return m_format.channelCount(); }

    bool start(QIODevice* source) override
    {
        m_source.reset(source);
        m_output.start(&m_source);
        const qint64 bufferUs = m_format.durationForBytes(static_cast<int>(m_output.bufferSize()));
        m_clock.reset(double(bufferUs) / 1e6, std::chrono::steady_clock::now());
        return m_output.error() == QAudio::NoError;
    }
    void stop() override { m_output.stop(); }

    bool isRunning() const override
    {
        const bool isStarved =
            m_output.state() == QAudio::IdleState && m_output.error() == QAudio::UnderrunError;
        // For a device that was removed, bytesFree() is negative.
        const bool isThere = m_output.bytesFree() >= 0;
        return isThere && (m_output.state() == QAudio::ActiveState || isStarved);
    }

    double heardSeconds() override
    {
        // Not processedUSecs(): with Qt 5 that is what was read, and with Qt 6 on some systems an
        // estimate of what was heard, which is far too large before the first sound.
        const auto buffered =
            std::max(qint64(0), qint64(m_output.bufferSize()) - m_output.bytesFree());
        const qint64 taken = std::max(qint64(0), m_source.bytes() - buffered);
        const double seconds = double(taken) / m_format.bytesPerFrame() / m_format.sampleRate();
        return m_clock.heard(seconds, std::chrono::steady_clock::now());
    }

    void setVolume(qreal volume) override { m_output.setVolume(volume); }

private:
    SoundClock m_clock;
    QAudioFormat m_format;
    CountedSource m_source; ///< declared before the output, which reads it until it is destroyed
    Output m_output;
};

SoundDevice::Factory& factoryInUse()
{
    static SoundDevice::Factory factory = &SoundDevice::openDefault;
    return factory;
}

} // namespace

std::unique_ptr<SoundDevice> SoundDevice::openDefault(int preferredRate)
{
    const DeviceInfo info = defaultDevice();
    if (info.isNull()) {
        return nullptr;
    }
    const QAudioFormat format = formatFor(info, preferredRate);
    return hasWordSamples(format) ? std::make_unique<SystemDevice>(info, format) : nullptr;
}

void SoundDevice::setFactory(Factory factory)
{
    factoryInUse() = std::move(factory);
}

SoundDevice::Factory SoundDevice::factory()
{
    return factoryInUse();
}

} // namespace QtAV
