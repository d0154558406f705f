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

} // namespace QtAV
