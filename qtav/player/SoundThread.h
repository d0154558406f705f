#pragma once

#include "qtav/player/SoundState.h"

#include <chrono>
#include <future>
#include <memory>
#include <thread>

namespace QtAV {

/// A SoundWorker on its own thread, for which no other thread ever waits without limit.
///
/// Starting, stopping or querying a device can block forever: for example if the device goes away,
/// or the sound server does not answer while a stream is being created. Such a thread is abandoned.
/// It owns everything that it uses, and ends by itself once it is unblocked.
class SoundThread
{
public:
    /// Maximum time a worker may take for a request; a working device needs only a fraction of it.
    static constexpr std::chrono::milliseconds LongestWork{2000};

    /// Maximum number of threads in the process, including abandoned ones.
    static constexpr int Most = 8;

    /// Starts the thread, with the device factory that SoundDevice::factory() returns now.
    /// @param wish  the first request.
    explicit SoundThread(const SoundState::Wish& wish);
    /// Ends the worker and waits for it, until it has been blocked for LongestWork.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    SoundState& state() const { return *m_state; }

    bool isHeldUp() const { return m_state->behindFor() >= LongestWork; }

    /// Current number of these threads in the process.
    static int count();

private:
    const std::shared_ptr<SoundState> m_state; ///< shared with the thread
    std::future<void> m_ended;
    std::thread m_thread;
};

} // namespace QtAV
