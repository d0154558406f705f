#pragma once

#include <functional>

/// Work that the user has to wait for, without a window that looks dead. User-interface thread
/// only.
namespace ResponsiveWait {

/// Carries the work out in another thread, and returns when it is done. Meanwhile windows are
/// painted and videos play; what the user types or clicks comes afterwards. The work must not
/// throw. Where the system gives no thread, it is carried out in the calling one.
void run(const std::function<void()>& work);

} // namespace ResponsiveWait
