#pragma once

#include <QIODevice>

#include <functional>
#include <memory>

namespace QtAV {

/// A device that plays sound. Created, used and deleted on one thread, which has an event loop.
class SoundDevice
{
public:
    using Factory = std::function<std::unique_ptr<SoundDevice>(int preferredRate)>;

    virtual ~SoundDevice() = default;

    virtual int sampleRate() const = 0;
    virtual int channels() const = 0;

    /// Starts reading and playing samples from the source. Returns false if that fails.
    [[nodiscard]] virtual bool start(QIODevice* source) = 0;
    /// Silences the sound at once and discards samples that were read.
    virtual void stop() = 0;

    /// True while sound is played, or will be as soon as the source provides more. Systems do not
    /// always report that a device is gone: then this stays true, and heardSeconds() stands still.
    virtual bool isRunning() const = 0;

    /// How much of the source has been heard since start(), in seconds. Poll it often for accuracy:
    /// the value is extrapolated between the blocks that the device takes.
    virtual double heardSeconds() = 0;

    /// From 0 to 1.
    virtual void setVolume(qreal volume) = 0;

    /// The system's default device; null if there is none.
    [[nodiscard]] static std::unique_ptr<SoundDevice> openDefault(int preferredRate);

    /// For tests: replaces openDefault() in all players that have not played any sound yet.
    static void setFactory(Factory factory);
    static Factory factory();
};

} // namespace QtAV
