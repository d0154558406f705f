#include "stills/OutputStream.h"

#include <cerrno>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace stills {

bool OutputStream::write(const QByteArray& content)
{
    for (int written = 0; written < content.size() && !m_hasFailed;) {
        const ssize_t count = ::write(m_descriptor, content.constData() + written,
                                      static_cast<size_t>(content.size() - written));
        if (count > 0) {
            written += static_cast<int>(count);
        } else if (count < 0 && errno == EAGAIN) {
            // Another program made the terminal or pipe non-blocking.
            pollfd state{m_descriptor, POLLOUT, 0};
            ::poll(&state, 1, -1);
        } else if (count == 0 || errno != EINTR) {
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
