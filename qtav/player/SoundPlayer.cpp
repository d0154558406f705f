#include "qtav/player/SoundPlayer.h"

#include "qtav/src/FFmpegLog.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace QtAV {

namespace {

#ifdef __GLIBC__
/// Sound libraries clean up at the end of the process. They abort, or wait for ever, where a thread
/// was left behind in one of their functions. What the program itself has to do is done by then.
void endWithoutCleanup(int status, void*)
{
    if (SoundWorker::count() == 0) {
        return;
    }
    std::fflush(nullptr);
    std::_Exit(status);
}
#endif

/// The thread deletes its object when it ends, which may be never.
void leaveBehind(std::unique_ptr<QThread> thread)
{
    qCWarning(lcQtAV, "The sound device does not answer; it is not waited for.");
#ifdef __GLIBC__
    // Each time anew: it must come before what the library has registered in the meantime.
    on_exit(&endWithoutCleanup, nullptr);
#endif
    static_cast<void>(thread.release());
}

} // namespace

SoundPlayer::~SoundPlayer()
{
    endThread();
}

void SoundPlayer::ensureThread()
{
    const bool isBlocked = m_worker && m_worker->busyFor() >= SoundWorker::longestWork;
    if ((m_worker && !isBlocked) || SoundWorker::count() >= maximumThreads) {
        return;
    }
    endThread();
    m_thread = std::make_unique<QThread>();
    auto worker = std::make_unique<SoundWorker>(SoundDevice::factory());
    m_worker = worker.get();
    m_worker->moveToThread(m_thread.get());
    QObject::connect(m_thread.get(), &QThread::finished, worker.release(), &QObject::deleteLater);
    // For a thread that is left behind; one that is waited for is deleted before.
    QObject::connect(m_thread.get(), &QThread::finished, m_thread.get(), &QObject::deleteLater);
    m_thread->start();
}

void SoundPlayer::endThread()
{
    if (!m_thread) {
        return;
    }
    const auto patience = SoundWorker::longestWork - m_worker->busyFor();
    m_worker = nullptr;
    m_thread->requestInterruption();
    m_thread->quit();
    const QDeadlineTimer deadline(std::max(patience, std::chrono::milliseconds(0)));
    if (!m_thread->wait(deadline)) {
        leaveBehind(std::move(m_thread));
    }
    m_thread.reset();
}

void SoundPlayer::sendRequest()
{
    if (m_worker) {
        m_worker->setRequest(m_request);
    }
}

void SoundPlayer::open(const QString& path)
{
    m_request.path = path;
    ensureThread();
    sendRequest();
}

void SoundPlayer::close()
{
    m_request.path.clear();
    m_request.plays = false;
    ++m_request.serial;
    sendRequest();
}

void SoundPlayer::play(double seconds, double speed)
{
    m_request.plays = true;
    m_request.from = seconds;
    m_request.speed = speed;
    ++m_request.serial;
    ensureThread();
    sendRequest();
}

void SoundPlayer::pause()
{
    m_request.plays = false;
    ++m_request.serial;
    sendRequest();
}

void SoundPlayer::setVolume(qreal volume)
{
    m_request.volume = volume;
    sendRequest();
}

std::optional<double> SoundPlayer::position() const
{
    return m_worker ? m_worker->heardSeconds() : std::nullopt;
}

} // namespace QtAV
