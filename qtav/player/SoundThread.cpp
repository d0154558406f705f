#include "qtav/player/SoundThread.h"

#include "qtav/player/SoundWorker.h"
#include "qtav/src/FFmpegLog.h"

#include <QScopeGuard>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace QtAV {

namespace {

std::atomic<int> threadCount{0};

#ifdef __GLIBC__
/// Sound libraries clean up when the process ends, and crash or wait forever if a thread was
/// abandoned in one of their functions. The program's own cleanup is done by then.
void endWithoutTidying(int status, void*)
{
    if (threadCount == 0)
        return;
    std::fflush(nullptr);
    std::_Exit(status);
}
#endif

void leaveBehind(std::thread& thread)
{
    qCWarning(lcQtAV, "The sound device does not answer; it is not waited for.");
#ifdef __GLIBC__
    // Registered each time because it must run before what the library has registered in the
    // meantime.
    on_exit(&endWithoutTidying, nullptr);
#endif
    thread.detach();
}

} // namespace

SoundThread::SoundThread(const SoundState::Wish& wish)
    : m_state(std::make_shared<SoundState>(wish))
{
    std::packaged_task<void()> task([state = m_state, makeDevice = SoundDevice::factory()] {
        const auto uncount = qScopeGuard([] { --threadCount; });
        SoundWorker(*state, makeDevice).run();
    });
    m_ended = task.get_future();
    ++threadCount;
    m_thread = std::thread(std::move(task));
}

SoundThread::~SoundThread()
{
    m_state->end();
    const auto patience = LongestWork - m_state->behindFor();
    if (m_ended.wait_for(std::max(patience, std::chrono::milliseconds(0))) ==
        std::future_status::ready)
        m_thread.join();
    else
        leaveBehind(m_thread);
}

int SoundThread::count()
{
    return threadCount;
}

} // namespace QtAV
