#include "app/StandardStreams.h"

#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <unistd.h>

namespace {

bool isClosed(int stream)
{
    return ::fcntl(stream, F_GETFD) < 0 && errno == EBADF;
}

/// Opened the wrong way round, so that its use fails as if it were closed.
bool occupy(int stream)
{
    const int access = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    return ::open("/dev/null", access) == stream; // the smallest free number
}

} // namespace

bool StandardStreams::fillGaps()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (isClosed(stream) && !occupy(stream)) {
            return false;
        }
    }
    return true;
}
