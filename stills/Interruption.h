#pragma once

namespace stills {

/// Ctrl+C and the request to end, as flags that the work looks at. Process-wide.
namespace Interruption {

/// From now on SIGINT, SIGTERM and SIGHUP set the flag; a second one of the same kind ends the
/// process at once. Signals that were ignored stay so, as nohup wants it. Writing to a closed pipe
/// or beyond a size limit becomes an error instead of a signal.
void install();

/// The signal that came; 0 for none. From any thread.
[[nodiscard]] int signalNumber();

} // namespace Interruption

} // namespace stills
