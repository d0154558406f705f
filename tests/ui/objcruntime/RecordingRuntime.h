#pragma once

#include <QStringList>

/// Stands in for the Objective-C runtime with AppKit: it answers the messages of a message box and
/// keeps a journal of them. One test program, one thread.
namespace RecordingRuntime {

/// Empties the journal; the next alert ends with this response of `runModal`.
void reset(long modalResponse);

/// What was asked of the runtime, in order: a line as "alert setAlertStyle:1" for each message, and
/// "push pool" and "pop pool". Strings stand in quotes.
QStringList journal();

} // namespace RecordingRuntime
