#include "tests/ui/objcruntime/RecordingRuntime.h"

#include <cstdint>
#include <memory>
#include <vector>

// <objc/message.h> is not included because it declares objc_msgSend without its parameters. Like
// the real function, it is called through pointers of many types. That works because all arguments
// and results are pointers or integers of the same size, passed in the same way. Superfluous
// parameters are ignored.

namespace {

/// An argument: a pointer, or a number in its place.
using Argument = const void*;
/// A result: a number, or a pointer in its place.
using Result = std::uintptr_t;

constexpr Result macRomanEncoding = 30;

/// An object, a class or a selector: something with a name.
struct Named
{
    QString name;
};

struct Runtime
{
    QStringList journal;
    std::vector<std::unique_ptr<Named>> made;
    long modalResponse = 0;
};

Runtime& runtime()
{
    static Runtime theRuntime;
    return theRuntime;
}

Named* make(const QString& name)
{
    return runtime().made.emplace_back(std::make_unique<Named>(Named{name})).get();
}

QString nameOf(Argument object)
{
    return object == nullptr ? QStringLiteral("nil") : static_cast<const Named*>(object)->name;
}

std::uintptr_t number(Argument argument)
{
    return reinterpret_cast<std::uintptr_t>(argument);
}

Result pointer(Argument object)
{
    return reinterpret_cast<Result>(object);
}

QString quoted(const char* text)
{
    return QLatin1Char('"') + QString::fromUtf8(text) + QLatin1Char('"');
}

Result makeString(Argument text, Argument encoding)
{
    const QString name = quoted(static_cast<const char*>(text));
    runtime().journal +=
        QStringLiteral("NSString stringWithCString:%1 encoding:%2").arg(name).arg(number(encoding));
    return pointer(make(name));
}

/// Messages without arguments.
Result answer(Argument receiver, const QString& selector)
{
    runtime().journal += nameOf(receiver) + QLatin1Char(' ') + selector;
    if (selector == QLatin1String("alloc")) {
        return pointer(make(QStringLiteral("alert")));
    }
    if (selector == QLatin1String("init")) {
        return pointer(receiver);
    }
    if (selector == QLatin1String("window")) {
        return pointer(make(QStringLiteral("window")));
    }
    if (selector == QLatin1String("defaultCStringEncoding")) {
        return macRomanEncoding;
    }
    if (selector == QLatin1String("runModal")) {
        return static_cast<Result>(runtime().modalResponse);
    }
    return 0;
}

/// Messages with one argument: an object for texts and titles, otherwise a number.
Result answer(Argument receiver, const QString& selector, Argument argument)
{
    const bool takesObject =
        selector.endsWith(QLatin1String("Text:")) || selector.endsWith(QLatin1String("Title:"));
    runtime().journal += nameOf(receiver) + QLatin1Char(' ') + selector +
                         (takesObject ? nameOf(argument) : QString::number(number(argument)));
    return 0;
}

} // namespace

void RecordingRuntime::reset(long modalResponse)
{
    runtime() = Runtime();
    runtime().modalResponse = modalResponse;
}

QStringList RecordingRuntime::journal()
{
    return runtime().journal;
}

extern "C" {

void* objc_autoreleasePoolPush()
{
    runtime().journal += QStringLiteral("push pool");
    return &runtime();
}

void objc_autoreleasePoolPop(void* pool)
{
    runtime().journal +=
        pool == &runtime() ? QStringLiteral("pop pool") : QStringLiteral("pop unknown pool");
}

void* objc_getClass(const char* name)
{
    return make(QString::fromLatin1(name));
}

void* sel_registerName(const char* name)
{
    return make(QString::fromLatin1(name));
}

Result objc_msgSend(Argument receiver, Argument selector, Argument first, Argument second)
{
    const QString name = nameOf(selector);
    switch (name.count(QLatin1Char(':'))) {
    case 0:
        return answer(receiver, name);
    case 1:
        return answer(receiver, name, first);
    default:
        return makeString(first, second);
    }
}

} // extern "C"
