// A library that is loaded before all others (LD_PRELOAD) and makes a program's calls to the system
// fail, be short or slow, for files below one folder. The environment says which:
//
//   FAULTS_BELOW=/folder   what the rules are for; an absolute path without links
//   FAULTS=RULE;RULE…      each of settings with commas between them:
//       call=read|write|open|rename|fsync|close   which kind of call (see the table below),
//            list|stat|lock                       also to list a folder, to ask about a file or
//                                                 to lock it
//       error=ENOSPC                              with which error it fails
//       short=1                                   it does half of what it is to do instead
//       slow=50                                   it takes so many milliseconds longer
//       after=3                                   the first calls succeed
//       megabyte=2                                all calls succeed up to so much, read or written
//       times=1                                   how often it happens; 0, as usual, for ever
//       name=.part                                only for files with that in their names
//   FAULTS_LOG=/file       gets a line for each fault, so that a test sees that there was one
//
// It is no part of the product.

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <iterator>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum class Call { Read, Write, Open, Rename, Sync, Close, List, Stat, Lock };

struct Rule
{
    Call call = Call::Read;
    int error = 0;
    bool isShort = false;
    int slowMs = 0;
    long after = 0;
    long long bytes = 0;
    long times = 0;
    char name[64] = "";
    std::atomic<long> seen{0};
    std::atomic<long long> moved{0};
    std::atomic<long> struck{0};
};

struct Word
{
    const char* name;
    int value;
};

constexpr Word calls[] = {
    {"read", int(Call::Read)},     {"write", int(Call::Write)}, {"open", int(Call::Open)},
    {"rename", int(Call::Rename)}, {"fsync", int(Call::Sync)},  {"close", int(Call::Close)},
    {"list", int(Call::List)},     {"stat", int(Call::Stat)},   {"lock", int(Call::Lock)}};
constexpr Word errors[] = {{"EIO", EIO},       {"ENOSPC", ENOSPC}, {"EDQUOT", EDQUOT},
                           {"EACCES", EACCES}, {"EROFS", EROFS},   {"EMFILE", EMFILE},
                           {"ENOENT", ENOENT}, {"EINTR", EINTR},   {"ENOMEM", ENOMEM}};

constexpr int mostRules = 8;
Rule rules[mostRules];
int ruleCount = 0;
char below[PATH_MAX] = "";
int logFile = -1;

int valueOf(const Word* words, std::size_t count, const char* name)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (std::strcmp(words[i].name, name) == 0) {
            return words[i].value;
        }
    }
    std::fprintf(stderr, "faults: unknown word %s\n", name);
    std::abort();
}

void set(Rule& rule, const char* key, const char* value)
{
    const auto is = [key](const char* name) { return std::strcmp(key, name) == 0; };
    if (is("call")) {
        rule.call = static_cast<Call>(valueOf(calls, std::size(calls), value));
    } else if (is("error")) {
        rule.error = valueOf(errors, std::size(errors), value);
    } else if (is("short")) {
        rule.isShort = true;
    } else if (is("slow")) {
        rule.slowMs = std::atoi(value);
    } else if (is("after")) {
        rule.after = std::atol(value);
    } else if (is("megabyte")) {
        rule.bytes = std::atoll(value) * 1000000;
    } else if (is("times")) {
        rule.times = std::atol(value);
    } else if (is("name")) {
        std::snprintf(rule.name, sizeof rule.name, "%s", value);
    } else {
        std::fprintf(stderr, "faults: unknown setting %s\n", key);
        std::abort();
    }
}

void readRules(const char* text)
{
    char copy[1024];
    std::snprintf(copy, sizeof copy, "%s", text);
    char* nextRule = nullptr;
    for (char* rule = strtok_r(copy, ";", &nextRule); rule != nullptr && ruleCount < mostRules;
         rule = strtok_r(nullptr, ";", &nextRule)) {
        char* nextSetting = nullptr;
        for (char* setting = strtok_r(rule, ",", &nextSetting); setting != nullptr;
             setting = strtok_r(nullptr, ",", &nextSetting)) {
            char* const value = std::strchr(setting, '=');
            if (value != nullptr) {
                *value = '\0';
            }
            set(rules[ruleCount], setting, value != nullptr ? value + 1 : "");
        }
        ++ruleCount;
    }
}

template <typename Function>
Function real(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

__attribute__((constructor)) void start()
{
    const char* const folder = std::getenv("FAULTS_BELOW");
    const char* const text = std::getenv("FAULTS");
    const char* const log = std::getenv("FAULTS_LOG");
    if (folder == nullptr || text == nullptr) {
        return;
    }
    std::snprintf(below, sizeof below, "%s", folder);
    readRules(text);
    if (log != nullptr) {
        using Open = int (*)(const char*, int, ...);
        logFile = real<Open>("open")(log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    }
}

bool isBelow(const char* path)
{
    const std::size_t length = std::strlen(below);
    return length > 0 && std::strncmp(path, below, length) == 0 &&
           (path[length] == '/' || path[length] == '\0');
}

/// The path of what is open under a number; false for what is no file.
bool pathOf(int file, char* path)
{
    char link[64];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = ::readlink(link, path, PATH_MAX - 1);
    path[length > 0 ? length : 0] = '\0';
    return length > 0 && path[0] == '/';
}

/// An absolute path as it is, a relative one behind the folder that it is relative to.
void makeAbsolute(int folder, const char* name, char* path)
{
    char base[PATH_MAX] = "";
    if (name[0] == '/') {
        std::snprintf(path, 2 * PATH_MAX, "%s", name);
        return;
    }
    if (folder == AT_FDCWD) {
        if (::getcwd(base, sizeof base) == nullptr) {
            base[0] = '\0';
        }
    } else {
        pathOf(folder, base);
    }
    std::snprintf(path, 2 * PATH_MAX, "%s/%s", base, name);
}

void note(const Rule& rule, const char* path)
{
    char line[2 * PATH_MAX + 64];
    const int length =
        std::snprintf(line, sizeof line, "%d %d %s\n", int(rule.call), rule.error, path);
    if (logFile >= 0 && length > 0) {
        using Write = ssize_t (*)(int, const void*, size_t);
        static_cast<void>(real<Write>("write")(logFile, line, static_cast<size_t>(length)));
    }
}

void sleepFor(int milliseconds)
{
    timespec time{milliseconds / 1000, (milliseconds % 1000) * 1000000L};
    ::nanosleep(&time, nullptr);
}

struct Strike
{
    bool fails = false;
    bool isShort = false;
};

/// What happens to a call that is to move so many bytes; sets errno where it fails.
Strike strike(Call call, const char* path, std::size_t bytes)
{
    Strike result;
    if (!isBelow(path)) {
        return result;
    }
    for (int i = 0; i < ruleCount; ++i) {
        Rule& rule = rules[i];
        if (rule.call != call ||
            (rule.name[0] != '\0' && std::strstr(path, rule.name) == nullptr)) {
            continue;
        }
        const bool isCounted = rule.seen++ < rule.after;
        rule.moved += static_cast<long long>(bytes);
        if (isCounted || rule.moved < rule.bytes) {
            continue;
        }
        if (rule.times > 0 && rule.struck >= rule.times) {
            continue;
        }
        ++rule.struck;
        note(rule, path);
        if (rule.slowMs > 0) {
            sleepFor(rule.slowMs);
        }
        result.isShort = result.isShort || rule.isShort;
        if (rule.error != 0) {
            errno = rule.error;
            result.fails = true;
            return result;
        }
    }
    return result;
}

Strike strikeFile(Call call, int file, std::size_t bytes)
{
    char path[PATH_MAX];
    const int before = errno;
    if (ruleCount == 0 || !pathOf(file, path)) {
        errno = before;
        return {};
    }
    errno = before;
    return strike(call, path, bytes);
}

Strike strikeName(Call call, int folder, const char* name)
{
    char path[2 * PATH_MAX];
    if (ruleCount == 0) {
        return {};
    }
    makeAbsolute(folder, name, path);
    return strike(call, path, 0);
}

std::size_t part(const Strike& strike, std::size_t bytes)
{
    return strike.isShort && bytes > 1 ? bytes / 2 : bytes;
}

std::size_t bytesIn(const iovec* parts, int count)
{
    std::size_t bytes = 0;
    for (int i = 0; i < count; ++i) {
        bytes += parts[i].iov_len;
    }
    return bytes;
}

mode_t modeIn(int flags, va_list& arguments)
{
    return (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

#define OPEN(name)                                                                                 \
    int name(const char* path, int flags, ...)                                                     \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeIn(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        if (strikeName(Call::Open, AT_FDCWD, path).fails) {                                        \
            return -1;                                                                             \
        }                                                                                          \
        return real<int (*)(const char*, int, ...)>(#name)(path, flags, mode);                     \
    }
OPEN(open)
OPEN(open64)

#define OPENAT(name)                                                                               \
    int name(int folder, const char* path, int flags, ...)                                         \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = modeIn(flags, arguments);                                              \
        va_end(arguments);                                                                         \
        if (strikeName(Call::Open, folder, path).fails) {                                          \
            return -1;                                                                             \
        }                                                                                          \
        return real<int (*)(int, const char*, int, ...)>(#name)(folder, path, flags, mode);        \
    }
OPENAT(openat)
OPENAT(openat64)

ssize_t read(int file, void* buffer, size_t bytes)
{
    const Strike strike = strikeFile(Call::Read, file, bytes);
    return strike.fails
               ? -1
               : real<ssize_t (*)(int, void*, size_t)>("read")(file, buffer, part(strike, bytes));
}

#define PREAD(name)                                                                                \
    ssize_t name(int file, void* buffer, size_t bytes, off_t offset)                               \
    {                                                                                              \
        const Strike strike = strikeFile(Call::Read, file, bytes);                                 \
        return strike.fails ? -1                                                                   \
                            : real<ssize_t (*)(int, void*, size_t, off_t)>(#name)(                 \
                                  file, buffer, part(strike, bytes), offset);                      \
    }
PREAD(pread)
PREAD(pread64)

#define PREADV2(name)                                                                              \
    ssize_t name(int file, const iovec* parts, int count, off_t offset, int flags)                 \
    {                                                                                              \
        /* What would have to wait for the disk is asked for otherwise afterwards. */              \
        if ((flags & RWF_NOWAIT) != 0 && ruleCount > 0) {                                          \
            errno = EAGAIN;                                                                        \
            return -1;                                                                             \
        }                                                                                          \
        if (strikeFile(Call::Read, file, bytesIn(parts, count)).fails) {                           \
            return -1;                                                                             \
        }                                                                                          \
        return real<ssize_t (*)(int, const iovec*, int, off_t, int)>(#name)(file, parts, count,    \
                                                                            offset, flags);        \
    }
PREADV2(preadv2)
PREADV2(preadv64v2)

ssize_t write(int file, const void* buffer, size_t bytes)
{
    const Strike strike = strikeFile(Call::Write, file, bytes);
    return strike.fails ? -1
                        : real<ssize_t (*)(int, const void*, size_t)>("write")(file, buffer,
                                                                               part(strike, bytes));
}

#define PWRITE(name)                                                                               \
    ssize_t name(int file, const void* buffer, size_t bytes, off_t offset)                         \
    {                                                                                              \
        const Strike strike = strikeFile(Call::Write, file, bytes);                                \
        return strike.fails ? -1                                                                   \
                            : real<ssize_t (*)(int, const void*, size_t, off_t)>(#name)(           \
                                  file, buffer, part(strike, bytes), offset);                      \
    }
PWRITE(pwrite)
PWRITE(pwrite64)

int rename(const char* from, const char* to)
{
    return strikeName(Call::Rename, AT_FDCWD, to).fails
               ? -1
               : real<int (*)(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
{
    return strikeName(Call::Rename, toFolder, to).fails
               ? -1
               : real<int (*)(int, const char*, int, const char*, unsigned)>("renameat2")(
                     fromFolder, from, toFolder, to, flags);
}

int link(const char* from, const char* to)
{
    return strikeName(Call::Rename, AT_FDCWD, to).fails
               ? -1
               : real<int (*)(const char*, const char*)>("link")(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags)
{
    return strikeName(Call::Rename, toFolder, to).fails
               ? -1
               : real<int (*)(int, const char*, int, const char*, int)>("linkat")(
                     fromFolder, from, toFolder, to, flags);
}

#define SYNC(name)                                                                                 \
    int name(int file)                                                                             \
    {                                                                                              \
        return strikeFile(Call::Sync, file, 0).fails ? -1 : real<int (*)(int)>(#name)(file);       \
    }
SYNC(fsync)
SYNC(fdatasync)

int flock(int file, int operation)
{
    return strikeFile(Call::Lock, file, 0).fails
               ? -1
               : real<int (*)(int, int)>("flock")(file, operation);
}

DIR* opendir(const char* path)
{
    return strikeName(Call::List, AT_FDCWD, path).fails
               ? nullptr
               : real<DIR* (*)(const char*)>("opendir")(path);
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* result)
{
    return strikeName(Call::Stat, folder, path).fails
               ? -1
               : real<int (*)(int, const char*, int, unsigned, struct statx*)>("statx")(
                     folder, path, flags, mask, result);
}

#define STAT(name, type)                                                                           \
    int name(const char* path, struct type* result)                                                \
    {                                                                                              \
        return strikeName(Call::Stat, AT_FDCWD, path).fails                                        \
                   ? -1                                                                            \
                   : real<int (*)(const char*, struct type*)>(#name)(path, result);                \
    }
STAT(stat, stat)
STAT(lstat, stat)
STAT(stat64, stat64)
STAT(lstat64, stat64)

int access(const char* path, int mode)
{
    return strikeName(Call::Stat, AT_FDCWD, path).fails
               ? -1
               : real<int (*)(const char*, int)>("access")(path, mode);
}

int close(int file)
{
    const Strike strike = strikeFile(Call::Close, file, 0);
    const int error = errno;
    // As on Linux, the file is closed all the same.
    const int result = real<int (*)(int)>("close")(file);
    if (strike.fails) {
        errno = error;
        return -1;
    }
    return result;
}

} // extern "C"
