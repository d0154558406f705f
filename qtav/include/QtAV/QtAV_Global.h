#pragma once

namespace QtAV {

/// How much the video library writes to the message log, from nothing to everything.
/// Each level includes the ones before it.
enum LogLevel {
    LogOff,
    LogFatal,
    LogCritical,
    LogWarning,
    LogDebug,
    LogAll,
};

/// Sets the level for the whole process, the decoding library underneath included.
/// Its lines go to Qt's message log. The level at start is LogWarning.
/// May be called from any thread.
void setLogLevel(LogLevel level);

/// The level that setLogLevel() set last.
LogLevel logLevel();

/// Gives what has been freed in smaller blocks back to the system, once, after much was freed.
/// Takes some milliseconds; does nothing where the C library cannot be told. May be called from any
/// thread.
void trimFreedMemory();

} // namespace QtAV
