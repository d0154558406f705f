#pragma once

/// How the process deals with the system's memory.
namespace MemoryPolicy {

/// Lets the whole process give large blocks of memory back to the system as soon as they are freed.
/// Otherwise the C library keeps those of decoded pictures, for each decoding thread apart, which
/// after some videos takes as much as another decoder. For the start of a program that plays, and
/// for pictures of one video; does nothing where the C library cannot be told.
///
/// @param largeBytes  from which size on
void returnFreedMemory(int largeBytes = 1 << 20);

/// The opposite: has the process keep freed memory, up to a gigabyte, for the next block of the
/// kind. For pictures of many videos: their frames come and go in the same sizes, and fresh memory
/// for each video would cost a fifth of the time of short ones.
void keepFreedMemory();

} // namespace MemoryPolicy
