#pragma once

#include "qtav/player/SoundState.h"

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace QtAV {

/// A SoundWorker on a thread of its own, that nobody ever waits for without limit.
///
/// Systems may hold up who starts, stops or asks a device, and for ever: where a device goes away,
/// or the sound server does not answer, just while a stream is being made. Such a thread is left
/// behind. It owns all that it uses, and ends by itself once it is let go.
class SoundThread
{
public:
    /// How long a worker may take for what is wished; a small part of it where the device works.
    static constexpr std::chrono::milliseconds longestWork{2000};

    /// How many threads there may be at a time in the process, with those that were left behind.
    static constexpr int maximumCount = 8;

    /// Starts it. It takes the way to make devices from SoundDevice::factory() now.
    /// @param wish  what is wished at first.
    explicit SoundThread(const SoundState::Wish& wish);
    /// Tells the worker that it is over and waits, until it has been held up for longestWork.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    SoundState& state() const { return *m_state; }

    bool isHeldUp() const { return m_state->behindFor() >= longestWork; }

    /// How many there are at this moment in the process.
    static int count();

private:
    const std::shared_ptr<SoundState> m_state; ///< shared with the thread
    std::future<void> m_ended;
    std::thread m_thread;
};

} // namespace QtAV
