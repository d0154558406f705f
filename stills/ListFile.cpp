#include "stills/ListFile.h"

#include "stills/Interruption.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace stills {

namespace {

using Clock = std::chrono::steady_clock;
using Text = Result<std::string>;

/// Polling interval for a pipe without a writer.
constexpr std::chrono::milliseconds lookInterval{20};
/// Polling interval for signals.
constexpr std::chrono::duration<int, std::milli> signalInterval{50};

Text failure()
{
    return Text::failure(std::string("cannot be read: ") + std::strerror(errno));
}

/// A file that is closed by the destructor, unless it is standard input.
class Input
{
public:
    explicit Input(const std::string& path)
        : m_isOwn(path != "-")
        // O_NONBLOCK, because opening a pipe without a writer would block.
        , m_file(m_isOwn ? ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC) : STDIN_FILENO)
    {}
    ~Input()
    {
        if (m_isOwn && m_file >= 0) {
            ::close(m_file);
        }
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    [[nodiscard]] int file() const { return m_file; }
    [[nodiscard]] bool is(mode_t kind) const
    {
        struct stat facts = {};
        return ::fstat(m_file, &facts) == 0 && (facts.st_mode & S_IFMT) == kind;
    }

private:
    const bool m_isOwn;
    const int m_file;
};

/// Waits until reading does not block, or a signal arrives. Failures are left to the reading.
void waitForData(int file)
{
    int count = 0;
    while (count == 0 && Interruption::signalNumber() == 0) {
        pollfd question{file, POLLIN, 0};
        count = ::poll(&question, 1, signalInterval.count());
    }
}

} // namespace

Text readList(const std::string& path, std::chrono::milliseconds patience, std::size_t longest)
{
    const Input input(path);
    if (input.file() < 0) {
        return failure();
    }
    if (input.is(S_IFDIR)) {
        return Text::failure("is a folder; --files-from takes a list of videos");
    }
    bool awaitsWriter = path != "-" && input.is(S_IFIFO);
    const Clock::time_point end = Clock::now() + patience;
    std::string content;
    std::array<char, 65536> buffer{};
    while (content.size() <= longest) {
        if (!awaitsWriter) {
            waitForData(input.file());
        }
        if (Interruption::signalNumber() != 0) {
            return Text::failure("cannot be read: interrupted");
        }
        const ssize_t count = ::read(input.file(), buffer.data(), buffer.size());
        if (count > 0) {
            content.append(buffer.data(), static_cast<std::size_t>(count));
            awaitsWriter = false;
        } else if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
            awaitsWriter = awaitsWriter && errno == EINTR;
        } else if (count < 0) {
            return failure();
        } else if (count == 0 && !awaitsWriter) {
            return Text::of(std::move(content));
        } else if (count == 0 && Clock::now() >= end) {
            return Text::failure("cannot be read: nobody writes into this pipe");
        } else {
            std::this_thread::sleep_for(lookInterval);
        }
    }
    return Text::failure("is too long for a list of videos");
}

} // namespace stills
