#pragma once

namespace QtAV {

/// How much the video library writes to the message log, from nothing to everything. Each level
/// includes the ones before it.
enum LogLevel {
    LogOff,
    LogFatal,
    LogCritical,
    LogWarning,
    LogDebug,
    LogAll,
};

/// Sets the level for the whole process, including FFmpeg. Messages go to Qt's message log. The
/// initial level is LogWarning. May be called from any thread.
void setLogLevel(LogLevel level);

/// The level that setLogLevel() set last.
LogLevel logLevel();

/// Returns freed small blocks of memory to the system. Call it once after much memory was freed; it
/// takes some milliseconds. Does nothing if the C library does not support it. May be called from
/// any thread.
void trimFreedMemory();

} // namespace QtAV
