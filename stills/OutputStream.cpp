#include "stills/OutputStream.h"

#include "stills/Interruption.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <limits>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace stills {

namespace {

/// How often a stream without room checks for signals, which may arrive in other threads.
constexpr int lookMs = 50;
/// How long a reader may pause after a signal.
constexpr int farewellMs = 500;

bool isRegularFile(int descriptor)
{
    struct stat facts = {};
    return ::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode);
}

} // namespace

/// A larger write to a pipe blocks until its last byte fits, and no signal to another thread ends
/// it.
OutputStream::OutputStream(int descriptor)
    : m_descriptor(descriptor)
    , m_largestWrite(isRegularFile(descriptor) ? std::numeric_limits<int>::max() : PIPE_BUF)
{}

/// False if there is none after a signal. Failures are left to the writing.
bool OutputStream::waitForRoom() const
{
    for (;;) {
        const bool isInterrupted = Interruption::signalNumber() != 0;
        pollfd state{m_descriptor, POLLOUT, 0};
        const int count = ::poll(&state, 1, isInterrupted ? farewellMs : lookMs);
        if (count > 0 || (count < 0 && errno != EINTR)) {
            return true;
        }
        if (count == 0 && isInterrupted) {
            return false;
        }
    }
}

bool OutputStream::write(const QByteArray& content)
{
    for (qint64 written = 0; written < content.size() && !m_hasFailed;) {
        if (!waitForRoom()) {
            m_hasFailed = true;
            break;
        }
        const qint64 left = content.size() - written;
        const ssize_t count = ::write(m_descriptor, content.constData() + written,
                                      static_cast<size_t>(std::min(left, m_largestWrite)));
        if (count > 0) {
            written += count;
        } else if (count == 0 || (errno != EINTR && errno != EAGAIN)) {
            // EAGAIN: another program made the terminal or pipe non-blocking.
            m_hasFailed = true;
        }
    }
    return !m_hasFailed;
}

bool OutputStream::isTerminal() const
{
    return ::isatty(m_descriptor) == 1;
}

int OutputStream::columns() const
{
    constexpr int usual = 80;
    winsize size{};
    const bool isKnown = ::ioctl(m_descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? int(size.ws_col) : usual;
}

} // namespace stills
