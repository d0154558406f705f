#include "stills/Interruption.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

namespace stills {

namespace {

// A signal handler can only store its number globally.
std::atomic<int> receivedSignal{0};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may not wait");

extern "C" void noteSignal(int number)
{
    receivedSignal.store(number);
}

void handle(int number)
{
    struct sigaction before = {};
    if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN) {
        return;
    }
    struct sigaction action = {};
    action.sa_handler = noteSignal;
    // Without SA_RESTART, so that calls that wait in this thread return; those in other threads
    // poll the flag.
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    ::sigaction(number, &action, nullptr);
}

} // namespace

void Interruption::install()
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        handle(number);
    }
    // Writing beyond a limit becomes an error, too.
    for (const int number : {SIGPIPE, SIGXFSZ}) {
        static_cast<void>(std::signal(number, SIG_IGN));
    }
}

int Interruption::signalNumber()
{
    return receivedSignal.load();
}

} // namespace stills
