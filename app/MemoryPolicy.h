#pragma once

/// How the process deals with the system's memory.
namespace MemoryPolicy {

/// Lets the whole process give large blocks of memory back to the system as soon as they are freed.
/// Otherwise the C library keeps those of decoded pictures, for each decoding thread apart, which
/// after some videos takes as much as another decoder. For the start of a program that plays; does
/// nothing where the C library cannot be told.
void returnFreedMemory();

/// The opposite: has the process keep freed memory, up to a gigabyte, for the next block of the
/// kind. For a program that takes pictures one after the other: their frames come and go in the
/// same sizes, and fresh memory for each would cost a fifth of the time of short videos.
void keepFreedMemory();

} // namespace MemoryPolicy
