#pragma once

#include <QIODevice>

#include <functional>
#include <memory>

namespace QtAV {

/// What sound comes out of. Made, used and deleted on one thread, which has an event loop.
class SoundDevice
{
public:
    using Factory = std::function<std::unique_ptr<SoundDevice>(int preferredRate)>;

    virtual ~SoundDevice() = default;

    virtual int sampleRate() const = 0;
    virtual int channels() const = 0;

    /// Reads samples from the source from now on and plays them. False when that cannot begin.
    [[nodiscard]] virtual bool start(QIODevice* source) = 0;
    /// Falls silent at once and forgets what it has read.
    virtual void stop() = 0;

    /// True while sound comes out, or comes again as soon as the source gives more. Systems do not
    /// always tell that a device is gone: then it stays true, and heardSeconds() stands still.
    virtual bool isRunning() const = 0;

    /// How much of the source has been heard since start(), in seconds. To be asked often: between
    /// two blocks that the device takes, that is an estimate from what it was before.
    virtual double heardSeconds() = 0;

    /// From 0 to 1.
    virtual void setVolume(qreal volume) = 0;

    /// The system's standard device; null where there is none.
    [[nodiscard]] static std::unique_ptr<SoundDevice> openDefault(int preferredRate);

    /// Replaces openDefault() in all players that have not played any sound yet; for tests.
    static void setFactory(Factory factory);
    static Factory factory();
};

} // namespace QtAV
