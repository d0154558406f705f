#pragma once

namespace stills {

/// Ctrl+C and requests to end, as flags that the work polls. Process-wide.
namespace Interruption {

/// Makes SIGINT, SIGTERM and SIGHUP set the flag; a second one of the same kind ends the process at
/// once. Ignored signals stay ignored, as nohup requires. Writing to a closed pipe or beyond a size
/// limit becomes an error instead of a signal.
void install();

/// The signal received; 0 for none. From any thread.
[[nodiscard]] int signalNumber();

} // namespace Interruption

} // namespace stills
