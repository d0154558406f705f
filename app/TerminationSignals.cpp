#include "app/TerminationSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int caught[] = {SIGTERM, SIGINT, SIGHUP};

/// The pipe that signal handlers write to; they have no other context.
std::atomic<int> writeEnd{-1};

void restore()
{
    for (const int number : caught) {
        std::signal(number, SIG_DFL);
    }
}

/// Uses only what POSIX allows in a handler.
extern "C" void noteSignal(int number)
{
    const int savedError = errno;
    std::signal(number, SIG_DFL);
    const char byte = 0;
    static_cast<void>(!::write(writeEnd.load(), &byte, 1));
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> end, QObject* parent)
    : QObject(parent)
    , m_end(std::move(end))
{
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    writeEnd = m_pipe[1];
    m_notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::answer);
    for (const int number : caught) {
        // A signal that the parent ignores, as with nohup, stays ignored.
        if (std::signal(number, noteSignal) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
}

TerminationSignals::~TerminationSignals()
{
    if (!isListening()) {
        return;
    }
    restore();
    writeEnd = -1;
    ::close(m_pipe[0]);
    ::close(m_pipe[1]);
}

void TerminationSignals::answer()
{
    m_notifier->setEnabled(false);
    // A further signal of any kind ends the program at once.
    restore();
    m_end();
}
