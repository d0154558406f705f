#include "tests/ui/objcruntime/RecordingRuntime.h"

#include <cstdint>
#include <memory>
#include <vector>

// <objc/message.h> is left out: it declares objc_msgSend without the parameters that it has. Like
// the real one it is called through pointers of many types, which works since all arguments are
// machine words, passed alike. Those that a message lacks are not looked at.

namespace {

using Word = std::uintptr_t;

constexpr Word MacRomanEncoding = 30;

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

QString nameOf(Word object)
{
    return object == 0 ? QStringLiteral("nil") : reinterpret_cast<const Named*>(object)->name;
}

Word wordOf(const Named* object)
{
    return reinterpret_cast<Word>(object);
}

QString quoted(const char* text)
{
    return QLatin1Char('"') + QString::fromUtf8(text) + QLatin1Char('"');
}

Word makeString(Word text, Word encoding)
{
    const QString name = quoted(reinterpret_cast<const char*>(text));
    runtime().journal +=
        QStringLiteral("NSString stringWithCString:%1 encoding:%2").arg(name).arg(encoding);
    return wordOf(make(name));
}

/// Messages without an argument.
Word answer(Word receiver, const QString& selector)
{
    runtime().journal += nameOf(receiver) + QLatin1Char(' ') + selector;
    if (selector == QLatin1String("alloc")) {
        return wordOf(make(QStringLiteral("alert")));
    }
    if (selector == QLatin1String("init")) {
        return receiver;
    }
    if (selector == QLatin1String("window")) {
        return wordOf(make(QStringLiteral("window")));
    }
    if (selector == QLatin1String("defaultCStringEncoding")) {
        return MacRomanEncoding;
    }
    if (selector == QLatin1String("runModal")) {
        return static_cast<Word>(runtime().modalResponse);
    }
    return 0;
}

/// Messages with one argument: an object for texts and titles, a number for the others.
Word answer(Word receiver, const QString& selector, Word argument)
{
    const bool takesObject =
        selector.endsWith(QLatin1String("Text:")) || selector.endsWith(QLatin1String("Title:"));
    runtime().journal += nameOf(receiver) + QLatin1Char(' ') + selector +
                         (takesObject ? nameOf(argument) : QString::number(argument));
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

Word objc_msgSend(Word receiver, Word selector, Word first, Word second)
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
