// The message box of macOS: AppKit's NSAlert, called through the Objective-C runtime, so that the
// project needs no Objective-C compiler.

#include "ui/BoxerButtons.h"
#include "ui/boxer.h"

#include <objc/message.h>
#include <objc/objc.h>
#include <objc/runtime.h>

#include <cstddef>
#include <vector>

// Exported by the runtime, but declared in none of its headers.
extern "C" void* objc_autoreleasePoolPush(void);
extern "C" void objc_autoreleasePoolPop(void* pool);

namespace {

// AppKit's and Foundation's types and values, which only their Objective-C headers declare.
using NSInteger = long;
using NSUInteger = unsigned long;

constexpr NSUInteger alertStyleWarning = 0;
constexpr NSUInteger alertStyleInformational = 1;
constexpr NSUInteger alertStyleCritical = 2;
constexpr NSInteger modalPanelWindowLevel = 8;
constexpr NSInteger alertFirstButtonReturn = 1000;

/// Releases the strings created during its lifetime: before the event loop runs, nothing else does.
class AutoreleasePool
{
public:
    AutoreleasePool()
        : m_pool(objc_autoreleasePoolPush())
    {}
    ~AutoreleasePool() { objc_autoreleasePoolPop(m_pool); }
    AutoreleasePool(const AutoreleasePool&) = delete;
    AutoreleasePool& operator=(const AutoreleasePool&) = delete;

private:
    void* m_pool;
};

/// Sends a message. The runtime requires a call with the exact types of the method, so these must
/// match the method's declaration.
template <typename Result, typename... Arguments>
Result send(id receiver, const char* selector, Arguments... arguments)
{
    using Method = Result (*)(id, SEL, Arguments...);
    return reinterpret_cast<Method>(objc_msgSend)(receiver, sel_registerName(selector),
                                                  arguments...);
}

id classNamed(const char* name)
{
    // A class receives messages like any other object.
    return reinterpret_cast<id>(objc_getClass(name));
}

id makeString(const char* text)
{
    const id stringClass = classNamed("NSString");
    const auto encoding = send<NSUInteger>(stringClass, "defaultCStringEncoding");
    return send<id>(stringClass, "stringWithCString:encoding:", text, encoding);
}

NSUInteger alertStyle(boxer::Style style)
{
    switch (style) {
    case boxer::Style::Info:
        return alertStyleInformational;
    case boxer::Style::Warning:
    case boxer::Style::Question:
        return alertStyleWarning;
    case boxer::Style::Error:
        return alertStyleCritical;
    }
    return alertStyleInformational;
}

boxer::Selection selectionFor(NSInteger response, const std::vector<BoxerButtons::Button>& buttons)
{
    const NSInteger index = response - alertFirstButtonReturn;
    if (index < 0 || index >= static_cast<NSInteger>(buttons.size())) {
        return boxer::Selection::None;
    }
    return buttons[static_cast<std::size_t>(index)].selection;
}

} // namespace

boxer::Selection boxer::show(const char* message, const char* title, Style style, Buttons buttons)
{
    const AutoreleasePool pool;
    const auto shownButtons = BoxerButtons::of(buttons);

    const id alert = send<id>(send<id>(classNamed("NSAlert"), "alloc"), "init");
    send<void>(alert, "setMessageText:", makeString(title));
    send<void>(alert, "setInformativeText:", makeString(message));
    send<void>(alert, "setAlertStyle:", alertStyle(style));
    for (const auto& button : shownButtons) {
        send<id>(alert, "addButtonWithTitle:", makeString(button.title));
    }
    // Above all windows of the program, so that it cannot be missed.
    send<void>(send<id>(alert, "window"), "setLevel:", modalPanelWindowLevel);

    const auto response = send<NSInteger>(alert, "runModal");
    send<void>(alert, "release");
    return selectionFor(response, shownButtons);
}
