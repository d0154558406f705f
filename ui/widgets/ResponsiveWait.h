#pragma once

#include <functional>

/// Runs work that the user has to wait for without blocking the windows. User-interface thread
/// only.
namespace ResponsiveWait {

/// Runs the work in another thread, and returns when it is done. Meanwhile windows are painted and
/// videos play; user input is processed afterwards. The work must not throw. If the system provides
/// no thread, it runs in the calling one.
void run(const std::function<void()>& work);

} // namespace ResponsiveWait
