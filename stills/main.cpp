// The command `stills`. It parses its arguments before it loads any large library, so that help and
// mistakes are answered at once; a module beside it does the work.

#include "app/StandardStreams.h"
#include "stills/CommandLineParser.h"
#include "stills/StillsModule.h"

#include <climits>
#include <cstdio>
#include <dlfcn.h>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int wrongUsage = 2;
constexpr int failure = 1;

/// The folder of this program's file, with a slash at its end.
std::string ownFolder()
{
    std::string path(PATH_MAX, '\0');
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
    path.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return path.substr(0, path.rfind('/') + 1);
}

/// Loads the module: next to the program if it was just built, otherwise from where it is
/// installed.
stills::ModuleEntry loadModule()
{
    // Lazy binding, because a run calls few of the libraries' functions.
    for (const char* const place : {MORVANTILE_BUILT_MODULE, MORVANTILE_INSTALLED_MODULE}) {
        void* const module = ::dlopen((ownFolder() + place).c_str(), RTLD_LAZY | RTLD_LOCAL);
        if (module != nullptr) {
            return reinterpret_cast<stills::ModuleEntry>(::dlsym(module, stills::moduleEntryName));
        }
    }
    return nullptr;
}

int run(const stills::Options& options)
{
    const stills::ModuleEntry entry = loadModule();
    if (entry == nullptr) {
        const char* const reason = ::dlerror();
        std::fprintf(stderr, "stills: cannot be started: %s\n",
                     reason != nullptr ? reason : "its module has no entry");
        return failure;
    }
    return entry(options);
}

/// A picture that waits for its turn is an open file. Does nothing if the system refuses.
void allowManyFiles()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        static_cast<void>(::setrlimit(RLIMIT_NOFILE, &limit));
    }
}

int print(const std::string& text)
{
    const bool isWritten =
        std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    return isWritten ? 0 : failure;
}

} // namespace

int main(int argc, char** argv)
{
    if (!StandardStreams::fillGaps()) {
        return failure;
    }
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const stills::CommandLine line = stills::parseCommandLine(arguments);
    switch (line.wants) {
    case stills::CommandLine::Wants::Run:
        allowManyFiles();
        return run(line.options);
    case stills::CommandLine::Wants::Print:
        return print(line.text);
    case stills::CommandLine::Wants::Error:
        break;
    }
    std::fprintf(stderr, "stills: %s\n", line.text.c_str());
    return wrongUsage;
}
