#pragma once

/// Standard input, output and error of the process.
namespace StandardStreams {

/// Opens those that the caller has closed, so that no other file gets their numbers: a message
/// would be written into it. Reading such an input and writing to such an output remain errors.
/// Call it before anything opens a file. Returns false if the system refuses, so that such files
/// remain possible.
[[nodiscard]] bool fillGaps();

} // namespace StandardStreams
